#pragma once

#include "cli/ExitCode.h"

namespace dyeworks {

class Console;
class Options;

/// One thing that the program can be told to do. It lives for one run.
class Command {
public:
    virtual ~Command() = default;

    /// Tells its options, which then write into it.
    virtual void declare(Options& options) = 0;
    /// Does it, after the options were read. What failed has been told to the console.
    [[nodiscard]] virtual ExitCode run(Console& console) = 0;
};

} // namespace dyeworks
