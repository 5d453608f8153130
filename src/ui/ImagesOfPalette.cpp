#include "ui/ImagesOfPalette.h"

#include "core/JointStep.h"
#include "core/PaletteUndoRecord.h"
#include "framework/PathText.h"
#include "paint/CDyeworksDoc.h"
#include "paint/RenumberRecord.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "project/CTPFDocument.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace dyeworks {

namespace {

AttachedImage described(CDyeworksDoc& image) {
    // Without its folder, as in the title.
    const std::string name = image.pathName().empty() ? image.displayName() : image.pathName();
    return {std::string(fileNameOf(name)), 1 << image.canvas().bitsPerPixel(), image.firstShownEntry(),
            image.texelCounts()};
}

std::unique_ptr<UndoRecord> recordOf(const TlutData& table, const EntryMap& map) {
    try {
        TlutData after(table);
        if (after.count != table.count)
            return nullptr;
        map.applyTo(after);
        return std::make_unique<PaletteUndoRecord>(&table, &after);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace

ImagesOfPalette::ImagesOfPalette(TextureLookupTable& palette, const std::vector<CDyeworksDoc*>& images,
                                 CTPFDocument* project)
    : palette_(palette)
    , project_(project) {
    std::ranges::copy_if(images, std::back_inserter(attached_), [&](const CDyeworksDoc* image) {
        return image->GetAttachedPalette() == &palette && !image->canvas().holdsColours();
    });
}

std::vector<AttachedImage> ImagesOfPalette::openImages() const {
    std::vector<AttachedImage> images;
    for (CDyeworksDoc* image : attached_)
        images.push_back(described(*image));
    return images;
}

std::vector<std::string> ImagesOfPalette::closedPictures() const {
    std::vector<std::string> closed;
    if (project_ == nullptr)
        return closed;
    for (const std::string& name : project_->pictureNames()) {
        const CTPFDocument::PictureFiles files = project_->FilesOf(name);
        const auto isOpen = [&](const CDyeworksDoc* image) {
            return equalIgnoringCase(image->pathName(), files.image);
        };
        if (!files.image.empty() && equalIgnoringCase(files.palette, palette_.path) &&
            std::ranges::none_of(attached_, isOpen))
            closed.push_back(name);
    }
    return closed;
}

bool ImagesOfPalette::rearrange(const EntryMap& map, StringId name) {
    if (!std::ranges::all_of(attached_, [](CDyeworksDoc* image) { return image->settlePieces(); }))
        return false;
    std::vector<JointStep::Change> changes;
    changes.push_back({&palette_.jointSide(), recordOf(palette_.table, map)});
    for (CDyeworksDoc* image : attached_) {
        const FollowPlan plan = planFollowing(described(*image), map);
        if (plan.leaving > 0)
            return false;
        if (plan.affected)
            changes.push_back({&image->jointSide(),
                               RenumberRecord::make(image->canvas(), image->texelCounts(), plan.values)});
    }
    const bool hasMemory =
        std::ranges::all_of(changes, [](const auto& change) { return change.record != nullptr; });
    for (const JointStep::Change& change : changes) {
        if (change.record != nullptr)
            change.record->name = name;
    }
    if (!hasMemory || !JointStep::carryOut(std::move(changes))) {
        applicationWarning(text(StringId::NotEnoughMemory), text(StringId::MemoryAdvice));
        return false;
    }
    return true;
}

} // namespace dyeworks
