#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace dyeworks {

/// Walks over the bytes of a big-endian file. Beyond the end it finds zeroes and never leaves the span;
/// callers compare `left` first where a short file matters.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::byte> bytes)
        : rest_(bytes) {}

    [[nodiscard]] std::size_t left() const noexcept { return rest_.size(); }

    /// The next `size` bytes, or those that are left.
    std::span<const std::byte> take(std::size_t size) noexcept {
        const auto taken = rest_.first(std::min(size, rest_.size()));
        rest_ = rest_.subspan(taken.size());
        return taken;
    }

    std::uint16_t be16() noexcept { return static_cast<std::uint16_t>(bigEndian(2)); }
    std::uint32_t be32() noexcept { return bigEndian(4); }
    std::int32_t signed32() noexcept { return std::bit_cast<std::int32_t>(be32()); }

private:
    std::uint32_t bigEndian(std::size_t size) noexcept {
        std::uint32_t value = 0;
        const auto taken = take(size);
        for (std::size_t i = 0; i < size; ++i)
            value = value << 8 | (i < taken.size() ? std::to_integer<std::uint32_t>(taken[i]) : 0U);
        return value;
    }

    std::span<const std::byte> rest_;
};

/// Fills a span with a big-endian file from its start. What does not fit is dropped.
class ByteWriter {
public:
    explicit ByteWriter(std::span<std::byte> bytes)
        : rest_(bytes) {}

    [[nodiscard]] std::size_t left() const noexcept { return rest_.size(); }

    void be16(std::uint16_t value) noexcept { bigEndian(value, 2); }
    void be32(std::uint32_t value) noexcept { bigEndian(value, 4); }

    void zeroes(std::size_t size) noexcept {
        const auto target = take(size);
        if (!target.empty())
            std::memset(target.data(), 0, target.size());
    }

    void copy(std::span<const std::byte> bytes) noexcept {
        const auto target = take(bytes.size());
        if (!target.empty())
            std::memcpy(target.data(), bytes.data(), target.size());
    }

private:
    std::span<std::byte> take(std::size_t size) noexcept {
        const auto taken = rest_.first(std::min(size, rest_.size()));
        rest_ = rest_.subspan(taken.size());
        return taken;
    }

    void bigEndian(std::uint32_t value, std::size_t size) noexcept {
        const auto target = take(size);
        for (std::size_t i = 0; i < target.size(); ++i)
            target[i] = static_cast<std::byte>(value >> 8 * (size - 1 - i));
    }

    std::span<std::byte> rest_;
};

} // namespace dyeworks
