#include "plugin/ImagePlugInCalls.h"

#include "core/PaletteSet.h"
#include "paint/TextureCanvas.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/WaitCursor.h"
#include "plugin/PlugInCall.h"
#include "plugin/PlugInRecords.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace dyeworks {

namespace {

bool isIn(std::int32_t index, const std::vector<PlugInInfo>& list) {
    return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

/// Makes what an import does to the table of an open palette one step of that palette.
class ImportStep {
public:
    /// `table` may be null, or in no palette, and then there is no step. Both must outlive the step.
    ImportStep(PaletteSet& set, const TlutData* table)
        : table_(table) {
        const auto isOwner = [&](const auto& each) { return &each.second->table == table; };
        const auto owner = std::ranges::find_if(set.palettes, isOwner);
        if (owner == set.palettes.end())
            return;
        before_ = *table;
        // Without memory for it there is nothing to go back to.
        if (before_.count != table->count)
            return;
        palette_ = owner->second.get();
        position_ = palette_->history->position();
    }

    /// Called when the plug-in has come back. What it changed through the program is a step already.
    void comeBack() {
        if (palette_ != nullptr && palette_->history->position() != position_)
            before_ = *table_;
    }

    /// Whether there was anything to record.
    bool record() {
        if (palette_ == nullptr || before_ == *table_)
            return false;
        palette_->snapshot = std::make_unique<TlutData>(std::move(before_));
        palette_->commitEdit(StringId::StepPlugIn);
        palette_->modified = true;
        return true;
    }

private:
    const TlutData* table_;
    TextureLookupTable* palette_ = nullptr;
    TlutData before_;
    std::int32_t position_ = 0;
};

/// The canvas of an image in the palette's colours, or null when it cannot be made.
std::unique_ptr<TextureCanvas> canvasOf(const TmfImage& image, const TlutData* table,
                                        std::int32_t firstEntry) {
    auto canvas = std::unique_ptr<TextureCanvas>(new (std::nothrow) TextureCanvas(image));
    if (canvas == nullptr || canvas->block().empty())
        return nullptr;
    if (table != nullptr)
        canvas->ApplyPalette(TextureLookupTable(*table), firstEntry);
    return canvas;
}

} // namespace

std::unique_ptr<TextureCanvas> ImagePlugInCalls::ImportImage(std::int32_t index, TmfImage* image,
                                                             TlutData* palette, std::int32_t paletteNumber) {
    if (catalogue_.importers().empty()) {
        applicationMessage(text(StringId::ImportPlugInMissing), MessageIcon::None);
        return nullptr;
    }
    if (host_.paletteSet() == nullptr || image == nullptr || !isIn(index, catalogue_.importers()))
        return nullptr;
    PlugInCall call(host_, catalogue_.importers()[static_cast<std::size_t>(index)]);
    const WaitCursorScope working;
    const auto entryPoint = call.find<decltype(DWPI_import)>("_DWPI_import@8");
    if (entryPoint == nullptr) {
        applicationMessage(text(StringId::ImportEntryMissing), MessageIcon::None);
        return nullptr;
    }
    const PlugInPicture* const in = call.pass(image, palette, paletteNumber);
    ImportStep step(*host_.paletteSet(), palette);
    PlugInPicture out{nullptr, nullptr, 0, paletteNumber};
    const std::uint32_t result = call.answer(entryPoint, in, &out);
    step.comeBack();

    std::unique_ptr<TextureCanvas> canvas;
    bool palettesChanged = false;
    // What a refusal leaves behind may be anything.
    if (result != 0) {
        // What is the host's own, or shares a block with it, is nothing new.
        if (out.image == in->image)
            out.image = nullptr;
        if (out.palette == in->palette)
            out.palette = nullptr;
        if (out.image != nullptr && out.image->texels == image->texels)
            out.image->texels = nullptr;
        if (out.palette != nullptr && palette != nullptr && out.palette->entries == palette->entries)
            out.palette->entries = nullptr;
        const PlainImage newImage(out.image);
        const PlainTable newTable(out.palette);
        const TmfImage* const texels = usable(newImage.get());
        const TlutData* const table = usable(newTable.get());
        if ((newImage != nullptr && texels == nullptr) || (newTable != nullptr && table == nullptr))
            call.fail();
        if (texels != nullptr)
            canvas = canvasOf(*texels, table != nullptr ? table : palette, paletteNumber);
        if (table != nullptr) {
            if (!takeUpPalette(*table, palette))
                call.fail();
            palettesChanged = true;
        }
    }
    if (step.record() || palettesChanged)
        host_.refreshPaletteBar();
    return canvas;
}

/// The image's palette takes the place of the one it has. A first one is in no file.
bool ImagePlugInCalls::takeUpPalette(const TlutData& brought, TlutData* palette) {
    if (palette == nullptr) {
        PaletteSet& set = *host_.paletteSet();
        if (!set.addCopy(brought))
            return false;
        set.lookup("")->markUnsaved();
        return true;
    }
    TlutData copy(brought);
    if (copy.entries == nullptr)
        return false;
    *palette = std::move(copy);
    return true;
}

bool ImagePlugInCalls::ExportImage(std::int32_t index, TmfImage* image, TlutData* palette,
                                   std::int32_t paletteNumber) {
    if (catalogue_.exporters().empty()) {
        applicationMessage(text(StringId::ExportPlugInMissing), MessageIcon::None);
        return false;
    }
    if (host_.paletteSet() == nullptr || image == nullptr || !isIn(index, catalogue_.exporters()))
        return false;
    PlugInCall call(host_, catalogue_.exporters()[static_cast<std::size_t>(index)]);
    const WaitCursorScope working;
    const auto entryPoint = call.find<decltype(DWPI_export)>("_DWPI_export@4");
    if (entryPoint == nullptr) {
        applicationMessage(text(StringId::ExportEntryMissing), MessageIcon::None);
        return false;
    }
    return call.answer(entryPoint, call.pass(image, palette, paletteNumber)) != 0;
}

std::uint32_t ImagePlugInCalls::PreviewImage(TmfImage* image, TlutData* palette, std::int32_t paletteNumber,
                                             std::int32_t which) {
    if (catalogue_.previews().empty()) {
        applicationMessage(text(StringId::PreviewPlugInMissing), MessageIcon::None);
        return 0;
    }
    if (host_.paletteSet() == nullptr || palette == nullptr)
        return 0;
    PlugInCall call(host_, catalogue_.previews().front());
    const auto both = call.find<decltype(DWPI_preview2)>("_DWPI_preview2@8");
    const auto one = both != nullptr ? nullptr : call.find<decltype(DWPI_preview)>("_DWPI_preview@4");
    if (both == nullptr && one == nullptr) {
        applicationMessage(text(StringId::PreviewEntryMissing), MessageIcon::None);
        return 0;
    }
    const PlugInPicture* const picture = call.pass(image, palette, paletteNumber);
    const std::uint32_t result = both != nullptr
                                     ? call.answer(both, picture, static_cast<std::uint32_t>(which))
                                     : call.answer(one, picture);
    shown_.at(static_cast<std::size_t>(which)) = true;
    return result;
}

void ImagePlugInCalls::PreviewOff(std::int32_t which) {
    const bool shown = std::exchange(shown_.at(static_cast<std::size_t>(which)), false);
    if (!shown || catalogue_.previews().empty())
        return;
    PlugInCall call(host_, catalogue_.previews().front());
    if (const auto off = call.find<decltype(DWPI_previewOff)>("_DWPI_previewOff@4"))
        call.answer(off, static_cast<std::uint32_t>(which));
}

} // namespace dyeworks
