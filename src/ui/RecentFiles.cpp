#include "ui/RecentFiles.h"

#include "platform/StringId.h"
#include "platform/TextCase.h"

#include <utility>

namespace dyeworks {

namespace {

/// An entry of the list, or nothing to see. An empty list leaves its placeholder, which cannot be chosen.
void showEntry(const RecentFileList& list, std::size_t index, CommandUi& ui) {
    if (index < list.paths().size())
        ui.text = list.menuLabel(index);
    else
        ui.require(false, StringId::WhyNothingRecent);
    ui.visible = index == 0 || ui.enabled;
}

} // namespace

RecentFiles::RecentFiles(Open open)
    : open_(std::move(open)) {
    onRange(ID_RECENT_PROJECT_FIRST, ID_RECENT_PROJECT_LAST, &RecentFiles::OnRecentProject,
            &RecentFiles::OnUpdateRecentProject);
    onRange(ID_RECENT_IMAGE_FIRST, ID_RECENT_IMAGE_LAST, &RecentFiles::OnRecentImage,
            &RecentFiles::OnUpdateRecentImage);
    onRange(ID_RECENT_PALETTE_FIRST, ID_RECENT_PALETTE_LAST, &RecentFiles::OnRecentPalette,
            &RecentFiles::OnUpdateRecentPalette);
}

RecentFileList& RecentFiles::listFor(const std::string& path) {
    if (endsIgnoringCase(path, ".tpf"))
        return projects_;
    if (endsIgnoringCase(path, ".tmf"))
        return images_;
    if (endsIgnoringCase(path, ".tlf"))
        return palettes_;
    return others_;
}

void RecentFiles::add(const std::string& path) {
    listFor(path).add(path);
}

void RecentFiles::remove(const std::string& path) {
    listFor(path).remove(path);
}

void RecentFiles::load() {
    for (RecentFileList* list : {&projects_, &images_, &palettes_, &others_})
        list->load();
}

void RecentFiles::save() const {
    for (const RecentFileList* list : {&projects_, &images_, &palettes_, &others_})
        list->save();
}

void RecentFiles::openEntry(const RecentFileList& list, std::size_t index) {
    // A copy, because opening reorders the list.
    const std::string path = list.paths().at(index);
    open_(path);
}

void RecentFiles::OnRecentProject(CommandId id) {
    openEntry(projects_, id - ID_RECENT_PROJECT_FIRST);
}

void RecentFiles::OnUpdateRecentProject(CommandUi& ui) {
    showEntry(projects_, ui.id - ID_RECENT_PROJECT_FIRST, ui);
}

void RecentFiles::OnRecentImage(CommandId id) {
    openEntry(images_, id - ID_RECENT_IMAGE_FIRST);
}

void RecentFiles::OnUpdateRecentImage(CommandUi& ui) {
    showEntry(images_, ui.id - ID_RECENT_IMAGE_FIRST, ui);
}

void RecentFiles::OnRecentPalette(CommandId id) {
    openEntry(palettes_, id - ID_RECENT_PALETTE_FIRST);
}

void RecentFiles::OnUpdateRecentPalette(CommandUi& ui) {
    showEntry(palettes_, ui.id - ID_RECENT_PALETTE_FIRST, ui);
}

} // namespace dyeworks
