#pragma once

#include "platform/Clipboard.h"

namespace dyeworks {

/// A clipboard of the process's own. As on a desktop, what is set replaces what was there, whatever its form.
class FakeClipboard final : public Clipboard {
public:
    /// True: the clipboard belongs to another program and cannot be taken.
    bool busy = false;

    [[nodiscard]] bool offers(ClipboardFormat format) const override;
    bool setBitmap(std::span<const std::byte> dib) override;
    [[nodiscard]] std::optional<std::vector<std::byte>> bitmap() const override { return bitmap_; }
    [[nodiscard]] std::optional<std::vector<std::byte>> png() const override { return png_; }
    [[nodiscard]] std::optional<Picture> picture() const override { return picture_; }
    /// What another program puts there.
    void offerPng(std::vector<std::byte> bytes);
    void offerPicture(Picture picture);
    bool setText(const std::string& text) override;
    [[nodiscard]] std::optional<std::string> text() const override { return text_; }
    void clear();

private:
    std::optional<std::vector<std::byte>> bitmap_;
    std::optional<std::vector<std::byte>> png_;
    std::optional<Picture> picture_;
    std::optional<std::string> text_;
};

} // namespace dyeworks
