#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

/// What the command line asks for.
struct CommandLine {
    enum class Task {
        Nothing,    ///< Just start, with what was open last.
        Open,       ///< Open the files, or ask what a new one is to be like.
        Print,      ///< Print the last of the files on the default printer and end.
        PrintTo,    ///< The same on a printer that is named, or into a file.
        Receive,    ///< Start and wait for files that are handed over.
        Serve,      ///< Serve documents that embed an image, which no desktop asks for here.
        Unregister, ///< Take back what a start told the desktop and end.
    };

    Task task = Task::Nothing;
    QStringList files;    ///< As the host writes them, absolute, as are all files below.
    QString printer;      ///< Name of the printer to print to.
    QString printFile;    ///< PDF file to print into instead, or empty.
    QString language;     ///< "ja", "en", or empty for the desktop's.
    QString settingsFile; ///< Empty for the user's own settings.
    std::vector<std::pair<char, QString>>
        drives;               ///< Letters and the folders that they stand for from now on.
    bool newImage = false;    ///< Show the sheet for a new image, once the program is up.
    bool newPalette = false;  ///< The same for a new palette.
    bool attach = false;      ///< Attach each image to the palette that is current when it opens.
    bool newInstance = false; ///< Start another program even when one runs.
    bool noSplash = false;
    QString renderTo;   ///< Picture file to render the main window to, or empty.
    bool ended = false; ///< Help, the version or an error has been printed: nothing is to be started.
    int exitCode = 0;   ///< Of the process, when `ended`.

    /// What stands for `newImage` and `newPalette` in a request. No path begins like them.
    static constexpr const char* kNewImage = "--new-image";
    static constexpr const char* kNewPalette = "--new-palette";

    /// The files as the program writes paths.
    [[nodiscard]] std::vector<std::string> paths() const;
    /// The new files asked for, as the words above.
    [[nodiscard]] std::vector<std::string> newFiles() const;
    /// What a program that is running is handed: the paths, then the new files.
    [[nodiscard]] std::vector<std::string> request() const;
    [[nodiscard]] bool prints() const noexcept { return task == Task::Print || task == Task::PrintTo; }
    [[nodiscard]] bool renders() const noexcept { return !renderTo.isEmpty(); }
    /// Whether somebody is going to sit before the window.
    [[nodiscard]] bool isInteractive() const noexcept {
        return !prints() && !renders() && task != Task::Serve && task != Task::Unregister;
    }
    /// Whether a program that is running can do what is asked for.
    [[nodiscard]] bool canBeHandedOver() const noexcept {
        return isInteractive() && !newInstance && !attach && drives.empty();
    }
};

/// Reads the program's arguments, the program's name first. Prints what `--help` and `--version` ask for,
/// and what is wrong with an argument. The switches of document programs on other desktops are taken beside
/// our own options: "/p FILE", "/pt FILE PRINTER DRIVER PORT" and the like, with "/" or "-". An argument that
/// begins with "/" and names an existing file is that file.
[[nodiscard]] CommandLine parseCommandLine(const QStringList& arguments);

} // namespace dyeworks
