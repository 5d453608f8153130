#include "plugin/ImagePlugInCalls.h"

#include "core/PaletteSet.h"
#include "paint/TextureCanvas.h"
#include "platform/Platform.h"
#include "platform/WaitCursor.h"
#include "plugin/GuardedCall.h"
#include "plugin/PlugInRecords.h"

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <utility>

namespace dyeworks {

namespace {

void tell(const char* text) {
    platform().messages().show({text, "", MessageButtons::Ok, MessageIcon::None, MessageOwner::MainWindow});
}

bool isIn(std::int32_t index, const std::vector<PlugInInfo>& list) {
    return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

/// The picture that a call passes. Its records are the host's: whatever a plug-in does to their fields is
/// undone, so that the blocks are freed as they were made. False from `restore` when it had to.
class PassedPicture {
public:
    PassedPicture(TmfImage* image, TlutData* palette, std::int32_t paletteNumber)
        : picture_{plainRecord(image), plainRecord(palette), 0, paletteNumber} {
        if (picture_.image != nullptr)
            image_ = *picture_.image;
        if (picture_.palette != nullptr)
            palette_ = *picture_.palette;
    }

    [[nodiscard]] const PlugInPicture* get() const noexcept { return &picture_; }

    bool restore() noexcept {
        bool kept = true;
        if (::TmfImage* const now = picture_.image) {
            kept = now->width == image_.width && now->height == image_.height && now->bits == image_.bits &&
                   now->texels == image_.texels;
            *now = image_;
        }
        if (::TlutData* const now = picture_.palette) {
            kept = kept && now->colourType == palette_.colourType && now->count == palette_.count &&
                   now->entries == palette_.entries;
            *now = palette_;
        }
        return kept;
    }

private:
    PlugInPicture picture_;
    ::TmfImage image_{};
    ::TlutData palette_{};
};

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
        palette_->commitEdit();
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
        tell("TMF Import Plug-In not installed.\n");
        return nullptr;
    }
    if (host_.paletteSet() == nullptr || image == nullptr || !isIn(index, catalogue_.importers()))
        return nullptr;
    const PlugInInfo& plugIn = catalogue_.importers()[static_cast<std::size_t>(index)];
    std::optional<WaitCursorScope> working(std::in_place);
    const auto entryPoint = plugIn.module->findFunction<decltype(DWPI_import)>("_DWPI_import@8");
    if (entryPoint == nullptr) {
        tell("TMF import entry not found");
        return nullptr;
    }
    PassedPicture passed(image, palette, paletteNumber);
    ImportStep step(*host_.paletteSet(), palette);
    PlugInPicture out{nullptr, nullptr, 0, paletteNumber};
    const std::optional<std::uint32_t> result = guarded(entryPoint, passed.get(), &out);
    bool fine = passed.restore() && result.has_value();
    step.comeBack();

    std::unique_ptr<TextureCanvas> canvas;
    bool palettesChanged = false;
    // What a refusal leaves behind may be anything.
    if (result.value_or(0) != 0) {
        // What is the host's own, or shares a block with it, is nothing new.
        if (out.image == passed.get()->image)
            out.image = nullptr;
        if (out.palette == passed.get()->palette)
            out.palette = nullptr;
        if (out.image != nullptr && out.image->texels == image->texels)
            out.image->texels = nullptr;
        if (out.palette != nullptr && palette != nullptr && out.palette->entries == palette->entries)
            out.palette->entries = nullptr;
        const PlainImage newImage(out.image);
        const PlainTable newTable(out.palette);
        const TmfImage* const texels = usable(newImage.get());
        const TlutData* const table = usable(newTable.get());
        fine =
            fine && (newImage == nullptr || texels != nullptr) && (newTable == nullptr || table != nullptr);
        if (texels != nullptr)
            canvas = canvasOf(*texels, table != nullptr ? table : palette, paletteNumber);
        if (table != nullptr) {
            fine = takeUpPalette(*table, palette) && fine;
            palettesChanged = true;
        }
    }
    if (step.record() || palettesChanged)
        host_.refreshPaletteBar();
    working.reset();
    if (!fine)
        host_.tellPlugInFailed(plugIn.fileName);
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
        tell("TMF Export Plug-In not installed.\n");
        return false;
    }
    if (host_.paletteSet() == nullptr || image == nullptr || !isIn(index, catalogue_.exporters()))
        return false;
    const PlugInInfo& plugIn = catalogue_.exporters()[static_cast<std::size_t>(index)];
    std::optional<WaitCursorScope> working(std::in_place);
    const auto entryPoint = plugIn.module->findFunction<decltype(DWPI_export)>("_DWPI_export@4");
    if (entryPoint == nullptr) {
        tell("TMF export entry not found.");
        return false;
    }
    PassedPicture passed(image, palette, paletteNumber);
    const std::optional<std::uint32_t> result = guarded(entryPoint, passed.get());
    const bool fine = passed.restore() && result.has_value();
    working.reset();
    if (!fine)
        host_.tellPlugInFailed(plugIn.fileName);
    return result.value_or(0) != 0;
}

std::uint32_t ImagePlugInCalls::PreviewImage(TmfImage* image, TlutData* palette, std::int32_t paletteNumber,
                                             std::int32_t which) {
    if (catalogue_.previews().empty()) {
        tell("TMF Preview Plug-In not installed.\n");
        return 0;
    }
    if (host_.paletteSet() == nullptr || palette == nullptr)
        return 0;
    const PlugInInfo& plugIn = catalogue_.previews().front();
    PassedPicture passed(image, palette, paletteNumber);
    const auto call = [&](auto* entryPoint, auto... arguments) {
        const std::optional<std::uint32_t> answer = guarded(entryPoint, passed.get(), arguments...);
        shown_.at(static_cast<std::size_t>(which)) = true;
        return answer;
    };
    std::optional<std::uint32_t> result;
    if (const auto both = plugIn.module->findFunction<decltype(DWPI_preview2)>("_DWPI_preview2@8")) {
        result = call(both, static_cast<std::uint32_t>(which));
    } else if (const auto one = plugIn.module->findFunction<decltype(DWPI_preview)>("_DWPI_preview@4")) {
        result = call(one);
    } else {
        tell("TMF preview entry not found");
        return 0;
    }
    if (!passed.restore() || !result)
        host_.tellPlugInFailed(plugIn.fileName);
    return result.value_or(0);
}

void ImagePlugInCalls::PreviewOff(std::int32_t which) {
    const bool shown = std::exchange(shown_.at(static_cast<std::size_t>(which)), false);
    if (!shown || catalogue_.previews().empty())
        return;
    const PlugInInfo& plugIn = catalogue_.previews().front();
    const auto off = plugIn.module->findFunction<decltype(DWPI_previewOff)>("_DWPI_previewOff@4");
    if (off != nullptr && !guarded(off, static_cast<std::uint32_t>(which)))
        host_.tellPlugInFailed(plugIn.fileName);
}

} // namespace dyeworks
