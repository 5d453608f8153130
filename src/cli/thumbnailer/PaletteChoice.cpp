#include "cli/thumbnailer/PaletteChoice.h"

#include "cli/NamedFile.h"
#include "core/TlfFormat.h"
#include "platform/Platform.h"
#include "platform/posix/HostFile.h"

#include <array>
#include <cstddef>
#include <span>
#include <utility>

namespace dyeworks {

std::optional<TlutData> readPalette(FileReader& file) {
    std::array<std::byte, kLargestTlfSize> bytes;
    Result<TlutData, TlfError> palette = parseTlf(std::span(bytes).first(file.read(bytes)));
    return palette ? std::optional(std::move(palette).value()) : std::nullopt;
}

std::optional<TlutData> readPalette(const std::string& hostPath) {
    const auto file = openHostFile(hostPath);
    return file ? readPalette(*file.value()) : std::nullopt;
}

std::optional<TlutData> paletteFor(const std::string& image, const EditorSettings& settings) {
    const Files& files = platform().files();
    const std::string path = files.fromHostPath(image);
    const std::optional<std::string> attached = settings.attachedPalette(path);
    // One that was never saved has a name that is no path.
    if (attached && attached->front() != '*') {
        if (std::optional<TlutData> palette = readPalette(files.hostPath(*attached)))
            return palette;
    }
    // By way of the program's form a name is found that differs in case.
    const std::string folder = path.substr(0, path.rfind('\\') + 1);
    return readPalette(files.hostPath(folder + stemOf(image) + ".tlf"));
}

} // namespace dyeworks
