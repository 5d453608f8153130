#pragma once

#include "core/TlutData.h"
#include "paint/Rect.h"
#include "project/TextureRules.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace dyeworks {

class TextureCanvas;

/// In the order that they are listed in. Behind each: what the values of a finding are.
enum class Rule {
    LargestSize,           ///< Width, height; the largest of each.
    PowersOfTwo,           ///< Width, height.
    TexelBytes,            ///< Bytes, most bytes.
    BytesWithColours,      ///< Bytes, most bytes.
    BlockColours,          ///< Colours, most colours.
    FirstEntryTransparent, ///< Alpha.
    IndexesInPalette,      ///< Index, how many texels have it, entries that there are.
    AlphaZeroOrFull,       ///< Alpha.
};

/// Something that breaks a rule. Without texels and entry it is the image as a whole.
struct RuleFinding {
    Rule rule;
    std::optional<Rect> texels;        ///< Inclusive; around all of them where they lie apart.
    std::optional<std::int32_t> entry; ///< Of the palette.
    std::array<std::int64_t, 4> values;

    bool operator==(const RuleFinding&) const = default;
};

/// All findings of one rule.
struct RuleFindings {
    /// From the top left on, or by index or entry; no more than kMost of them.
    std::vector<RuleFinding> first;
    std::int64_t count = 0; ///< Of all.

    static constexpr std::size_t kMost = 100;
};

/// By `Rule`.
using RuleReport = std::array<RuleFindings, kRuleCount>;

/// What an image is without its texels.
struct ImageShape {
    Size size;
    std::int32_t bits = 0; ///< Per texel.
};

/// Checks an image against the rules, by and by, so that a large one need not be waited for. Without a
/// palette the rules about its entries say nothing, and neither do those about indexes above 8 bits.
class RuleCheck {
public:
    /// Whether the rules look at the texels of such an image, or its shape will do.
    [[nodiscard]] static bool needsTexels(const TextureRules& rules, const ImageShape& shape,
                                          const TlutData* palette, std::int32_t firstEntry);

    /// Of an image that is not at hand, whose rules need no texels. The report is whole at once.
    RuleCheck(const TextureRules& rules, const ImageShape& shape, const TlutData* palette,
              std::int32_t firstEntry);
    /// The canvas must outlive the check, keep its size and depth, and hold what is to be checked during each
    /// `step`. `palette`, or null, is looked at here alone. `firstEntry` is that of index 0 at 4 bits.
    RuleCheck(const TextureRules& rules, const TextureCanvas& canvas, const TlutData* palette,
              std::int32_t firstEntry);

    /// Looks at some more rows. False when there were none left: the report is whole.
    bool step();
    [[nodiscard]] const RuleReport& report() const noexcept { return report_; }

private:
    struct Stray {
        std::int64_t texels = 0;
        Rect around;
    };

    RuleCheck(const TextureRules& rules, const ImageShape& shape, const TextureCanvas* canvas,
              const TlutData* palette, std::int32_t firstEntry);
    void add(const RuleFinding& finding);
    void checkSize();
    void checkBytes(const TlutData* palette);
    void checkEntries(const TlutData& palette);
    void addStrays();
    template <typename ValueAt>
    void checkBand(std::int32_t top, std::int32_t bottom, const ValueAt& valueAt);
    template <typename ValueAt>
    void countColours(const Rect& block, const ValueAt& valueAt);

    TextureRules rules_;
    ImageShape shape_;
    const TextureCanvas* canvas_; ///< Null where it is not looked at.
    std::int32_t firstEntry_;
    RuleReport report_;
    bool looksAtTexels_ = false;
    std::int32_t nextRow_ = 0;
    std::int32_t bandHeight_;
    std::int32_t paletteCount_ = 0;
    std::int32_t entries_ = 0;                ///< From the first entry on.
    std::int32_t colours_ = 0;                ///< That an index can tell apart.
    std::array<Stray, 256> strays_{};         ///< By index: texels whose entry is missing.
    std::array<std::uint32_t, 256> seenIn_{}; ///< By index: number of the last block that has it.
    std::uint32_t block_ = 0;
};

/// The same in one go. Nothing when `goesOn`, which is asked now and then, says no.
[[nodiscard]] std::optional<RuleReport> checkRules(const TextureRules& rules, const TextureCanvas& canvas,
                                                   const TlutData* palette, std::int32_t firstEntry,
                                                   const std::function<bool()>& goesOn = {});

} // namespace dyeworks
