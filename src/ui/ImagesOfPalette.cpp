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
#include <optional>
#include <utility>

namespace dyeworks {

namespace {

/// As it is told without looking at the texels.
AttachedImage described(const CDyeworksDoc& image) {
    AttachedImage description;
    description.values = 1 << image.canvas().bitsPerPixel();
    description.firstEntry = image.firstShownEntry();
    return description;
}

std::optional<FollowPlan> planOf(const CDyeworksDoc& image, const EntryMap& map) {
    AttachedImage description = described(image);
    // Every value counts as one that the image has.
    std::ranges::fill(description.texels, 1);
    FollowPlan plan = planFollowing(description, map);
    if (plan.leaving > 0) {
        description.texels = countValues(image.canvas());
        plan = planFollowing(description, map);
    }
    return plan.leaving > 0 ? std::nullopt : std::optional(plan);
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
    for (const CDyeworksDoc* image : attached_) {
        images.push_back(described(*image));
        // Without its folder, as in the title.
        const std::string name = image->pathName().empty() ? image->displayName() : image->pathName();
        images.back().name = fileNameOf(name);
        images.back().texels = countValues(image->canvas());
    }
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

bool ImagesOfPalette::rearrange(const EntryMap& map) {
    if (!std::ranges::all_of(attached_, [](CDyeworksDoc* image) { return image->settlePieces(); }))
        return false;
    std::vector<JointStep::Change> changes;
    changes.push_back({&palette_.jointSide(), recordOf(palette_.table, map)});
    for (CDyeworksDoc* image : attached_) {
        const std::optional<FollowPlan> plan = planOf(*image, map);
        if (!plan)
            return false;
        if (plan->affected)
            changes.push_back({&image->jointSide(), RenumberRecord::make(image->canvas(), plan->values)});
    }
    const bool hasMemory =
        std::ranges::all_of(changes, [](const auto& change) { return change.record != nullptr; });
    if (!hasMemory || !JointStep::carryOut(std::move(changes))) {
        applicationWarning(text(StringId::NotEnoughMemory), text(StringId::MemoryAdvice));
        return false;
    }
    return true;
}

} // namespace dyeworks
