#pragma once

#include <QString>
#include <QStringList>

namespace dyeworks {

/// What the command line asks for.
struct CommandLine {
    QStringList files;    ///< As the host writes them, absolute.
    QString language;     ///< "ja", "en", or empty for the desktop's.
    QString settingsFile; ///< Empty for the user's own settings.
    bool attach = false;  ///< Attach each image to the palette that is current when it opens.
    QString renderTo;     ///< Picture file to render the main window to, or empty.
    bool ended = false;   ///< Help, the version or an error has been printed: nothing is to be started.
    int exitCode = 0;     ///< Of the process, when `ended`.
};

/// Reads the program's arguments, the program's name first. Prints what `--help` and `--version` ask for,
/// and what is wrong with an argument.
[[nodiscard]] CommandLine parseCommandLine(const QStringList& arguments);

} // namespace dyeworks
