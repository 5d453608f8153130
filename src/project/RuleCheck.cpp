#include "project/RuleCheck.h"

#include "paint/CanvasRows.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <bit>

namespace dyeworks {

namespace {

constexpr std::int32_t kEntryBytes = 2;
constexpr std::int32_t kFullAlpha = 255;
constexpr std::int32_t kRows = 64; // Of a step, where no rule cuts the image into blocks.

bool isPowerOfTwo(std::int32_t side) {
    return side > 0 && std::has_single_bit(static_cast<std::uint32_t>(side));
}

/// Of the texels.
std::int64_t bytesInFile(const ImageShape& shape) {
    const std::int64_t row = (std::int64_t{shape.size.width} * shape.bits + 7) / 8;
    return (row * shape.size.height + 3) / 4 * 4;
}

} // namespace

bool RuleCheck::needsTexels(const TextureRules& rules, const ImageShape& shape, const TlutData* palette,
                            std::int32_t firstEntry) {
    return RuleCheck(rules, shape, palette, firstEntry).looksAtTexels_;
}

RuleCheck::RuleCheck(const TextureRules& rules, const ImageShape& shape, const TlutData* palette,
                     std::int32_t firstEntry)
    : RuleCheck(rules, shape, nullptr, palette, firstEntry) {}

RuleCheck::RuleCheck(const TextureRules& rules, const TextureCanvas& canvas, const TlutData* palette,
                     std::int32_t firstEntry)
    : RuleCheck(rules, {{canvas.width(), canvas.height()}, canvas.bitsPerPixel()}, &canvas, palette,
                firstEntry) {}

RuleCheck::RuleCheck(const TextureRules& rules, const ImageShape& shape, const TextureCanvas* canvas,
                     const TlutData* palette, std::int32_t firstEntry)
    : rules_(rules)
    , shape_(shape)
    , canvas_(canvas)
    , firstEntry_(shape.bits == 4 ? firstEntry : 0)
    , bandHeight_(rules.blockColours ? rules.blockColours->side : kRows) {
    colours_ = shape.bits <= 8 ? 1 << shape.bits : 0;
    checkSize();
    checkBytes(palette);
    bool maybeStray = false;
    if (palette != nullptr) {
        paletteCount_ = palette->count;
        entries_ = std::max(paletteCount_ - firstEntry_, 0);
        maybeStray = rules.indexesInPalette && entries_ < colours_;
        if (colours_ > 0)
            checkEntries(*palette);
    }
    if (!maybeStray)
        entries_ = colours_;
    looksAtTexels_ = colours_ > 0 && (rules.blockColours || maybeStray);
}

void RuleCheck::add(const RuleFinding& finding) {
    RuleFindings& findings = report_.at(static_cast<std::size_t>(finding.rule));
    ++findings.count;
    if (findings.first.size() < RuleFindings::kMost)
        findings.first.push_back(finding);
}

void RuleCheck::checkSize() {
    const std::int32_t width = shape_.size.width;
    const std::int32_t height = shape_.size.height;
    if (const auto& most = rules_.largestSize; most && (width > most->width || height > most->height))
        add({Rule::LargestSize, {}, {}, {width, height, most->width, most->height}});
    if (rules_.powersOfTwo && !(isPowerOfTwo(width) && isPowerOfTwo(height)))
        add({Rule::PowersOfTwo, {}, {}, {width, height}});
}

void RuleCheck::checkBytes(const TlutData* palette) {
    const std::int64_t texels = bytesInFile(shape_);
    if (rules_.texelBytes && texels > *rules_.texelBytes)
        add({Rule::TexelBytes, {}, {}, {texels, *rules_.texelBytes}});
    const bool inBank = shape_.bits == 4;
    if (!rules_.bytesWithColours || colours_ == 0 || (!inBank && palette == nullptr))
        return;
    const std::int64_t entries = inBank ? kBankSize : palette->count;
    const std::int64_t bytes = texels + kEntryBytes * entries;
    if (bytes > *rules_.bytesWithColours)
        add({Rule::BytesWithColours, {}, {}, {bytes, *rules_.bytesWithColours}});
}

void RuleCheck::checkEntries(const TlutData& palette) {
    const std::int32_t end =
        shape_.bits == 4 ? std::min(firstEntry_ + kBankSize, palette.count) : palette.count;
    if (rules_.firstEntryTransparent && firstEntry_ < end && palette.getAlpha(firstEntry_) != 0)
        add({Rule::FirstEntryTransparent, {}, firstEntry_, {palette.getAlpha(firstEntry_)}});
    if (!rules_.alphaZeroOrFull || palette.colourType != ColourType::Ia)
        return;
    for (std::int32_t entry = firstEntry_; entry < end; ++entry) {
        if (const std::uint8_t alpha = palette.getAlpha(entry); alpha != 0 && alpha != kFullAlpha)
            add({Rule::AlphaZeroOrFull, {}, entry, {alpha}});
    }
}

template <typename ValueAt>
void RuleCheck::countColours(const Rect& block, const ValueAt& valueAt) {
    const std::uint32_t number = ++block_;
    std::int32_t colours = 0;
    for (std::int32_t y = block.top; y <= block.bottom; ++y) {
        for (std::int32_t x = block.left; x <= block.right; ++x) {
            std::uint32_t& seen = seenIn_[valueAt(x, y)];
            colours += seen != number ? 1 : 0;
            seen = number;
        }
    }
    if (colours > rules_.blockColours->most)
        add({Rule::BlockColours, block, {}, {colours, rules_.blockColours->most}});
}

template <typename ValueAt>
void RuleCheck::checkBand(std::int32_t top, std::int32_t bottom, const ValueAt& valueAt) {
    const std::int32_t right = shape_.size.width - 1;
    if (rules_.blockColours) {
        const std::int32_t side = rules_.blockColours->side;
        for (std::int32_t left = 0; left <= right; left += side)
            countColours({left, top, std::min(left + side - 1, right), bottom}, valueAt);
    }
    if (entries_ == colours_)
        return;
    for (std::int32_t y = top; y <= bottom; ++y) {
        for (std::int32_t x = 0; x <= right; ++x) {
            const std::size_t index = valueAt(x, y);
            if (static_cast<std::int32_t>(index) < entries_)
                continue;
            Stray& stray = strays_[index];
            const Rect texel{x, y, x, y};
            stray.around = stray.texels == 0 ? texel : *unionOf(std::optional(stray.around), texel);
            ++stray.texels;
        }
    }
}

bool RuleCheck::step() {
    if (!looksAtTexels_ || canvas_ == nullptr)
        return false;
    const std::int32_t top = nextRow_;
    const std::int32_t bottom = std::min(top + bandHeight_, shape_.size.height) - 1;
    if (top > bottom) {
        addStrays();
        looksAtTexels_ = false;
        return false;
    }
    const ReadRows rows(*canvas_);
    if (shape_.bits == 8)
        checkBand(top, bottom, [&](std::int32_t x, std::int32_t y) { return std::size_t{rows[y][x]}; });
    else if (shape_.bits == 4)
        checkBand(top, bottom, [&](std::int32_t x, std::int32_t y) {
            return static_cast<std::size_t>(rows[y][x >> 1] >> (x % 2 == 0 ? 4 : 0)) & 15U;
        });
    else
        checkBand(top, bottom,
                  [this](std::int32_t x, std::int32_t y) { return std::size_t{canvas_->GetPixel(x, y)}; });
    nextRow_ = bottom + 1;
    return true;
}

void RuleCheck::addStrays() {
    for (std::int64_t index = 0; index < colours_; ++index) {
        const Stray& stray = strays_.at(static_cast<std::size_t>(index));
        if (stray.texels > 0)
            add({Rule::IndexesInPalette, stray.around, {}, {index, stray.texels, paletteCount_}});
    }
}

std::optional<RuleReport> checkRules(const TextureRules& rules, const TextureCanvas& canvas,
                                     const TlutData* palette, std::int32_t firstEntry,
                                     const std::function<bool()>& goesOn) {
    RuleCheck check(rules, canvas, palette, firstEntry);
    while (check.step()) {
        if (goesOn && !goesOn())
            return std::nullopt;
    }
    return check.report();
}

} // namespace dyeworks
