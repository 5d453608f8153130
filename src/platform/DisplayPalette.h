#pragma once

#include <cstdint>
#include <vector>

namespace dyeworks {

struct PaletteEntry {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t flags = 0;
    bool operator==(const PaletteEntry&) const = default;
};

/// The description from which a display palette is made.
struct LogPalette {
    std::uint16_t version = 0x300;
    std::uint16_t entryCount = 0;
    std::vector<PaletteEntry> entries;
};

/// A display palette object. Every display that this program runs on shows all colours at once, so realising
/// one changes nothing on screen; the object keeps the colours that a view asked for.
class DisplayPalette {
public:
    /// Attaches the described palette. False, changing nothing, when the object already holds one or the
    /// description's count does not match its entries or is 0.
    bool create(const LogPalette& description);
    void release();

    [[nodiscard]] bool valid() const noexcept { return !entries_.empty(); }
    [[nodiscard]] const std::vector<PaletteEntry>& entries() const noexcept { return entries_; }

private:
    std::vector<PaletteEntry> entries_;
};

} // namespace dyeworks
