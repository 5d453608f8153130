#include "platform/fake/FakeClipboard.h"

namespace dyeworks {

bool FakeClipboard::offers(ClipboardFormat format) const {
    return format == ClipboardFormat::Bitmap ? bitmap_.has_value() : text_.has_value();
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

void FakeClipboard::clear() {
    bitmap_.reset();
    text_.reset();
}

} // namespace dyeworks
