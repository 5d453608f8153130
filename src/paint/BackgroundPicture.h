#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

/// The picture that is laid out in tiles behind the documents of the main window.
struct BackgroundPicture {
    /// Looked for in the current directory.
    static constexpr const char* kFileName = "!bg.bmp";

    std::int32_t width = 0;
    std::int32_t height = 0;
    std::vector<std::uint32_t> pixels; ///< Top row first, each 0xffRRGGBB in native byte order.

    [[nodiscard]] bool empty() const noexcept { return pixels.empty(); }

    /// Reads an uncompressed bitmap of any usual depth. Empty when that cannot be had; only a compressed
    /// bitmap is reported.
    [[nodiscard]] static BackgroundPicture read(const std::string& path);
};

} // namespace dyeworks
