#include "ui/ClosingQuestions.h"

#include "core/PaletteSet.h"
#include "framework/CDocument.h"
#include "ui/Workspace.h"

#include <algorithm>
#include <string>
#include <vector>

namespace dyeworks {

bool ClosingQuestions::ask() {
    while (!areAllAnswered()) {
        if (!askForPalettes() || !askForDocuments())
            return false;
    }
    return true;
}

bool ClosingQuestions::askForPalettes() {
    PaletteSet& set = *workspace_.paletteSet();
    const auto isAsked = [this](const auto& entry) { return isAnswered(*entry.second); };
    if (std::ranges::all_of(set.palettes, isAsked))
        return true;
    bool agreed = true;
    // A plug-in that changes a palette whenever the images are shown anew is not to bring questions for ever.
    bool showsAnew = palettes_.empty();
    workspace_.keepAttachments([&] {
        std::vector<std::string> keys;
        set.listKeys(keys);
        for (const std::string& key : keys) {
            const TextureLookupTable* const palette = set.lookup(key);
            if (palette == nullptr || isAnswered(*palette))
                continue;
            const bool unsaved = palette->hasUnsavedChanges();
            agreed = set.queryClose(key, false);
            if (!agreed)
                break;
            palettes_.insert_or_assign(palette, palette->table);
            showsAnew = showsAnew || (unsaved && !palette->hasUnsavedChanges());
        }
        set.rekeyAll();
        return showsAnew;
    });
    return agreed;
}

bool ClosingQuestions::askForDocuments() {
    for (CDocument* document : workspace_.documents()) {
        if (isAnswered(*document))
            continue;
        if (!document->saveModified())
            return false;
        documents_[document] = document->changes();
    }
    return true;
}

bool ClosingQuestions::areAllAnswered() const {
    const auto isAsked = [this](const auto& entry) { return isAnswered(*entry.second); };
    return std::ranges::all_of(workspace_.paletteSet()->palettes, isAsked) &&
           std::ranges::all_of(workspace_.documents(),
                               [this](const CDocument* document) { return isAnswered(*document); });
}

bool ClosingQuestions::isAnswered(const TextureLookupTable& palette) const {
    const auto before = palettes_.find(&palette);
    return before != palettes_.end() && before->second == palette.table;
}

bool ClosingQuestions::isAnswered(const CDocument& document) const {
    const auto before = documents_.find(&document);
    return before != documents_.end() && before->second == document.changes();
}

} // namespace dyeworks
