#include "plugin/PlugInCall.h"

#include "plugin/PlugInRecords.h"

namespace dyeworks {

PlugInCall::~PlugInCall() {
    if (failed_)
        failures_.tellPlugInFailed(plugIn_.fileName);
}

const PlugInPicture* PlugInCall::pass(TmfImage* image, TlutData* palette, std::int32_t paletteNumber) {
    picture_ = {plainRecord(image), plainRecord(palette), 0, paletteNumber};
    if (picture_.image != nullptr)
        image_ = *picture_.image;
    if (picture_.palette != nullptr)
        palette_ = *picture_.palette;
    return &picture_;
}

void PlugInCall::restore() noexcept {
    if (::TmfImage* const now = picture_.image) {
        if (now->width != image_.width || now->height != image_.height || now->bits != image_.bits ||
            now->texels != image_.texels)
            fail();
        *now = image_;
    }
    if (::TlutData* const now = picture_.palette) {
        if (now->colourType != palette_.colourType || now->count != palette_.count ||
            now->entries != palette_.entries)
            fail();
        *now = palette_;
    }
}

} // namespace dyeworks
