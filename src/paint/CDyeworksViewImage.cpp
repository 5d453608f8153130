#include "core/TextureLookupTable.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/CanvasDepth.h"
#include "paint/CanvasTransform.h"
#include "paint/DrawTool.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <array>

namespace dyeworks {

namespace {

constexpr std::int32_t kBanks = kLastBank + 1;
constexpr int kWidening = 3; ///< From 5 bits a channel to 8.

Size sizeOf(const TextureCanvas& canvas) {
    return {canvas.width(), canvas.height()};
}

ShownColour shownColour(const TlutData& table, std::int32_t entry) {
    if (table.colourType == ColourType::Ia) {
        const auto intensity = static_cast<std::uint8_t>(table.getIntensity(entry));
        return {intensity, intensity, intensity, static_cast<std::uint8_t>(table.getAlpha(entry))};
    }
    const auto widened = [](auto channel) { return static_cast<std::uint8_t>(channel << kWidening); };
    return {widened(table.getRed(entry)), widened(table.getGreen(entry)), widened(table.getBlue(entry)),
            static_cast<std::uint8_t>(table.getAlpha(entry) != 0 ? 255 : 0)};
}

/// Of the palette, or without one of the image itself, which knows no alpha.
std::array<ShownColour, 256> shownColours(const TextureCanvas& canvas, const TextureLookupTable* palette) {
    constexpr std::size_t kColourSize = 4;
    std::array<ShownColour, 256> colours{};
    const auto own = canvas.colourTable();
    for (std::size_t i = 0; i < colours.size() && i < own.size() / kColourSize; ++i)
        colours[i] = {own[i * kColourSize + 2], own[i * kColourSize + 1], own[i * kColourSize]};
    if (palette != nullptr) {
        for (std::int32_t i = 0; i < std::min(palette->table.count, 256); ++i)
            colours[static_cast<std::size_t>(i)] = shownColour(palette->table, i);
    }
    return colours;
}

template <typename Work>
std::optional<Work> ask(CDyeworksDoc& document, const Work& proposed, const TextureCanvas& image) {
    const std::optional<ImageWork> wanted = document.host().askImageWork(proposed, image);
    const Work* const work = wanted ? std::get_if<Work>(&*wanted) : nullptr;
    return work == nullptr ? std::nullopt : std::optional(*work);
}

template <typename Work>
std::optional<Work> ask(CDyeworksDoc& document, const Work& proposed) {
    return ask(document, proposed, document.canvas());
}

} // namespace

void CDyeworksView::OnResizeCanvas() {
    CancelDrag();
    const auto wanted = ask(document_, ResizeCanvas{sizeOf(document_.canvas())});
    if (!wanted)
        return;
    const Point place = anchored(sizeOf(document_.canvas()), wanted->size, wanted->anchor);
    document_.ReplaceImage(
        [&](const TextureCanvas& canvas) { return resized(canvas, wanted->size, place, wanted->fill); },
        {StringId::StepResize, std::nullopt, place});
}

void CDyeworksView::OnScaleImage() {
    CancelDrag();
    if (const auto wanted = ask(document_, ScaleImage{sizeOf(document_.canvas())}))
        document_.ReplaceImage([&](const TextureCanvas& canvas) { return scaled(canvas, wanted->size); },
                               {StringId::StepScale});
}

/// What is selected may have been moved across the edge of the image.
void CDyeworksView::OnCrop() {
    takeBackSelecting();
    if (!selection_.exists())
        return;
    const TextureCanvas& image = document_.canvas();
    const Rect kept = intersection(*selection_.texels(), {0, 0, image.width() - 1, image.height() - 1});
    if (kept.right < kept.left || kept.bottom < kept.top)
        return;
    const Point place{-kept.left, -kept.top};
    document_.ReplaceImage(
        [&](const TextureCanvas& canvas) {
            return resized(canvas, {kept.right - kept.left + 1, kept.bottom - kept.top + 1}, place, 0);
        },
        {StringId::StepCrop, std::nullopt, place});
}

void CDyeworksView::OnShiftImage() {
    CancelDrag();
    if (const auto wanted = ask(document_, ShiftImage{}))
        document_.ReplaceImage([&](const TextureCanvas& canvas) { return shifted(canvas, wanted->by); },
                               {StringId::StepShift});
}

void CDyeworksView::OnShiftByHalf() {
    document_.ReplaceImage(
        [](const TextureCanvas& canvas) {
            return shifted(canvas, {canvas.width() / 2, canvas.height() / 2});
        },
        {StringId::StepShiftHalf});
}

void CDyeworksView::OnTurn(CommandId id) {
    const Turn turn = id == ID_IMAGE_TURN_LEFT    ? Turn::Left
                      : id == ID_IMAGE_TURN_RIGHT ? Turn::Right
                                                  : Turn::Half;
    takeBackSelecting();
    if (selection_.exists())
        selection_.turn(turn);
    else
        document_.ReplaceImage([&](const TextureCanvas& canvas) { return turned(canvas, turn); },
                               {turn == Turn::Left    ? StringId::StepTurnLeft
                                : turn == Turn::Right ? StringId::StepTurnRight
                                                      : StringId::StepTurnHalf});
}

void CDyeworksView::OnToFourBits() {
    CancelDrag();
    // What floats is counted with the rest, and floats on when the image is left.
    std::unique_ptr<TextureCanvas> placed;
    if (selection_.hasFloatingPiece()) {
        placed = document_.canvas().Clone();
        if (placed == nullptr) {
            applicationMessage(text(StringId::NotEnoughMemory));
            return;
        }
        selection_.drawFloatingPiece(*placed);
    }
    const TextureCanvas& seen = placed ? *placed : document_.canvas();
    const TextureLookupTable* const palette = document_.GetAttachedPalette();
    const std::int32_t banks =
        palette == nullptr ? kBanks : std::clamp(palette->table.count / kBankSize, 1, kBanks);
    const IndexCounts counts = countIndexes(seen);
    std::int32_t bank = fullestBank(counts, banks);
    if (countOutside(counts, bank) != 0) {
        const auto wanted = ask(document_, ReduceDepth{bank, banks}, seen);
        if (!wanted)
            return;
        bank = wanted->bank;
    }
    const IndexMap map =
        nearestInBank(shownColours(document_.canvas(), document_.GetAttachedPalette()), bank);
    document_.ReplaceImage([&](const TextureCanvas& canvas) { return inFourBits(canvas, map, bank); },
                           {StringId::StepTo4Bits, bank * kBankSize});
}

/// The image shows the same bank of a large palette as before.
void CDyeworksView::OnToEightBits() {
    const TextureLookupTable* const palette = document_.GetAttachedPalette();
    const bool showsBank = palette != nullptr && palette->table.count == kBanks * kBankSize;
    const std::int32_t bank = document_.paletteValue() / kBankSize;
    document_.ReplaceImage(
        [&](const TextureCanvas& canvas) {
            return inEightBits(canvas, showsBank && bank >= 0 && bank < kBanks ? bank : 0);
        },
        {StringId::StepTo8Bits});
}

void CDyeworksView::OnUpdateDepth(CommandUi& ui) {
    const bool fromEight = ui.id == ID_IMAGE_TO_4_BITS;
    ui.require(document_.canvas().bitsPerPixel() == (fromEight ? 8 : 4),
               fromEight ? StringId::WhyNotEightBits : StringId::WhyNotFourBits);
}

void CDyeworksView::OnUpdateImageWork(CommandUi& ui) {
    ui.require(document_.canvas().width() > 0 && document_.canvas().height() > 0, StringId::WhyNoTexels);
}

} // namespace dyeworks
