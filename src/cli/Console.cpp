#include "cli/Console.h"

#include "cli/CliTexts.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <unistd.h>
#include <utility>

namespace dyeworks {

Console::Console(std::string name)
    : name_(std::move(name))
    , isTerminal_(::isatty(STDERR_FILENO) != 0) {}

void Console::print(std::string_view text) {
    (void)std::fwrite(text.data(), 1, text.size(), stdout);
}

void Console::note(const std::string& line) {
    if (!isQuiet_)
        writeError(line);
}

void Console::fail(const std::string& file, const std::string& reason) {
    hasFailed_ = true;
    writeError(file + ": " + reason);
}

void Console::fail(const std::string& file, FileError error) {
    fail(file, describe(error));
}

void Console::progress(std::int64_t done, std::int64_t all) {
    if (!isTerminal_ || isQuiet_ || all == 0)
        return;
    const auto percent = static_cast<int>(done * 100 / all);
    if (percent == shownPercent_)
        return;
    shownPercent_ = percent;
    (void)std::fprintf(stderr, "\r%3d %%", percent);
    (void)std::fflush(stderr);
}

void Console::refuse(const std::string& why) {
    writeError(name_ + ": " + why);
    writeError(say(CliText::TryHelp, {name_}));
}

ExitCode Console::finish(ExitCode code) {
    clearProgress();
    // What did not fit on a full disk shows here.
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
        fail(say(CliText::StandardOutput), FileError::Other);
    return hasFailed_ ? graver(code, ExitCode::Files) : code;
}

void Console::clearProgress() {
    if (shownPercent_ < 0)
        return;
    (void)std::fputs("\r      \r", stderr);
    shownPercent_ = -1;
}

void Console::writeError(std::string line) {
    clearProgress();
    if (isTerminal_) {
        std::ranges::replace_if(
            line, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, '?');
    }
    line += '\n';
    (void)std::fwrite(line.data(), 1, line.size(), stderr);
}

} // namespace dyeworks
