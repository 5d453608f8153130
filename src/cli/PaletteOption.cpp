#include "cli/PaletteOption.h"

#include "cli/CliTexts.h"
#include "cli/Console.h"
#include "cli/LoadedPicture.h"
#include "cli/NamedFile.h"
#include "paint/CanvasDepth.h"

#include <utility>

namespace dyeworks {

std::optional<TlutData> readPaletteOption(const std::string& name, std::int32_t bank, Console& console) {
    const Result<ByteBuffer, FileError> file = readNamed(name);
    if (!file) {
        console.fail(name, file.error());
        return std::nullopt;
    }
    Result<TlutData, std::string> palette = loadPalette(file.value().bytes(), name);
    if (!palette) {
        console.fail(name, palette.error());
        return std::nullopt;
    }
    if (bank > 0 && bank >= palette.value().count / kBankSize) {
        console.fail(name, say(CliText::NoSuchBank, {std::to_string(bank)}));
        return std::nullopt;
    }
    return std::move(palette).value();
}

} // namespace dyeworks
