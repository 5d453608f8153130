#include "cli/CliTexts.h"

#include "platform/Platform.h"

#include <cassert>
#include <cstddef>
#include <iterator>

// The name by which the translation tools find the texts; what it wraps stays as it is.
#define QT_TRANSLATE_NOOP(context, text) text

namespace dyeworks {

namespace {

constexpr const char* kContext = "CommandLine";

struct Row {
    CliText id;
    const char* english;
};

constexpr Row kRows[] = {
    Row{CliText::ProgramSummary,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "Work with console textures in scripts: images (.tmf), palettes (.tlf) and projects (.tpf).")},
    Row{CliText::ProgramFooter,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "\"dyeworks-cli COMMAND --help\" tells the options of a command. \"-\" is the standard input or "
            "output.\nExit code: 0 done, 1 something found, 2 wrong arguments, 3 trouble with files.")},
    Row{CliText::PaletteSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Change palettes, and the images that show them along.")},
    Row{CliText::HelpUsage, QT_TRANSLATE_NOOP("CommandLine", "Usage")},
    Row{CliText::HelpOptionsMark, QT_TRANSLATE_NOOP("CommandLine", "OPTIONS")},
    Row{CliText::HelpCommandMark, QT_TRANSLATE_NOOP("CommandLine", "COMMAND")},
    Row{CliText::HelpArguments, QT_TRANSLATE_NOOP("CommandLine", "Arguments")},
    Row{CliText::HelpOptions, QT_TRANSLATE_NOOP("CommandLine", "Options")},
    Row{CliText::HelpCommands, QT_TRANSLATE_NOOP("CommandLine", "Commands")},
    Row{CliText::HelpRequired, QT_TRANSLATE_NOOP("CommandLine", "REQUIRED")},
    Row{CliText::HelpHelp, QT_TRANSLATE_NOOP("CommandLine", "Print this help and exit")},
    Row{CliText::HelpVersion, QT_TRANSLATE_NOOP("CommandLine", "Print the version and exit")},
    Row{CliText::HelpQuiet, QT_TRANSLATE_NOOP("CommandLine", "Tell nothing but results and failures")},
    Row{CliText::WrongValue, QT_TRANSLATE_NOOP("CommandLine", "%1: \"%2\" makes no sense here")},
    Row{CliText::NumberOutside, QT_TRANSLATE_NOOP("CommandLine", "%1: %2 is not from %3 to %4")},
    Row{CliText::NoSuchChoice, QT_TRANSLATE_NOOP("CommandLine", "%1: \"%2\" is none of %3")},
    Row{CliText::ExtraArgument, QT_TRANSLATE_NOOP("CommandLine", "unknown argument: %1")},
    Row{CliText::MissingArgument, QT_TRANSLATE_NOOP("CommandLine", "%1 is missing")},
    Row{CliText::MissingCommand, QT_TRANSLATE_NOOP("CommandLine", "a command is missing")},
    Row{CliText::NoSuchCommand, QT_TRANSLATE_NOOP("CommandLine", "there is no command \"%1\"")},
    Row{CliText::OptionWithoutValue, QT_TRANSLATE_NOOP("CommandLine", "%1 has no value that fits")},
    Row{CliText::TryHelp, QT_TRANSLATE_NOOP("CommandLine", "Try \"%1 --help\".")},
    Row{CliText::StandardOutput, QT_TRANSLATE_NOOP("CommandLine", "standard output")},
    Row{CliText::OutOfMemory, QT_TRANSLATE_NOOP("CommandLine", "There is not enough memory for this.")},
    Row{CliText::FileCutOff, QT_TRANSLATE_NOOP("CommandLine", "The file is cut off.")},
    Row{CliText::NoImage, QT_TRANSLATE_NOOP("CommandLine", "The file is no image of 4 or 8 bits.")},
    Row{CliText::NoPalette, QT_TRANSLATE_NOOP("CommandLine", "The file is no palette of 16 or 256 entries.")},
    Row{CliText::ImageTooLarge, QT_TRANSLATE_NOOP("CommandLine", "The image is larger than can be.")},
    Row{CliText::UnknownKind, QT_TRANSLATE_NOOP("CommandLine", "The file is of no kind that is known.")},
    Row{CliText::InfoSummary, QT_TRANSLATE_NOOP("CommandLine", "Tell what files hold.")},
    Row{CliText::InfoFiles,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "Images, palettes, projects, pictures (PNG, BMP, JPEG) and palette files of other programs")},
    Row{CliText::InfoJson, QT_TRANSLATE_NOOP("CommandLine", "Tell it as JSON")},
    Row{CliText::InfoBetween, QT_TRANSLATE_NOOP("CommandLine", ", ")},
    Row{CliText::InfoSize, QT_TRANSLATE_NOOP("CommandLine", "%1 x %2")},
    Row{CliText::InfoBits, QT_TRANSLATE_NOOP("CommandLine", "%1 bits")},
    Row{CliText::InfoUsed, QT_TRANSLATE_NOOP("CommandLine", "%1 colours used")},
    Row{CliText::InfoEntries, QT_TRANSLATE_NOOP("CommandLine", "%1 entries (%2 different)")},
    Row{CliText::InfoBank, QT_TRANSLATE_NOOP("CommandLine", "bank %1")},
    Row{CliText::InfoPictures, QT_TRANSLATE_NOOP("CommandLine", "%1 pictures")},
    Row{CliText::InfoBytes, QT_TRANSLATE_NOOP("CommandLine", "%1 bytes")},
    Row{CliText::TypeOutput, QT_TRANSLATE_NOOP("CommandLine", "FILE|FOLDER")},
    Row{CliText::TypeFile, QT_TRANSLATE_NOOP("CommandLine", "FILE")},
    Row{CliText::TypeFormat, QT_TRANSLATE_NOOP("CommandLine", "FORMAT")},
    Row{CliText::TypeNumber, QT_TRANSLATE_NOOP("CommandLine", "NUMBER")},
    Row{CliText::TypeSize, QT_TRANSLATE_NOOP("CommandLine", "WxH")},
    Row{CliText::TypePart, QT_TRANSLATE_NOOP("CommandLine", "X,Y,WxH")},
    Row{CliText::TypeWay, QT_TRANSLATE_NOOP("CommandLine", "HOW")},
    Row{CliText::TypeName, QT_TRANSLATE_NOOP("CommandLine", "NAME")},
    Row{CliText::NoPicture,
        QT_TRANSLATE_NOOP("CommandLine",
                          "The file is neither an image nor a picture that can be read (PNG, BMP, JPEG).")},
    Row{CliText::BringsNoPalette, QT_TRANSLATE_NOOP("CommandLine", "The file brings no palette.")},
    Row{CliText::PaletteIsNoPicture,
        QT_TRANSLATE_NOOP("CommandLine", "A palette alone cannot be written in this format.")},
    Row{CliText::TooManyColours,
        QT_TRANSLATE_NOOP("CommandLine", "The file has %1 colours, a palette holds 256.")},
    Row{CliText::CropOutside,
        QT_TRANSLATE_NOOP("CommandLine", "The part to keep lies outside of the image of %1 x %2 texels.")},
    Row{CliText::DepthNeedsPalette,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "The image uses more than 16 indices; to bring it to 4 bits takes its palette (--palette).")},
    Row{CliText::NoSuchBank, QT_TRANSLATE_NOOP("CommandLine", "The palette has no bank %1.")},
    Row{CliText::FormatMissing,
        QT_TRANSLATE_NOOP("CommandLine", "the name of the output tells no format; --format does")},
    Row{CliText::TwoFilesIntoOne,
        QT_TRANSLATE_NOOP("CommandLine", "C source is two files and needs a name (the format h is one).")},
    Row{CliText::WrittenTwice,
        QT_TRANSLATE_NOOP("CommandLine", "Another file has already been written as \"%1\".")},
    Row{CliText::NotTogether, QT_TRANSLATE_NOOP("CommandLine", "%1 and %2 do not go together")},
    Row{CliText::ManyIntoOne,
        QT_TRANSLATE_NOOP("CommandLine", "several files do not go into the standard output")},
    Row{CliText::ColoursRounded,
        QT_TRANSLATE_NOOP("CommandLine", "%1 colours were rounded to what a palette holds")},
    Row{CliText::ConvertSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Convert images, pictures and palettes into other formats.")},
    Row{CliText::ConvertInputs,
        QT_TRANSLATE_NOOP("CommandLine",
                          "Images (.tmf), pictures (PNG, BMP, JPEG), palettes (.tlf) and palette "
                          "files (.gpl, .pal, .act, .hex)")},
    Row{CliText::ConvertOutput,
        QT_TRANSLATE_NOOP("CommandLine", "Where the result goes; for several files a folder")},
    Row{CliText::ConvertFormat,
        QT_TRANSLATE_NOOP("CommandLine", "What is written, where the name of the output does not tell: %1")},
    Row{CliText::ConvertPalette,
        QT_TRANSLATE_NOOP("CommandLine", "Palette that images are shown with and pictures are brought into")},
    Row{CliText::ConvertBank,
        QT_TRANSLATE_NOOP("CommandLine",
                          "Bank of a palette of 256 entries that an image of 4 bits shows, 0 to 15")},
    Row{CliText::ConvertPaletteOut,
        QT_TRANSLATE_NOOP("CommandLine", "Also write the palette of the result, a TLF file")},
    Row{CliText::ConvertCrop,
        QT_TRANSLATE_NOOP("CommandLine", "Keep this part alone: its left top texel and its size")},
    Row{CliText::ConvertResize,
        QT_TRANSLATE_NOOP("CommandLine", "Scale to this size, each texel to the nearest")},
    Row{CliText::ConvertTurn, QT_TRANSLATE_NOOP("CommandLine", "Turn: %1")},
    Row{CliText::ConvertDepth, QT_TRANSLATE_NOOP("CommandLine", "Bits of a texel: %1")},
    Row{CliText::ConvertColours,
        QT_TRANSLATE_NOOP("CommandLine", "Most colours of a palette that is made for a picture")},
    Row{CliText::ConvertType, QT_TRANSLATE_NOOP("CommandLine", "Entries of such a palette: %1")},
    Row{CliText::ConvertDither,
        QT_TRANSLATE_NOOP("CommandLine", "How colours that are missing are mixed: %1")},
    Row{CliText::ConvertName,
        QT_TRANSLATE_NOOP("CommandLine", "Name of the arrays in C source instead of the output's")},
    Row{CliText::ConvertAlign,
        QT_TRANSLATE_NOOP("CommandLine", "Alignment of the arrays in bytes, a power of 2")},
    Row{CliText::ConvertWholePalette,
        QT_TRANSLATE_NOOP("CommandLine",
                          "Put all banks into C source or raw bytes, not only the one that is shown")},
    Row{CliText::ConvertFooter,
        QT_TRANSLATE_NOOP("CommandLine",
                          "In this order: crop, resize, turn, colours, depth. A picture without indexed "
                          "colours gets a palette of its\nown, or the nearest colours of the one that is "
                          "given. c writes the header beside the source; h is all in one.")},
    Row{CliText::ConvertDone, QT_TRANSLATE_NOOP("CommandLine", "%1 files converted, %2 failed")},
    Row{CliText::TypeFolder, QT_TRANSLATE_NOOP("CommandLine", "FOLDER")},
    Row{CliText::BuildSummary,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "Write the pictures of a project for the console's build, as far as they have changed.")},
    Row{CliText::BuildProject, QT_TRANSLATE_NOOP("CommandLine", "The project (.tpf)")},
    Row{CliText::BuildOutput,
        QT_TRANSLATE_NOOP("CommandLine", "Folder of the results, made when there is none")},
    Row{CliText::BuildFormat,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "What each picture becomes: %1; png where nothing is said. tmf writes the palette beside it")},
    Row{CliText::BuildJobs,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "How many pictures are made at a time; as many as there are processors where nothing is said")},
    Row{CliText::BuildDryRun, QT_TRANSLATE_NOOP("CommandLine", "Only print the files that would be written")},
    Row{CliText::BuildAll, QT_TRANSLATE_NOOP("CommandLine", "Make everything, changed or not")},
    Row{CliText::BuildDepfile,
        QT_TRANSLATE_NOOP("CommandLine",
                          "Write a rule for make or ninja: index.json and the files that it was made from")},
    Row{CliText::BuildFooter,
        QT_TRANSLATE_NOOP("CommandLine",
                          "index.json in the folder lists the pictures with their files, sizes and banks. A "
                          "picture is made again when\nits image, its palette, its entry in the project or "
                          "the options have changed, or its file is not what was\nwritten. Files of pictures "
                          "that are gone from the project are removed.")},
    Row{CliText::BuildSameName,
        QT_TRANSLATE_NOOP("CommandLine", "The picture would be written under the same name as \"%1\".")},
    Row{CliText::BuildNameWithLine,
        QT_TRANSLATE_NOOP("CommandLine", "The name of a file holds a line end, which a rule cannot.")},
    Row{CliText::BuildDone,
        QT_TRANSLATE_NOOP("CommandLine", "%1 made, %2 up to date, %3 removed, %4 failed")},
    Row{CliText::TypeRange, QT_TRANSLATE_NOOP("CommandLine", "ENTRIES")},
    Row{CliText::PaletteSortSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Sort the entries of a palette; the images follow.")},
    Row{CliText::PaletteMergeSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Give texels of equal entries the first of them.")},
    Row{CliText::PaletteCompactSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Move entries that no texel shows to the end.")},
    Row{CliText::PaletteMoveSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Move entries to another place; the images follow.")},
    Row{CliText::PaletteSwapSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Exchange two ranges of entries; the images follow.")},
    Row{CliText::PaletteRampSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Make even steps from the first to the last entry of a range.")},
    Row{CliText::PaletteAdjustSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Change hue, saturation, brightness, a channel or alpha.")},
    Row{CliText::PaletteFile,
        QT_TRANSLATE_NOOP("CommandLine", "The palette (.tlf), which is changed in place")},
    Row{CliText::PaletteImages,
        QT_TRANSLATE_NOOP("CommandLine", "Images (.tmf) that show it and are to look the same afterwards")},
    Row{CliText::PaletteProject,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "Take all images along that a project (.tpf) shows with this palette, each with its bank")},
    Row{CliText::PaletteRange, QT_TRANSLATE_NOOP("CommandLine", "Only these entries, such as 16-31")},
    Row{CliText::PaletteOutput,
        QT_TRANSLATE_NOOP("CommandLine",
                          "Write palette and images into this folder and leave the files as they are")},
    Row{CliText::PaletteTo, QT_TRANSLATE_NOOP("CommandLine", "Entry that the first of the range goes to")},
    Row{CliText::PaletteBy, QT_TRANSLATE_NOOP("CommandLine", "What comes first: %1")},
    Row{CliText::PaletteReverse, QT_TRANSLATE_NOOP("CommandLine", "The other way round")},
    Row{CliText::PaletteInBanks,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "Each bank of 16 entries by itself; also without this where an image shows a bank alone")},
    Row{CliText::PaletteKeep,
        QT_TRANSLATE_NOOP("CommandLine", "These entries stay where they are, such as 0,4-7")},
    Row{CliText::PaletteHue, QT_TRANSLATE_NOOP("CommandLine", "Degrees, -180 to 180")},
    Row{CliText::PaletteSaturation, QT_TRANSLATE_NOOP("CommandLine", "Percent, -100 (grey) to 100")},
    Row{CliText::PaletteBrightness, QT_TRANSLATE_NOOP("CommandLine", "Percent, -100 (black) to 100 (white)")},
    Row{CliText::PaletteChannel, QT_TRANSLATE_NOOP("CommandLine", "The channel that --steps changes: %1")},
    Row{CliText::PaletteSteps, QT_TRANSLATE_NOOP("CommandLine", "Steps of that channel")},
    Row{CliText::PaletteAlpha, QT_TRANSLATE_NOOP("CommandLine", "Steps of alpha")},
    Row{CliText::PaletteNoSuchEntry, QT_TRANSLATE_NOOP("CommandLine", "The palette has no entry %1.")},
    Row{CliText::PaletteNoPlace, QT_TRANSLATE_NOOP("CommandLine", "The entries cannot go there.")},
    Row{CliText::PaletteLeavesBank,
        QT_TRANSLATE_NOOP("CommandLine", "%1 texels would leave the bank that the image shows.")},
    Row{CliText::PaletteTwoBanks,
        QT_TRANSLATE_NOOP("CommandLine", "The image is shown through two banks and can follow only one.")},
    Row{CliText::PaletteNoChannel, QT_TRANSLATE_NOOP("CommandLine", "The palette has no such channel.")},
    Row{CliText::PaletteDone, QT_TRANSLATE_NOOP("CommandLine", "%1 files written")},
    Row{CliText::RenderSummary,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "Draw an image as the editor shows it, or the pictures of a project side by side.")},
    Row{CliText::RenderInput,
        QT_TRANSLATE_NOOP("CommandLine", "An image (.tmf), a picture (PNG, BMP, JPEG) or a project (.tpf)")},
    Row{CliText::RenderOutput, QT_TRANSLATE_NOOP("CommandLine", "The PNG file to write")},
    Row{CliText::RenderPalette,
        QT_TRANSLATE_NOOP("CommandLine", "Palette that the image is shown with; greys without one")},
    Row{CliText::RenderZoom, QT_TRANSLATE_NOOP("CommandLine", "Pixels of a texel, 1 to 16")},
    Row{CliText::RenderGrid, QT_TRANSLATE_NOOP("CommandLine", "Show the grid of 8 texels")},
    Row{CliText::RenderAlpha, QT_TRANSLATE_NOOP("CommandLine", "Show alpha as greys")},
    Row{CliText::RenderCheckerboard,
        QT_TRANSLATE_NOOP("CommandLine", "Let a checkerboard shine through what is transparent")},
    Row{CliText::RenderColumns, QT_TRANSLATE_NOOP("CommandLine", "Pictures in a row of the sheet")},
    Row{CliText::RenderSide,
        QT_TRANSLATE_NOOP("CommandLine", "Side of a picture's square on the sheet in pixels")},
    Row{CliText::TypeDrive, QT_TRANSLATE_NOOP("CommandLine", "c=FOLDER")},
    Row{CliText::HelpDrive,
        QT_TRANSLATE_NOOP("CommandLine", "Let a drive that a project names stand for a folder")},
    Row{CliText::CheckSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Tell what is wrong with projects and files.")},
    Row{CliText::CheckFiles,
        QT_TRANSLATE_NOOP("CommandLine",
                          "Projects (.tpf), images (.tmf), palettes (.tlf), pictures and palette files")},
    Row{CliText::CheckLeast, QT_TRANSLATE_NOOP("CommandLine", "Leave out what weighs less: %1")},
    Row{CliText::CheckRules,
        QT_TRANSLATE_NOOP("CommandLine", "Project (.tpf) whose rules the images must keep to")},
    Row{CliText::CheckPalette,
        QT_TRANSLATE_NOOP("CommandLine",
                          "Palette that the images are shown with, for the rules about entries")},
    Row{CliText::CheckFooter,
        QT_TRANSLATE_NOOP(
            "CommandLine",
            "A line for each finding: FILE:PLACE: TEXT. A project is held against its own rules.")},
    Row{CliText::CheckTexelsMissing,
        QT_TRANSLATE_NOOP("CommandLine", "The file is cut off: %1 bytes of texels are missing.")},
    Row{CliText::CheckWholeFile, QT_TRANSLATE_NOOP("CommandLine", "whole file")},
    Row{CliText::CheckDone, QT_TRANSLATE_NOOP("CommandLine", "Findings: %1")},
    Row{CliText::ThumbnailSummary,
        QT_TRANSLATE_NOOP("CommandLine", "Make a small picture of a file, as file managers show it.")},
    Row{CliText::ThumbnailInput,
        QT_TRANSLATE_NOOP("CommandLine",
                          "Image (.tmf), palette (.tlf) or project (.tpf), as a path or a file: address")},
    Row{CliText::ThumbnailOutput, QT_TRANSLATE_NOOP("CommandLine", "PNG file to write")},
    Row{CliText::ThumbnailSize,
        QT_TRANSLATE_NOOP("CommandLine", "Pixels that neither side of the picture exceeds")},
    Row{CliText::ThumbnailFooter,
        QT_TRANSLATE_NOOP("CommandLine",
                          "Exit code: 0 done, 2 wrong arguments, 3 the file cannot be shown or the picture "
                          "cannot be written.")},
    Row{CliText::ThumbnailNotHere,
        QT_TRANSLATE_NOOP("CommandLine", "Only files of this computer can be read.")},
    Row{CliText::ThumbnailNoPictures,
        QT_TRANSLATE_NOOP("CommandLine", "The project has no picture that can be read.")},
    Row{CliText::ThumbnailTooLong,
        QT_TRANSLATE_NOOP("CommandLine", "Reading it takes too much time or memory.")},
};

constexpr bool areInOrder() {
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        if (static_cast<std::size_t>(kRows[i].id) != i)
            return false;
    }
    return true;
}
static_assert(areInOrder(), "a text stands in another place than its number says");

} // namespace

std::string say(CliText id) {
    const auto index = static_cast<std::size_t>(id);
    assert(index < std::size(kRows));
    return platform().texts().translate(kContext, kRows[index].english);
}

std::string say(CliText id, std::initializer_list<std::string> arguments) {
    return filled(say(id), arguments);
}

} // namespace dyeworks
