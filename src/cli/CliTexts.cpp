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
            "Images, palettes, projects, pictures (PNG, BMP) and palette files of other programs")},
    Row{CliText::InfoJson, QT_TRANSLATE_NOOP("CommandLine", "Tell it as JSON")},
    Row{CliText::InfoBetween, QT_TRANSLATE_NOOP("CommandLine", ", ")},
    Row{CliText::InfoSize, QT_TRANSLATE_NOOP("CommandLine", "%1 x %2")},
    Row{CliText::InfoBits, QT_TRANSLATE_NOOP("CommandLine", "%1 bits")},
    Row{CliText::InfoUsed, QT_TRANSLATE_NOOP("CommandLine", "%1 colours used")},
    Row{CliText::InfoEntries, QT_TRANSLATE_NOOP("CommandLine", "%1 entries (%2 different)")},
    Row{CliText::InfoBank, QT_TRANSLATE_NOOP("CommandLine", "bank %1")},
    Row{CliText::InfoPictures, QT_TRANSLATE_NOOP("CommandLine", "%1 pictures")},
    Row{CliText::InfoBytes, QT_TRANSLATE_NOOP("CommandLine", "%1 bytes")},
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
