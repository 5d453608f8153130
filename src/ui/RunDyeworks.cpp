#include "ui/RunDyeworks.h"

#include "framework/widgets/ContrastStyle.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/Version.h"
#include "platform/posix/HostFile.h"
#include "platform/qt/DesktopEntries.h"
#include "platform/qt/FontsAhead.h"
#include "platform/qt/Language.h"
#include "platform/qt/QtPlatform.h"
#include "ui/CDyeworksApp.h"
#include "ui/CMainFrame.h"
#include "ui/CommandLine.h"
#include "ui/HangNotice.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QPixmap>
#include <QtMath>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <new>
#include <optional>
#include <span>
#include <string_view>

namespace dyeworks {

namespace {

/// In pixels of the desktop's. Every window hands over all sizes of its icon when it is made; what desktops
/// show larger they take from the files that they know the program by.
constexpr qreal kLargestWindowIcon = 64;

/// Whether the arguments look as if they asked for something that needs no display. One may be the name of a
/// file, or belong to an option.
bool mayNeedNoDisplay(std::span<char*> arguments) {
    return std::ranges::any_of(arguments, [](std::string_view argument) {
        return argument == "--help" || argument == "-h" || argument == "--version" || argument == "-v" ||
               argument == "--unregister";
    });
}

/// Memory that is refused in the middle of something takes back that, and not the program.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    /// What is to be given up then. It must live until the application ends or another takes its place.
    void setProgram(CDyeworksApp* program) { program_ = program; }

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::bad_alloc&) {
            if (program_ != nullptr)
                program_->giveUpDrags();
            applicationWarning(text(StringId::NotEnoughMemory), text(StringId::MemoryAdvice));
            return true;
        }
    }

private:
    CDyeworksApp* program_ = nullptr;
};

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

int unregister(const CommandLine& commandLine) {
    QtPlatform desktop(commandLine.settingsFile.toStdString());
    if (desktop.shell().unregisterFileTypes()) {
        std::puts(
            "The desktop no longer opens files with Orrery Dyeworks, unless it is installed for all users.");
        return 0;
    }
    std::fputs("Dyeworks: the program's entries in the user's desktop could not all be removed.\n", stderr);
    return 1;
}

/// The exit code, when the command line asks for nothing that takes a window.
std::optional<int> doneWithoutWindow(const CommandLine& commandLine) {
    if (commandLine.ended)
        return commandLine.exitCode;
    if (commandLine.task == CommandLine::Task::Unregister)
        return unregister(commandLine);
    return std::nullopt;
}

void install(QApplication& application, const CommandLine& commandLine) {
    if (commandLine.language.isEmpty())
        installLanguage(application, platform().locale().defaultLocale());
    else
        installLanguage(application, commandLine.language.toStdString());
}

bool renderWindow(CMainFrame& window, const QString& file) {
    // Sizes of frames and bars settle with the events that showing them has posted.
    QApplication::processEvents();
    window.commandActions().refresh();
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    std::string reason = describe(FileError::TooLarge);
    if (window.picture().save(&png, "PNG")) {
        const auto bytes =
            std::as_bytes(std::span(png.data().constData(), static_cast<std::size_t>(png.size())));
        const auto error = writeHostFile(QFile::encodeName(file).toStdString(), FilePieces(&bytes, 1));
        if (!error)
            return true;
        reason = describe(*error);
    }
    std::fprintf(stderr, "Dyeworks: cannot write %s: %s\n", qPrintable(file), reason.c_str());
    return false;
}

} // namespace

bool handToRunningProgram(const CommandLine& commandLine) {
    return commandLine.canBeHandedOver() && platform().shell().handToRunningInstance(commandLine.request());
}

int runDyeworks(int argc, char** argv) {
    if (isHangNotice(argc, argv))
        return runHangNotice(argc, argv);
    if (mayNeedNoDisplay(std::span(argv, static_cast<std::size_t>(argc)))) {
        const QCoreApplication application(argc, argv);
        if (const auto exitCode = doneWithoutWindow(parseCommandLine(QCoreApplication::arguments())))
            return *exitCode;
    }

    FontsAhead fonts;
    // A maximized image window puts its buttons into the menu bar, which is therefore the main window's own.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    Application application(argc, argv);
    if (ContrastStyle::isWanted(QGuiApplication::palette()))
        QApplication::setStyle(new ContrastStyle);
    QApplication::setApplicationVersion(QString::fromLatin1(kVersionText));
    QGuiApplication::setDesktopFileName(QStringLiteral("orrery-dyeworks"));
    QApplication::setWindowIcon(programIcon(qCeil(kLargestWindowIcon * application.devicePixelRatio())));
    const CommandLine commandLine = parseCommandLine(QApplication::arguments());
    if (const auto exitCode = doneWithoutWindow(commandLine))
        return *exitCode;

    QtPlatform desktop(commandLine.settingsFile.toStdString());
    desktop.setInteractive(commandLine.isInteractive());
    const InstalledPlatform installed(desktop);
    install(application, commandLine);
    if (handToRunningProgram(commandLine))
        return 0;

    StartUpParts parts;
    parts.program = QFile::encodeName(QCoreApplication::applicationFilePath()).toStdString();
    parts.makeMainFrame = [&, make = parts.makeMainFrame](MainFrameHost& host) {
        std::unique_ptr<CMainFrame> frame = make(host);
        desktop.setMainWindow(frame.get());
        // A picture has no screen to fit on.
        if (frame != nullptr && commandLine.renders())
            frame->resize(CMainFrame::kFirstSize);
        return frame;
    };
    CDyeworksApp program(std::move(parts));
    application.setProgram(&program);
    fonts.wait();
    const bool started = program.InitInstance(commandLine);
    const bool rendered =
        !started || !commandLine.renders() || renderWindow(program.mainFrame(), commandLine.renderTo);
    if (started && !commandLine.renders())
        QApplication::exec();
    application.setProgram(nullptr);
    const int exitCode = program.ExitInstance();
    return rendered ? exitCode : 1;
}

} // namespace dyeworks
