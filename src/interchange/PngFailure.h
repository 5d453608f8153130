#pragma once

#include <png.h>

#include <array>

namespace dyeworks {

/// What libpng found wrong. It leaves by longjmp, so whoever calls libpng does so from a function of its own
/// that begins with setjmp and holds nothing with a destructor.
struct PngFailure {
    std::array<char, 128> reason{}; ///< English, ends with a zero.

    [[noreturn]] static void leave(png_structp png, png_const_charp reason);
    static void ignore(png_structp png, png_const_charp reason);
};

} // namespace dyeworks
