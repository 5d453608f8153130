#pragma once

#include "palette/AttachedImage.h"
#include "platform/Text.h"

#include <string>
#include <vector>

namespace dyeworks {

class CDyeworksDoc;
class CTPFDocument;
class TextureLookupTable;

/// The images that show a palette, and how all of them follow when its entries change places.
class ImagesOfPalette : public AttachedImages {
public:
    /// `images` are all that are open, attached or not; `project` is null while none is open. Both and the
    /// palette must outlive the use.
    ImagesOfPalette(TextureLookupTable& palette, const std::vector<CDyeworksDoc*>& images,
                    CTPFDocument* project);

    [[nodiscard]] std::vector<AttachedImage> openImages() const override;
    [[nodiscard]] std::vector<std::string> closedPictures() const override;

    /// Moves the entries and renumbers the texels of all open images by the map, as one step of all their
    /// histories, under a name for the user. Drags are taken back and pieces that float are placed first.
    /// False, with entries and texels as they were, when a piece floats on, when texels of an image would
    /// leave what it can show, and without memory, which the user has been told.
    bool rearrange(const EntryMap& map, StringId name);

private:
    TextureLookupTable& palette_;
    std::vector<CDyeworksDoc*> attached_;
    CTPFDocument* project_;
};

} // namespace dyeworks
