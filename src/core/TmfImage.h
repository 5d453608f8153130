#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace dyeworks {

/// An image in memory. It is handed to plug-ins as it stands, so the fields, their order and the layout of
/// the block are fixed: rows aligned to 4 bytes and stored bottom-up, texels of 16 bits and more high byte
/// first, 4-bit texels two to a byte with the even x in the high nibble.
struct TmfImage {
    static constexpr std::int32_t kMaxSide = 65536; ///< Inclusive.

    TmfImage() = default;
    TmfImage(TmfImage&& other) noexcept;
    TmfImage& operator=(TmfImage&& other) noexcept;
    TmfImage(const TmfImage&) = delete;
    TmfImage& operator=(const TmfImage&) = delete;
    ~TmfImage();

    /// An image of zeroes. False, leaving the record all zero, unless both sides are 0 to 65536, `bits` is
    /// 4, 8, 16, 24 or 32 and there is memory for the block (at most 1 GiB).
    bool create(std::int32_t width, std::int32_t height, std::int32_t bits);
    /// The same with texels of undefined value, for a reader that fills the whole block.
    bool createUnfilled(std::int32_t width, std::int32_t height, std::int32_t bits);
    void clear();

    /// Whether `create` makes an image of these sides and depth, where there is memory for it.
    [[nodiscard]] static bool canBe(std::int32_t width, std::int32_t height, std::int32_t bits);

    /// (0, 0) is the top-left texel. 0 outside the image.
    [[nodiscard]] std::uint32_t getTexel(std::int32_t x, std::int32_t y) const;
    /// Stores the low bits of `value`. False outside the image.
    bool setTexel(std::int32_t x, std::int32_t y, std::uint32_t value);

    /// Replaces the record by the contents of a TMF file. A failure is shown in a message box and leaves the
    /// record all zero.
    bool readTmf(const std::string& path);
    /// Writes a TMF file (4 or 8 bits a texel). Failures are the caller's to report.
    [[nodiscard]] bool saveTmf(const std::string& path) const;

    /// Bytes from one row of the block to the next; 0 for a width or depth that no image has.
    [[nodiscard]] std::int64_t stride() const;
    /// Bytes in the whole block; 0 when `create` would refuse an image of these fields.
    [[nodiscard]] std::int64_t blockSize() const;

    /// Whether there is a block, of an image that `create` would make. A plug-in's record may hold anything.
    [[nodiscard]] bool holdsTexels() const;
    /// The block's bytes; none unless `holdsTexels`.
    [[nodiscard]] std::span<std::byte> block();
    [[nodiscard]] std::span<const std::byte> block() const;

    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t bits = 0;
    std::uint8_t* texels = nullptr; ///< The block, owned.

private:
    using Allocate = std::uint8_t* (*)(std::size_t size);
    bool createWith(Allocate allocate, std::int32_t newWidth, std::int32_t newHeight, std::int32_t newBits);
};

} // namespace dyeworks
