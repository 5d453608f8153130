#include "platform/TextCase.h"
#include "ui/CDyeworksApp.h"

namespace dyeworks {

namespace {

/// An entry of the list, or nothing to see. An empty list leaves its placeholder, which cannot be chosen.
void showEntry(const RecentFileList& list, std::size_t index, CommandUi& ui) {
    if (index < list.paths().size())
        ui.text = list.menuLabel(index);
    else
        ui.enabled = false;
    ui.visible = index == 0 || ui.enabled;
}

} // namespace

RecentFileList& CDyeworksApp::recentListFor(const std::string& path) {
    if (endsIgnoringCase(path, ".tpf"))
        return recentProjects_;
    if (endsIgnoringCase(path, ".tmf"))
        return recentImages_;
    if (endsIgnoringCase(path, ".tlf"))
        return recentPalettes_;
    return recentOthers_;
}

void CDyeworksApp::AddToRecentFileList(const std::string& path) {
    recentListFor(path).add(path);
}

void CDyeworksApp::openRecent(const RecentFileList& list, std::size_t index) {
    // A copy, because opening reorders the list.
    const std::string path = list.paths().at(index);
    OpenDocumentFile(path);
}

void CDyeworksApp::OnRecentProject(CommandId id) {
    openRecent(recentProjects_, id - ID_RECENT_PROJECT_FIRST);
}

void CDyeworksApp::OnUpdateRecentProject(CommandUi& ui) {
    showEntry(recentProjects_, ui.id - ID_RECENT_PROJECT_FIRST, ui);
}

void CDyeworksApp::OnRecentImage(CommandId id) {
    openRecent(recentImages_, id - ID_RECENT_IMAGE_FIRST);
}

void CDyeworksApp::OnUpdateRecentImage(CommandUi& ui) {
    showEntry(recentImages_, ui.id - ID_RECENT_IMAGE_FIRST, ui);
}

void CDyeworksApp::OnRecentPalette(CommandId id) {
    openRecent(recentPalettes_, id - ID_RECENT_PALETTE_FIRST);
}

void CDyeworksApp::OnUpdateRecentPalette(CommandUi& ui) {
    showEntry(recentPalettes_, ui.id - ID_RECENT_PALETTE_FIRST, ui);
}

} // namespace dyeworks
