#pragma once

#include "core/ColourType.h"

#include <cstdint>
#include <string>

namespace dyeworks {

/// Entries that a 4-bit image shows, and the last of the banks in which a palette of 256 has them.
inline constexpr std::int32_t kBankSize = 16;
inline constexpr std::int32_t kLastBank = 15;

/// A palette's table. It is handed to plug-ins as it stands, so the fields and their order are fixed.
///
/// Setters and getters (all but `getEntry`) check 0 <= index < count first: outside it a setter changes
/// nothing and answers false, a getter answers 0. The same holds for a channel that the colour type lacks.
struct TlutData {
    TlutData() = default;
    TlutData(const TlutData& other);
    TlutData(TlutData&& other) noexcept;
    TlutData& operator=(const TlutData& other);
    TlutData& operator=(TlutData&& other) noexcept;
    ~TlutData();

    /// Builds `count` default entries: the sixteen default colours over and over (RGBA), a ramp of intensity
    /// with alpha 0 (IA), zeroes (any other type). False, leaving the record empty (count 0), for a negative
    /// count or when there is no memory.
    bool create(std::int32_t count, ColourType colourType);

    /// Frees the entries; the count becomes 0.
    void clear();

    [[nodiscard]] std::uint8_t getRed(std::int32_t index) const; ///< 0 to 31
    [[nodiscard]] std::uint8_t getGreen(std::int32_t index) const;
    [[nodiscard]] std::uint8_t getBlue(std::int32_t index) const;
    [[nodiscard]] std::uint8_t getIntensity(std::int32_t index) const; ///< 0 to 255
    [[nodiscard]] std::uint8_t getAlpha(std::int32_t index) const;     ///< RGBA: 0 or 1. IA: 0 to 255.
    /// The entry's 16 bits. `index` must be in range.
    [[nodiscard]] std::uint16_t getEntry(std::int32_t index) const;

    /// The low five bits of `value` count.
    bool setRed(std::int32_t index, std::int32_t value);
    bool setGreen(std::int32_t index, std::int32_t value);
    bool setBlue(std::int32_t index, std::int32_t value);
    /// The low eight bits count.
    bool setIntensity(std::int32_t index, std::int32_t value);
    /// RGBA: the lowest bit counts. IA: the low eight bits.
    bool setAlpha(std::int32_t index, std::int32_t value);
    bool setEntry(std::int32_t index, std::uint16_t entry);

    /// Whether both hold the same entries of the same colour type.
    [[nodiscard]] bool operator==(const TlutData& other) const;

    /// Copies the first min(count, source's count) entries and answers how many; 0 when there is no source
    /// or either record has no entries. Colour types are not compared.
    std::int32_t copyEntriesFrom(const TlutData* source);
    std::int32_t copyEntriesFrom(const TlutData& source) { return copyEntriesFrom(&source); }

    /// Replaces the record by the contents of a TLF file. A failure is shown in a message box; the record is
    /// unchanged when the file or its header was refused, and empty when its body was.
    bool readTlf(const std::string& path);
    /// Writes a TLF file (16 or 256 entries). A failure is shown in a message box.
    [[nodiscard]] bool saveTlf(const std::string& path) const;

    ColourType colourType = ColourType::Rgba;
    std::int32_t count = 0;
    std::uint16_t* entries = nullptr; ///< `count` entries in native byte order, owned.
};

} // namespace dyeworks
