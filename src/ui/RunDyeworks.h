#pragma once

namespace dyeworks {

/// The whole program: reads the command line, brings up the platform and the main window, opens the files and
/// runs until the window is closed. The result is the process's exit code: 0 for a run that ended well, 1
/// when a picture was asked for and a file could not be opened or the picture not be written, 2 for arguments
/// that make no sense.
[[nodiscard]] int runDyeworks(int argc, char** argv);

} // namespace dyeworks
