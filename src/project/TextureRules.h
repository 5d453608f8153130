#pragma once

#include "paint/Rect.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

class CKeyValueStore;

/// What images must keep to; all rules are off at first. Sizes are texels.
struct TextureRules {
    static constexpr std::int32_t kLongestSide = 65536;
    static constexpr std::int32_t kMostBytes = 1 << 30;
    static constexpr std::int32_t kMostColours = 256;
    static constexpr std::int32_t kSmallestBlock = 2;
    static constexpr std::int32_t kLargestBlock = 64;

    /// Of the image, each side for itself, 1 to kLongestSide.
    std::optional<Size> largestSize;
    /// Both sides are powers of two; 1 is one.
    bool powersOfTwo = false;
    /// Bytes of the image's texels as its file holds them: rows of whole bytes one behind the other, the end
    /// filled up to a multiple of four; 1 to kMostBytes.
    std::optional<std::int32_t> texelBytes;
    /// The same and two bytes for each entry that goes with the image: the 16 of its bank, or, at 8 bits, all
    /// of its palette.
    std::optional<std::int32_t> bytesWithColours;
    /// Of each block of `side` by `side` texels, counted from the top left corner; those at the right and the
    /// bottom edge may be smaller.
    struct BlockColours {
        std::int32_t most = 4; ///< Different indexes, 1 to kMostColours.
        std::int32_t side = 8; ///< kSmallestBlock to kLargestBlock.
        bool operator==(const BlockColours&) const = default;
    };
    std::optional<BlockColours> blockColours;
    /// The entry that index 0 shows, at 4 bits the first of the bank, has alpha 0.
    bool firstEntryTransparent = false;
    /// Every texel's entry exists in the palette; at 4 bits that is the index behind the bank's first.
    bool indexesInPalette = false;
    /// Of the entries that go with the image, none is half transparent: an IA entry's alpha is 0 or 255. An
    /// RGBA entry keeps to it whatever it holds.
    bool alphaZeroOrFull = false;

    bool operator==(const TextureRules&) const = default;
    /// Whether any is on.
    [[nodiscard]] bool any() const { return *this != TextureRules{}; }
};

/// A rule as text, to be kept: its name, and its value, which is none while the rule is off.
struct RuleText {
    std::string name;
    std::optional<std::string> value;
};
constexpr std::size_t kRuleCount = 8;
[[nodiscard]] std::array<RuleText, kRuleCount> textsOf(const TextureRules& rules);

// Rules of a project: values of its store, named "Rules." and the rule's name ("Rules.LargestSize = 256
// 128").
/// A value that makes no sense leaves its rule off.
[[nodiscard]] TextureRules readRules(const CKeyValueStore& store);
/// Gives the store these rules and takes the values of the others away, damaged ones included. False: it held
/// just these.
bool writeRules(CKeyValueStore& store, const TextureRules& rules);

// Rules of images that are no pictures of the open project: settings, section "Rules".
[[nodiscard]] TextureRules defaultRules();
void setDefaultRules(const TextureRules& rules);

} // namespace dyeworks
