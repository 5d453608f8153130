#pragma once

#include "cli/ExitCode.h"
#include "platform/Files.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dyeworks {

/// What a run says: results on the standard output, all else on the standard error stream. Files' names stand
/// there as they were given, byte by byte; a terminal is spared their control characters.
class Console {
public:
    /// `name` is how the command is called.
    explicit Console(std::string name);

    /// From now on only results and what has failed are told.
    void beQuiet() noexcept { isQuiet_ = true; }

    /// A result. Written out at the end at the latest.
    void print(std::string_view text);
    /// For whoever watches, a line.
    void note(const std::string& line);
    /// A failure with a file: its name, ": " and the reason, on a line.
    void fail(const std::string& file, const std::string& reason);
    void fail(const std::string& file, FileError error);
    /// The arguments make no sense: why, and where help is.
    void refuse(const std::string& why);
    /// How far long work is. Shown on a terminal only.
    void progress(std::int64_t done, std::int64_t all);

    /// Writes out what was printed. What becomes of the run: `Files` when anything has failed, this too.
    [[nodiscard]] ExitCode finish(ExitCode code);
    [[nodiscard]] bool hasFailed() const noexcept { return hasFailed_; }

private:
    void clearProgress();
    void writeError(std::string line);

    std::string name_;
    bool isTerminal_;
    bool isQuiet_ = false;
    bool hasFailed_ = false;
    int shownPercent_ = -1;
};

} // namespace dyeworks
