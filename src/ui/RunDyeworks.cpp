#include "ui/RunDyeworks.h"

#include "framework/widgets/CommandIcon.h"
#include "platform/Version.h"
#include "platform/qt/Language.h"
#include "platform/qt/QtPlatform.h"
#include "ui/CDyeworksApp.h"
#include "ui/CMainFrame.h"
#include "ui/CommandLine.h"

#include <QApplication>
#include <QPixmap>

#include <algorithm>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

namespace {

/// Whether the arguments ask for a text only, which needs no display.
bool asksForText(std::span<char*> arguments) {
    return std::ranges::any_of(arguments, [](std::string_view argument) {
        return argument == "--help" || argument == "-h" || argument == "--version" || argument == "-v";
    });
}

/// Keeps a platform installed while it lives.
class InstalledPlatform {
public:
    explicit InstalledPlatform(Platform& instance)
        : before_(installPlatform(&instance)) {}
    ~InstalledPlatform() { installPlatform(before_); }
    InstalledPlatform(const InstalledPlatform&) = delete;
    InstalledPlatform& operator=(const InstalledPlatform&) = delete;

private:
    Platform* before_;
};

std::vector<std::string> pathsOf(const QStringList& files) {
    std::vector<std::string> paths;
    for (const QString& file : files)
        paths.push_back(platform().files().fromHostPath(file.toStdString()));
    return paths;
}

bool renderWindow(CMainFrame& window, const QString& file) {
    // Sizes of frames and bars settle with the events that showing them has posted.
    QApplication::processEvents();
    window.commandActions().refresh();
    if (window.grab().save(file, "PNG"))
        return true;
    std::fprintf(stderr, "Dyeworks: cannot write %s\n", qPrintable(file));
    return false;
}

} // namespace

int runDyeworks(int argc, char** argv) {
    if (asksForText(std::span(argv, static_cast<std::size_t>(argc)))) {
        const QCoreApplication application(argc, argv);
        return parseCommandLine(QCoreApplication::arguments()).exitCode;
    }

    QApplication application(argc, argv);
    QApplication::setApplicationVersion(QString::fromLatin1(kVersionText));
    QGuiApplication::setDesktopFileName(QStringLiteral("orrery-dyeworks"));
    QApplication::setWindowIcon(applicationIcon());
    const CommandLine commandLine = parseCommandLine(QApplication::arguments());
    if (commandLine.ended)
        return commandLine.exitCode;
    const bool rendering = !commandLine.renderTo.isEmpty();

    QtPlatform desktop(commandLine.settingsFile.toStdString());
    desktop.setInteractive(!rendering);
    const InstalledPlatform installed(desktop);
    if (commandLine.language.isEmpty())
        installLanguage(application, desktop.locale().userLocale());
    else
        installLanguage(application, commandLine.language.toStdString());

    CDyeworksApp program;
    desktop.setMainWindow(&program.mainFrame());
    // A picture has no screen to fit on.
    if (rendering)
        program.mainFrame().resize(CMainFrame::kFirstSize);
    program.mainFrame().show();
    const bool allOpened = program.OpenFiles(pathsOf(commandLine.files), commandLine.attach);
    if (rendering) {
        const bool rendered = renderWindow(program.mainFrame(), commandLine.renderTo);
        return allOpened && rendered ? 0 : 1;
    }
    return QApplication::exec();
}

} // namespace dyeworks
