#include "interchange/PngFailure.h"

#include <cstring>

namespace dyeworks {

void PngFailure::leave(png_structp png, png_const_charp reason) {
    auto* const failure = static_cast<PngFailure*>(png_get_error_ptr(png));
    std::strncpy(failure->reason.data(), reason, failure->reason.size() - 1);
    png_longjmp(png, 1);
}

void PngFailure::ignore(png_structp /*png*/, png_const_charp /*reason*/) {}

} // namespace dyeworks
