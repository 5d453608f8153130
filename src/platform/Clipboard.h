#pragma once

#include "platform/Picture.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace dyeworks {

enum class ClipboardFormat { Bitmap, Text };

/// The desktop's clipboard. A bitmap is a packed device-independent one: info header, colour table and pixel
/// rows, little-endian, without a file header; its values pass through unchanged.
class Clipboard {
public:
    virtual ~Clipboard() = default;

    [[nodiscard]] virtual bool offers(ClipboardFormat format) const = 0;

    /// False when the clipboard could not be taken; it then keeps what it holds.
    virtual bool setBitmap(std::span<const std::byte> dib) = 0;
    [[nodiscard]] virtual std::optional<std::vector<std::byte>> bitmap() const = 0;

    /// The bytes of the PNG file that another program has put there; nothing when it has put none.
    [[nodiscard]] virtual std::optional<std::vector<std::byte>> png() const = 0;
    /// The picture that is there in any other form, alpha included where that has it; nothing when there is
    /// none, or one of a size that no picture has.
    [[nodiscard]] virtual std::optional<Picture> picture() const = 0;

    virtual bool setText(const std::string& text) = 0;
    [[nodiscard]] virtual std::optional<std::string> text() const = 0;
};

} // namespace dyeworks
