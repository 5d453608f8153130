#include "cli/ConvertCommand.h"

#include "cli/Console.h"
#include "cli/FileKind.h"
#include "cli/NamedFile.h"
#include "cli/Options.h"
#include "cli/PaletteOption.h"
#include "interchange/TextureSource.h"
#include "paint/CanvasDepth.h"

#include <bit>
#include <utility>

namespace dyeworks {

void ConvertCommand::declare(Options& options) {
    options.files("IN", inputs_, CliText::ConvertInputs);
    options.requiredText("-o,--output", output_, CliText::TypeOutput, CliText::ConvertOutput);
    options.choice("-f,--format", format_, outputFormatNames(), CliText::TypeFormat, CliText::ConvertFormat);
    options.text("-p,--palette", palette_, CliText::TypeFile, CliText::ConvertPalette);
    options.number("-b,--bank", work_.bank, 0, 15, CliText::TypeNumber, CliText::ConvertBank);
    options.text("--palette-out", paletteOut_, CliText::TypeOutput, CliText::ConvertPaletteOut);
    options.value(
        "--crop", [this](const std::string& text) { return (work_.crop = parsePart(text)).has_value(); },
        CliText::TypePart, CliText::ConvertCrop);
    options.value(
        "--resize", [this](const std::string& text) { return (work_.size = parseSize(text)).has_value(); },
        CliText::TypeSize, CliText::ConvertResize);
    options.choice("--turn", turn_, {"left", "right", "half"}, CliText::TypeWay, CliText::ConvertTurn);
    options.choice("--depth", depth_, {"4", "8"}, CliText::TypeNumber, CliText::ConvertDepth);
    options.number("--colours", work_.colours, 2, 256, CliText::TypeNumber, CliText::ConvertColours);
    options.choice("--type", type_, {"rgba", "ia"}, CliText::TypeWay, CliText::ConvertType);
    options.choice("--dither", dither_, {"none", "ordered", "diffusion"}, CliText::TypeWay,
                   CliText::ConvertDither);
    options.text("--name", name_, CliText::TypeName, CliText::ConvertName);
    options.number("--align", alignment_, 1, 4096, CliText::TypeNumber, CliText::ConvertAlign);
    options.flag("--whole-palette", wholePalette_, CliText::ConvertWholePalette);
    options.footer(CliText::ConvertFooter);
}

/// False when the options do not go together or the palette cannot be read.
bool ConvertCommand::settleWork(Console& console) {
    if (depth_)
        work_.bits = *depth_ == 0 ? 4 : 8;
    if (type_)
        work_.type = *type_ == 0 ? ColourType::Rgba : ColourType::Ia;
    work_.dither = static_cast<Dither>(dither_.value_or(0));
    if (turn_)
        work_.turn = static_cast<Turn>(*turn_);
    if (alignment_ && !std::has_single_bit(static_cast<std::uint32_t>(*alignment_))) {
        console.refuse(say(CliText::WrongValue, {"--align", std::to_string(*alignment_)}));
        return false;
    }
    if (!palette_)
        return true;
    work_.palette = readPaletteOption(*palette_, work_.bank.value_or(0), console);
    return work_.palette.has_value();
}

bool ConvertCommand::goesIntoFolder() const {
    return output_ != kStandardStream && (inputs_.size() > 1 || output_.ends_with('/') || isFolder(output_));
}

std::optional<ConvertCommand::Place> ConvertCommand::placeOf(const std::string& input,
                                                             Console& console) const {
    const std::optional<OutputFormat> format =
        format_ ? std::optional(static_cast<OutputFormat>(*format_)) : outputFormatFor(endingOf(output_));
    if (!format || (goesIntoFolder() && !format_)) {
        console.refuse(say(CliText::FormatMissing));
        return std::nullopt;
    }
    if (output_ == kStandardStream)
        return Place{*format, kStandardStream, output_};
    if (goesIntoFolder())
        return Place{*format, inFolder(output_, stemOf(input == kStandardStream ? "stdin" : input)), {}};
    return Place{*format, output_.substr(0, output_.size() - lastPartOf(output_).size()) + stemOf(output_),
                 output_};
}

SourceOptions ConvertCommand::sourceOptions(const std::string& stem) const {
    SourceOptions options;
    options.name = identifierOf(name_.value_or(stem == kStandardStream ? "texture" : lastPartOf(stem)));
    options.alignment = alignment_.value_or(options.alignment);
    options.wholePalette = wholePalette_;
    return options;
}

/// Writes the files of an output. False when one of them cannot be had.
bool ConvertCommand::write(const std::string& input, const Place& place,
                           const Result<OutputFiles, std::string>& files, Console& console) {
    if (!files) {
        console.fail(input, files.error());
        return false;
    }
    for (const OutputFile& file : files.value()) {
        const bool isFirst = &file == &files.value().front();
        if (place.stem == kStandardStream && files.value().size() > 1) {
            console.fail(input, say(CliText::TwoFilesIntoOne));
            return false;
        }
        const std::string target =
            isFirst && !place.whole.empty() ? place.whole : place.stem + "." + file.ending;
        if (target != kStandardStream && !written_.insert(target).second) {
            console.fail(input, say(CliText::WrittenTwice, {target}));
            return false;
        }
        if (const std::optional<FileError> error = writeNamed(target, bytesOf(file.bytes))) {
            console.fail(target, *error);
            return false;
        }
    }
    return true;
}

bool ConvertCommand::writePalette(const std::string& input, const LoadedPicture& picture, Console& console) {
    if (!paletteOut_)
        return true;
    if (!picture.palette) {
        console.fail(input, say(CliText::BringsNoPalette));
        return false;
    }
    const bool intoFolder = paletteOut_->ends_with('/') || isFolder(*paletteOut_);
    const std::string name = intoFolder ? inFolder(*paletteOut_, stemOf(input)) : *paletteOut_;
    return write(input, {OutputFormat::Tlf, name, intoFolder ? std::string() : name},
                 outputOf(OutputFormat::Tlf, *picture.palette, 0, picture.palette->count, name), console);
}

bool ConvertCommand::convert(const std::string& input, const Place& place, Console& console) {
    const Result<ByteBuffer, FileError> file = readNamed(input);
    if (!file) {
        console.fail(input, file.error());
        return false;
    }
    const std::span<const std::byte> bytes = file.value().bytes();
    const FileKind kind = kindOf(bytes, input);
    const std::string stem = lastPartOf(place.stem);
    if (kind == FileKind::Palette || kind == FileKind::PaletteFile) {
        const Result<TlutData, std::string> palette = loadPalette(bytes, input);
        if (!palette) {
            console.fail(input, palette.error());
            return false;
        }
        const std::int32_t count = palette.value().count;
        const bool isBank = work_.bank && count > kBankSize;
        return write(input, place,
                     outputOf(place.format, palette.value(), isBank ? kBankSize * *work_.bank : 0,
                              isBank ? kBankSize : count, stem),
                     console);
    }
    Result<LoadedPicture, std::string> loaded = loadPicture(bytes, input);
    if (!loaded) {
        console.fail(input, loaded.error());
        return false;
    }
    LoadedPicture& picture = loaded.value();
    if (picture.report.rounded > 0)
        console.note(input + ": " + say(CliText::ColoursRounded, {std::to_string(picture.report.rounded)}));
    if (const std::optional<std::string> fault = workOn(picture, work_)) {
        console.fail(input, *fault);
        return false;
    }
    const TlutData* const palette = picture.palette ? &*picture.palette : nullptr;
    return write(input, place,
                 outputOf(place.format, picture.image, palette, picture.firstEntry, sourceOptions(place.stem),
                          stem),
                 console) &&
           writePalette(input, picture, console);
}

ExitCode ConvertCommand::run(Console& console) {
    if (palette_ && work_.colours) {
        console.refuse(say(CliText::NotTogether, {"--palette", "--colours"}));
        return ExitCode::Usage;
    }
    if (inputs_.size() > 1 && output_ == kStandardStream) {
        console.refuse(say(CliText::ManyIntoOne));
        return ExitCode::Usage;
    }
    if (!settleWork(console))
        return console.hasFailed() ? ExitCode::Files : ExitCode::Usage;
    if (goesIntoFolder()) {
        if (const std::optional<FileError> error = makeFolder(output_)) {
            console.fail(output_, *error);
            return ExitCode::Files;
        }
    }
    std::int64_t done = 0;
    std::int64_t looked = 0;
    for (const std::string& input : inputs_) {
        const std::optional<Place> place = placeOf(input, console);
        if (!place)
            return ExitCode::Usage;
        done += convert(input, *place, console) ? 1 : 0;
        console.progress(++looked, static_cast<std::int64_t>(inputs_.size()));
    }
    if (inputs_.size() > 1)
        console.note(
            say(CliText::ConvertDone,
                {std::to_string(done), std::to_string(inputs_.size() - static_cast<std::size_t>(done))}));
    return ExitCode::Done;
}

} // namespace dyeworks
