#include "cli/RunCommandLine.h"

#include "cli/CommandLinePlatform.h"
#include "cli/CommandList.h"
#include "cli/Console.h"
#include "cli/Options.h"
#include "platform/Version.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <new>

namespace dyeworks {

namespace {

constexpr const char* kProgram = "dyeworks-cli";

using Arguments = std::vector<std::string>;

bool isOption(const std::string& argument) {
    return argument.size() > 1 && argument.front() == '-';
}

std::string nameOf(std::string_view command) {
    return std::string(kProgram) + (command.empty() ? "" : " ") + std::string(command);
}

ExitCode refuse(Console& console, const std::string& why) {
    console.refuse(why);
    return console.finish(ExitCode::Usage);
}

/// The command that the first words name, and how many words it took.
const CommandEntry* commandIn(const Arguments& arguments, std::size_t& words) {
    std::string name;
    const CommandEntry* found = nullptr;
    for (std::size_t count = 0; count < std::min<std::size_t>(arguments.size(), 2); ++count) {
        name += (count == 0 ? "" : " ") + arguments[count];
        const auto entry = std::ranges::find(commandEntries(), name, &CommandEntry::name);
        if (entry != commandEntries().end()) {
            found = &*entry;
            words = count + 1;
        }
    }
    return found;
}

/// "c=FOLDER".
bool mapDrive(CommandLinePlatform& platform, const std::string& text) {
    if (text.size() < 3 || std::isalpha(static_cast<unsigned char>(text.front())) == 0 || text[1] != '=')
        return false;
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::absolute(text.substr(2), error);
    platform.mapDrive(text.front(), folder.string());
    return !error;
}

ExitCode run(const CommandEntry& entry, const Arguments& arguments, CommandLinePlatform& platform) {
    Console console(nameOf(entry.name));
    bool quiet = false;
    const std::unique_ptr<Command> command = entry.make();
    Options options(nameOf(entry.name), entry.summary);
    command->declare(options);
    options.values(
        "--drive", [&platform](const std::string& text) { return mapDrive(platform, text); },
        CliText::TypeDrive, CliText::HelpDrive);
    options.flag("-q,--quiet", quiet, CliText::HelpQuiet);
    const Options::Answer answer = options.parse(arguments);
    switch (answer.next) {
    case Options::Next::Show:
        console.print(answer.text);
        return console.finish(ExitCode::Done);
    case Options::Next::Refuse:
        return refuse(console, answer.text);
    case Options::Next::Run:
        break;
    }
    if (quiet)
        console.beQuiet();
    return console.finish(command->run(console));
}

/// Without a command: the help, the version, or what is wrong. `group` is "" or "palette".
ExitCode runWithout(const std::string& group, const Arguments& arguments) {
    Console console(nameOf(group));
    bool version = false;
    Options options(nameOf(group), group.empty() ? CliText::ProgramSummary : CliText::PaletteSummary);
    if (group.empty()) {
        options.flag("--version", version, CliText::HelpVersion);
        options.footer(CliText::ProgramFooter);
    }
    std::string last;
    for (const CommandEntry& entry : commandEntries()) {
        const std::size_t blank = entry.name.find(' ');
        const std::string first(entry.name.substr(0, blank));
        if (!group.empty() && first == group)
            options.command(std::string(entry.name.substr(blank + 1)).c_str(), entry.summary);
        if (group.empty() && first != last)
            options.command(first.c_str(),
                            blank == entry.name.npos ? entry.summary : CliText::PaletteSummary);
        last = first;
    }
    if (!arguments.empty() && !isOption(arguments.front()))
        return refuse(console, say(CliText::NoSuchCommand, {arguments.front()}));
    if (group.empty() && arguments == Arguments{"--version"}) {
        console.print(std::string(kProgram) + " " + kVersionText + "\n");
        return console.finish(ExitCode::Done);
    }
    const Options::Answer answer = options.parse(arguments);
    if (answer.next == Options::Next::Show) {
        console.print(answer.text);
        return console.finish(ExitCode::Done);
    }
    return refuse(console, answer.text);
}

} // namespace

int runCommandLine(const Arguments& arguments) {
    CommandLinePlatform platform(userLanguage());
    std::size_t words = 0;
    try {
        if (const CommandEntry* const entry = commandIn(arguments, words))
            return static_cast<int>(run(
                *entry, {arguments.begin() + static_cast<std::ptrdiff_t>(words), arguments.end()}, platform));
        const bool isGroup = !arguments.empty() && arguments.front() == "palette";
        return static_cast<int>(
            runWithout(isGroup ? "palette" : "", {arguments.begin() + (isGroup ? 1 : 0), arguments.end()}));
    } catch (const std::bad_alloc&) {
        Console console(kProgram);
        console.fail(kProgram, say(CliText::OutOfMemory));
        return static_cast<int>(console.finish(ExitCode::Files));
    }
}

} // namespace dyeworks
