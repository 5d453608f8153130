#include "core/TlutData.h"

#include "core/PlainArray.h"
#include "core/Report.h"
#include "core/TlfFormat.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstring>
#include <new>
#include <optional>
#include <span>
#include <type_traits>
#include <utility>

namespace dyeworks {

static_assert(std::is_standard_layout_v<TlutData> && offsetof(TlutData, colourType) == 0 &&
                  offsetof(TlutData, count) == 4 && offsetof(TlutData, entries) == 8,
              "plug-ins rely on this layout");

namespace {

constexpr std::array<std::uint16_t, 16> kDefaultColours = {
    0x0000, 0x7800, 0x03C0, 0x7BC0, 0x001E, 0x781E, 0x03DE, 0x7BDE,
    0xBDEE, 0xF800, 0x07C0, 0xFFC0, 0x003E, 0xF83E, 0x07FE, 0xFFFE,
};

/// Where a channel lies in an entry.
struct Channel {
    unsigned shift;
    unsigned mask; ///< Before the shift: 31 for five bits.
};

constexpr Channel kRed{11, 0x1F};
constexpr Channel kGreen{6, 0x1F};
constexpr Channel kBlue{1, 0x1F};
constexpr Channel kAlphaBit{0, 0x01};
constexpr Channel kIntensity{8, 0xFF};
constexpr Channel kAlphaByte{0, 0xFF};

bool inRange(const TlutData& table, std::int32_t index) {
    return table.entries != nullptr && index >= 0 && index < table.count;
}

bool hasChannel(const TlutData& table, std::int32_t index, ColourType owner) {
    return table.colourType == owner && inRange(table, index);
}

std::uint8_t get(const TlutData& table, std::int32_t index, ColourType owner, Channel channel) {
    if (!hasChannel(table, index, owner))
        return 0;
    return static_cast<std::uint8_t>((table.entries[index] >> channel.shift) & channel.mask);
}

bool set(TlutData& table, std::int32_t index, ColourType owner, Channel channel, std::int32_t value) {
    if (!hasChannel(table, index, owner))
        return false;
    const unsigned kept = table.entries[index] & ~(channel.mask << channel.shift);
    const unsigned put = (static_cast<unsigned>(value) & channel.mask) << channel.shift;
    table.entries[index] = static_cast<std::uint16_t>(kept | put);
    return true;
}

/// Entry `index` of a ramp over `count` intensities that ends at 255.
std::uint16_t rampEntry(std::int32_t index, std::int32_t count) {
    const auto intensity = static_cast<std::int32_t>((index + 1.0) * 256.0 / count - 1.0);
    return static_cast<std::uint16_t>((intensity & 0xFF) << kIntensity.shift);
}

} // namespace

TlutData::TlutData(const TlutData& other) {
    *this = other;
}

TlutData::TlutData(TlutData&& other) noexcept
    : colourType(other.colourType)
    , count(std::exchange(other.count, 0))
    , entries(std::exchange(other.entries, nullptr)) {}

TlutData& TlutData::operator=(const TlutData& other) {
    if (this == &other)
        return *this;
    // A damaged record may count entries that it does not have.
    if (create(other.entries == nullptr ? 0 : other.count, other.colourType))
        copyEntriesFrom(other);
    return *this;
}

TlutData& TlutData::operator=(TlutData&& other) noexcept {
    if (this == &other)
        return *this;
    clear();
    colourType = other.colourType;
    count = std::exchange(other.count, 0);
    entries = std::exchange(other.entries, nullptr);
    return *this;
}

TlutData::~TlutData() {
    clear();
}

bool TlutData::create(std::int32_t newCount, ColourType newType) {
    clear();
    colourType = newType;
    if (newCount < 0)
        return false;
    entries = allocatePlainArray<std::uint16_t>(static_cast<std::size_t>(newCount));
    if (entries == nullptr)
        return false;
    count = newCount;
    if (colourType == ColourType::Rgba) {
        for (std::int32_t i = 0; i < count; ++i)
            entries[i] = kDefaultColours[static_cast<std::size_t>(i) % kDefaultColours.size()];
    } else if (colourType == ColourType::Ia) {
        for (std::int32_t i = 0; i < count; ++i)
            entries[i] = rampEntry(i, count);
    }
    return true;
}

void TlutData::clear() {
    freePlainArray(entries);
    count = 0;
}

std::uint8_t TlutData::getRed(std::int32_t index) const {
    return get(*this, index, ColourType::Rgba, kRed);
}

std::uint8_t TlutData::getGreen(std::int32_t index) const {
    return get(*this, index, ColourType::Rgba, kGreen);
}

std::uint8_t TlutData::getBlue(std::int32_t index) const {
    return get(*this, index, ColourType::Rgba, kBlue);
}

std::uint8_t TlutData::getIntensity(std::int32_t index) const {
    return get(*this, index, ColourType::Ia, kIntensity);
}

std::uint8_t TlutData::getAlpha(std::int32_t index) const {
    return colourType == ColourType::Rgba ? get(*this, index, ColourType::Rgba, kAlphaBit)
                                          : get(*this, index, ColourType::Ia, kAlphaByte);
}

std::uint16_t TlutData::getEntry(std::int32_t index) const {
    assert(inRange(*this, index));
    return entries[index];
}

bool TlutData::setRed(std::int32_t index, std::int32_t value) {
    return set(*this, index, ColourType::Rgba, kRed, value);
}

bool TlutData::setGreen(std::int32_t index, std::int32_t value) {
    return set(*this, index, ColourType::Rgba, kGreen, value);
}

bool TlutData::setBlue(std::int32_t index, std::int32_t value) {
    return set(*this, index, ColourType::Rgba, kBlue, value);
}

bool TlutData::setIntensity(std::int32_t index, std::int32_t value) {
    return set(*this, index, ColourType::Ia, kIntensity, value);
}

bool TlutData::setAlpha(std::int32_t index, std::int32_t value) {
    return colourType == ColourType::Rgba ? set(*this, index, ColourType::Rgba, kAlphaBit, value)
                                          : set(*this, index, ColourType::Ia, kAlphaByte, value);
}

bool TlutData::setEntry(std::int32_t index, std::uint16_t entry) {
    if (!inRange(*this, index))
        return false;
    entries[index] = entry;
    return true;
}

bool TlutData::operator==(const TlutData& other) const {
    if (colourType != other.colourType || count != other.count)
        return false;
    if (entries == nullptr || other.entries == nullptr)
        return entries == other.entries;
    return std::equal(entries, entries + count, other.entries);
}

std::int32_t TlutData::copyEntriesFrom(const TlutData* source) {
    if (source == nullptr || source->entries == nullptr || entries == nullptr)
        return 0;
    const std::int32_t copied = std::min(count, source->count);
    if (copied <= 0)
        return 0;
    // A palette may be copied onto itself, or a plug-in may hand two records over one array.
    std::memmove(entries, source->entries, static_cast<std::size_t>(copied) * sizeof(std::uint16_t));
    return copied;
}

bool TlutData::readTlf(const std::string& path) {
    auto file = platform().files().openForReading(path);
    if (!file) {
        reportTlf(text(StringId::FormatOpenFailed, {displayPath(path)}),
                  describe(file.error()) + ' ' + adviceOnOpening(file.error()));
        return false;
    }
    std::array<std::byte, kLargestTlfSize> bytes;
    auto parsed = parseTlf(std::span(bytes).first(file.value()->read(bytes)));
    if (parsed) {
        *this = std::move(parsed).value();
        return true;
    }
    switch (parsed.error()) {
    case TlfError::ShortHeader:
        reportTlf(text(StringId::TlfHeaderSize, {displayPath(path)}));
        break;
    case TlfError::BadHeader:
        reportTlf(text(StringId::TlfHeaderInformation, {displayPath(path)}));
        break;
    case TlfError::NoMemory:
        clear();
        reportTlf(text(StringId::TlfCreateFailed, {displayPath(path)}));
        break;
    case TlfError::ShortBody:
        clear();
        reportTlf(text(StringId::TlfBodySize, {displayPath(path)}));
        break;
    }
    return false;
}

bool TlutData::saveTlf(const std::string& path) const {
    std::optional<ByteBuffer> file;
    try {
        file = serialiseTlf(*this);
    } catch (const std::bad_alloc&) {
        reportTlf(text(StringId::FormatOpenFailed, {displayPath(path)}), adviceOnSaving(FileError::TooLarge));
        return false;
    }
    if (!file) {
        reportTlf(text(StringId::TlfIllegalCount, {std::to_string(count)}));
        return false;
    }
    if (const auto error = platform().files().write(path, file->bytes())) {
        reportTlf(text(StringId::FormatOpenFailed, {displayPath(path)}),
                  describe(*error) + ' ' + adviceOnSaving(*error));
        return false;
    }
    return true;
}

} // namespace dyeworks
