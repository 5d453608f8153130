#pragma once

#include "platform/Clipboard.h"

#include <QMetaObject>

#include <optional>

namespace dyeworks {

/// The desktop's clipboard. A bitmap travels as a BMP file ("image/bmp"), and beside it as a picture for
/// programs that take other forms, PNG foremost. A picture that another program offers without a BMP form, or
/// with one that is compressed, is turned into a bitmap of its own depth.
class QtClipboard : public Clipboard {
public:
    QtClipboard() = default;
    ~QtClipboard() override;
    QtClipboard(const QtClipboard&) = delete;
    QtClipboard& operator=(const QtClipboard&) = delete;

    /// The clipboard's owner, another program perhaps, is asked once for what it offers.
    [[nodiscard]] bool offers(ClipboardFormat format) const override;
    bool setBitmap(std::span<const std::byte> dib) override;
    [[nodiscard]] std::optional<std::vector<std::byte>> bitmap() const override;
    [[nodiscard]] std::optional<std::vector<std::byte>> png() const override;
    [[nodiscard]] std::optional<Picture> picture() const override;
    bool setText(const std::string& text) override;
    [[nodiscard]] std::optional<std::string> text() const override;

private:
    void followChanges() const;

    mutable QMetaObject::Connection changes_; ///< Forgets the answers below when the contents change.
    mutable std::optional<bool> offersText_;
    mutable std::optional<bool> offersBitmap_;
};

} // namespace dyeworks
