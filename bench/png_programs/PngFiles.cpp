// Converts a folder of textures to PNG files, as an export of a project does: every TMF file with the TLF
// file of the same name. Prints how many and how long, reading and writing included.

#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "interchange/PngFile.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

namespace {

using namespace dyeworks;

std::vector<std::byte> bytesOf(const std::filesystem::path& path) {
    std::vector<std::byte> bytes(static_cast<std::size_t>(std::filesystem::file_size(path)));
    std::ifstream(path, std::ios::binary)
        .read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

bool convert(std::filesystem::path texture, const std::filesystem::path& target) {
    const auto image = parseTmf(bytesOf(texture));
    const auto palette = parseTlf(bytesOf(texture.replace_extension(".tlf")));
    if (!image || !palette)
        return false;
    const auto png = writePng(image.value(), &palette.value(), 0);
    if (!png)
        return false;
    std::ofstream file(target / texture.filename().replace_extension(".png"), std::ios::binary);
    file.write(reinterpret_cast<const char*>(png.value().data()),
               static_cast<std::streamsize>(png.value().size()));
    return file.good();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: dyeworks_png_files FOLDER TARGET\n", stderr);
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    int done = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        if (entry.path().extension() != ".tmf")
            continue;
        if (!convert(entry.path(), argv[2])) {
            std::fprintf(stderr, "%s cannot be converted\n", entry.path().c_str());
            return 1;
        }
        ++done;
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::printf("%d files, %.1f ms\n", done, time.count());
    return 0;
}
