#include "cli/RenderCommand.h"

#include "cli/Console.h"
#include "cli/FileKind.h"
#include "cli/NamedFile.h"
#include "cli/Options.h"
#include "cli/PaletteOption.h"
#include "cli/PictureWork.h"
#include "cli/ProjectFile.h"
#include "cli/TrueColourPng.h"
#include "paint/CanvasDepth.h"
#include "paint/ViewGeometry.h"

#include <utility>

namespace dyeworks {

void RenderCommand::declare(Options& options) {
    options.file("IMAGE|PROJECT", input_, CliText::RenderInput);
    options.requiredText("-o,--output", output_, CliText::TypeFile, CliText::RenderOutput);
    options.text("-p,--palette", palette_, CliText::TypeFile, CliText::RenderPalette);
    options.number("-b,--bank", bank_, 0, 15, CliText::TypeNumber, CliText::ConvertBank);
    options.number("-z,--zoom", zoom_, ViewGeometry::kMinZoom, ViewGeometry::kMaxZoom, CliText::TypeNumber,
                   CliText::RenderZoom);
    options.flag("--grid", look_.grid, CliText::RenderGrid);
    options.flag("--alpha", look_.alphaView, CliText::RenderAlpha);
    options.flag("--checkerboard", look_.checkerboard, CliText::RenderCheckerboard);
    options.number("--columns", columns_, 1, 4096, CliText::TypeNumber, CliText::RenderColumns);
    options.number("--side", side_, 8, 1024, CliText::TypeNumber, CliText::RenderSide);
}

bool RenderCommand::attach(LoadedPicture& picture, Console& console) const {
    if (!palette_)
        return true;
    picture.palette = readPaletteOption(*palette_, bank_.value_or(0), console);
    if (!picture.palette)
        return false;
    picture.firstEntry = kBankSize * bank_.value_or(0);
    return true;
}

std::optional<PixelSheet> RenderCommand::renderImage(std::span<const std::byte> file, Console& console) {
    Result<LoadedPicture, std::string> picture = loadPicture(file, input_);
    if (!picture) {
        console.fail(input_, picture.error());
        return std::nullopt;
    }
    if (const auto fault = workOn(picture.value(), {})) {
        console.fail(input_, *fault);
        return std::nullopt;
    }
    if (!attach(picture.value(), console))
        return std::nullopt;
    look_.zoom = zoom_.value_or(1);
    Result<PixelSheet, std::string> sheet = render(picture.value(), look_);
    if (!sheet) {
        console.fail(input_, sheet.error());
        return std::nullopt;
    }
    return std::move(sheet).value();
}

std::optional<PixelSheet> RenderCommand::renderProject(Console& console) const {
    const Result<std::unique_ptr<CTPFFile>, FileError> project = readProject(input_);
    if (!project) {
        console.fail(input_, project.error());
        return std::nullopt;
    }
    std::vector<MissingPicture> missing;
    Result<PixelSheet, std::string> sheet =
        contactSheet(*project.value(), {columns_.value_or(0), side_.value_or(64)}, missing);
    for (const MissingPicture& picture : missing)
        console.fail(picture.file, picture.why);
    if (!sheet) {
        console.fail(input_, sheet.error());
        return std::nullopt;
    }
    return std::move(sheet).value();
}

ExitCode RenderCommand::run(Console& console) {
    const bool isProject = endingOf(input_) == "tpf";
    std::optional<PixelSheet> sheet;
    if (isProject) {
        sheet = renderProject(console);
    } else {
        const Result<ByteBuffer, FileError> file = readNamed(input_);
        if (!file)
            console.fail(input_, file.error());
        else
            sheet = renderImage(file.value().bytes(), console);
    }
    if (!sheet)
        return ExitCode::Files;
    const std::string png = trueColourPng(sheet->width, sheet->height, sheet->pixels);
    if (png.empty()) {
        console.fail(output_, say(CliText::OutOfMemory));
        return ExitCode::Files;
    }
    if (const auto error = writeNamed(output_, bytesOf(png)))
        console.fail(output_, *error);
    return ExitCode::Done;
}

} // namespace dyeworks
