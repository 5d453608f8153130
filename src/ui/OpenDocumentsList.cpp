#include "ui/OpenDocumentsList.h"

#include "core/PaletteSet.h"
#include "framework/CDocument.h"
#include "framework/widgets/ChildFrame.h"
#include "platform/Platform.h"
#include "ui/CMainFrame.h"
#include "ui/Workspace.h"

#include <QMdiArea>

#include <charconv>
#include <ranges>
#include <set>
#include <string>
#include <system_error>
#include <vector>

namespace dyeworks {

namespace {

constexpr const char* kDocumentsSection = "Settings\\Documents";
constexpr const char* kCountEntry = "count";

/// The numbers below `count` under which the open documents have an entry.
std::set<int> storedDocuments(int count) {
    std::set<int> stored;
    for (const std::string& name : platform().profile().entries(kDocumentsSection)) {
        int number = 0;
        const bool fits = std::from_chars(name.data(), name.data() + name.size(), number).ec == std::errc();
        if (fits && number >= 0 && number < count && std::to_string(number) == name)
            stored.insert(number);
    }
    return stored;
}

} // namespace

bool OpenDocumentsList::resume() {
    const Profile& profile = platform().profile();
    const int count = profile.integer(kDocumentsSection, kCountEntry, 0);
    const std::set<int> stored = storedDocuments(count);
    const auto pathOf = [&](int number) {
        return profile.textOr(kDocumentsSection, std::to_string(number), "");
    };
    // What is missing counts as failed. How much that is may be nonsense in a damaged file, so that only what
    // is there is gone through.
    bool allOpened = count <= static_cast<int>(stored.size());
    for (const int number : stored)
        allOpened = workspace_.OpenDocumentFile(pathOf(number)) && allOpened;
    // The list begins with the window that was in front.
    CMainFrame& window = workspace_.mainFrame();
    for (const int number : stored | std::views::reverse) {
        const CDocument* document = workspace_.FindOpenDocument(pathOf(number));
        if (ChildFrame* frame = document == nullptr ? nullptr : window.frameOf(*document))
            window.area().setActiveSubWindow(frame);
    }
    return allOpened;
}

void OpenDocumentsList::save() {
    Profile& profile = platform().profile();
    std::vector<std::string> open;
    workspace_.paletteSet()->listKeys(open);
    // One that was never saved is no file that could be opened again.
    std::erase_if(open, [](const std::string& key) { return key.starts_with('*'); });
    for (const ChildFrame* frame : workspace_.mainFrame().childFrames()) {
        if (frame->document() != nullptr && !frame->document()->pathName().empty())
            open.push_back(frame->document()->pathName());
    }
    for (std::size_t i = 0; i < open.size(); ++i)
        profile.setText(kDocumentsSection, std::to_string(i), open[i]);
    profile.setInteger(kDocumentsSection, kCountEntry, static_cast<int>(open.size()));
}

} // namespace dyeworks
