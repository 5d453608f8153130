#include "bench/reduction_programs/Ciede2000.h"
#include "interchange/ColourReduction.h"
#include "interchange/EntryColour.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

// What bench/reduction runs: reduces a picture as the program does, and measures how far one picture is from
// another.

namespace dyeworks {

namespace {

constexpr png_uint_32 kThreshold = 128;

[[noreturn]] void fail(const std::string& text) {
    std::fprintf(stderr, "%s\n", text.c_str());
    std::exit(1);
}

Picture read(const std::string& path) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&image, path.c_str()) == 0)
        fail(path + ": " + image.message);
    image.format = PNG_FORMAT_RGBA;
    Picture picture;
    picture.width = static_cast<std::int32_t>(image.width);
    picture.height = static_cast<std::int32_t>(image.height);
    picture.pixels.resize(std::size_t{image.width} * image.height);
    if (png_image_finish_read(&image, nullptr, picture.pixels.data(), 0, nullptr) == 0)
        fail(path + ": " + image.message);
    return picture;
}

void write(const std::string& path, const Picture& picture, const ReducedPicture& reduced) {
    std::array<std::array<png_byte, 4>, 256> colours{};
    for (std::size_t i = 0; i < reduced.entries.size(); ++i) {
        const Colour colour = colourOf(ColourType::Rgba, reduced.entries[i]);
        colours[i] = {colour.red, colour.green, colour.blue, colour.alpha};
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGBA_COLORMAP;
    image.colormap_entries = static_cast<png_uint_32>(reduced.entries.size());
    if (png_image_write_to_file(&image, path.c_str(), 0, reduced.indices.data(), 0, colours.data()) == 0)
        fail(path + ": " + image.message);
}

int reduce(const std::string& from, int colours, const std::string& to, const std::string& dither) {
    const Picture picture = read(from);
    ReductionOptions options;
    options.colours = colours;
    options.alphaThreshold = kThreshold;
    options.dither = dither == "ordered"     ? Dither::Ordered
                     : dither == "diffusion" ? Dither::ErrorDiffusion
                                             : Dither::None;
    const auto begin = std::chrono::steady_clock::now();
    const auto reduced = reduceColours(picture, options);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    if (!reduced)
        fail(from + ": cannot be reduced");
    write(to, picture, reduced.value());
    std::printf("%.2f\n", time.count());
    return 0;
}

/// What the display shows of the entry that is nearest in each channel, or that the colour is exactly.
Colour shownOf(Colour colour) {
    return colourOf(ColourType::Rgba, entryOf(ColourType::Rgba, colour));
}

/// The mean over the pixels that are visible in the first picture; of the second, what five bits show.
int difference(const std::string& original, const std::string& result) {
    const Picture first = read(original);
    const Picture second = read(result);
    if (first.pixels.size() != second.pixels.size())
        fail(result + ": has another size");
    double sum = 0;
    double count = 0;
    for (std::size_t i = 0; i < first.pixels.size(); ++i) {
        if (first.pixels[i].alpha < kThreshold)
            continue;
        sum += ciede2000(first.pixels[i], shownOf(second.pixels[i]));
        ++count;
    }
    std::printf("%.4f\n", sum / std::max(count, 1.0));
    return 0;
}

} // namespace

} // namespace dyeworks

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() >= 4 && arguments[0] == "reduce")
        return dyeworks::reduce(arguments[1], std::atoi(arguments[2].c_str()), arguments[3],
                                arguments.size() > 4 ? arguments[4] : "none");
    if (arguments.size() == 3 && arguments[0] == "difference")
        return dyeworks::difference(arguments[1], arguments[2]);
    std::fprintf(stderr, "reduce IN COLOURS OUT [none|ordered|diffusion]: prints milliseconds\n"
                         "difference ORIGINAL RESULT: prints the mean CIEDE2000\n");
    return 1;
}
