#pragma once

namespace dyeworks {

struct CommandLine;

/// The whole program: reads the command line, brings up the platform and the application, and runs until the
/// main window is closed. The result is the process's exit code: 0 for a run that ended well, 1 for a start
/// that failed and for what was to be printed or rendered and could not be, 2 for arguments that make no
/// sense.
[[nodiscard]] int runDyeworks(int argc, char** argv);

/// Hands what the command line asks for to the program of this user that is running, whose window then comes
/// to the front. False when none is running or the command line asks for one of its own.
[[nodiscard]] bool handToRunningProgram(const CommandLine& commandLine);

} // namespace dyeworks
