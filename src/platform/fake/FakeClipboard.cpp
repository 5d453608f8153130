#include "platform/fake/FakeClipboard.h"

#include <utility>

namespace dyeworks {

bool FakeClipboard::offers(ClipboardFormat format) const {
    return format == ClipboardFormat::Bitmap ? bitmap_ || png_ || picture_ : text_.has_value();
}

bool FakeClipboard::setBitmap(std::span<const std::byte> dib) {
    if (busy)
        return false;
    clear();
    bitmap_.emplace(dib.begin(), dib.end());
    return true;
}

bool FakeClipboard::setText(const std::string& text) {
    if (busy)
        return false;
    clear();
    text_ = text;
    return true;
}

void FakeClipboard::offerPng(std::vector<std::byte> bytes) {
    clear();
    png_ = std::move(bytes);
}

void FakeClipboard::offerPicture(Picture picture) {
    clear();
    picture_ = std::move(picture);
}

void FakeClipboard::clear() {
    bitmap_.reset();
    png_.reset();
    picture_.reset();
    text_.reset();
}

} // namespace dyeworks
