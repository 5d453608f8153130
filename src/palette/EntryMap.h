#pragma once

#include <array>
#include <cstdint>

namespace dyeworks {

struct TlutData;

/// Where each entry of a palette goes. It is kept index by index, because entries that are equal, twins, tell
/// nothing of it.
///
/// A permutation moves the entries, and the texels after them. Any other map brings the texels of several
/// entries together and leaves the entries alone.
class EntryMap {
public:
    static constexpr std::int32_t kMostEntries = 256;

    /// Everything stays. `count` is 0 to 256.
    explicit EntryMap(std::int32_t count);

    [[nodiscard]] std::int32_t count() const noexcept { return count_; }
    /// The new index of an entry, 0 to count - 1.
    [[nodiscard]] std::int32_t to(std::int32_t entry) const { return to_[static_cast<std::size_t>(entry)]; }
    /// Both must be entries.
    void set(std::int32_t entry, std::int32_t to) {
        to_[static_cast<std::size_t>(entry)] = static_cast<std::uint8_t>(to);
    }

    [[nodiscard]] bool isPermutation() const;
    /// How many entries do not stay.
    [[nodiscard]] std::int32_t moved() const;
    /// Puts the entries of a table of this count where a permutation says; needs no memory.
    void applyTo(TlutData& table) const;

private:
    std::array<std::uint8_t, kMostEntries> to_{};
    std::int32_t count_;
};

} // namespace dyeworks
