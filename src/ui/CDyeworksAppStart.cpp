#include "framework/widgets/ChildFrame.h"
#include "paint/DrawingOptions.h"
#include "paint/widgets/ImageView.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "plugin/HostFunctions.h"
#include "project/CTPFDocument.h"
#include "ui/CDyeworksApp.h"
#include "ui/CMainFrame.h"
#include "ui/CommandLine.h"
#include "ui/OpenDocumentsList.h"
#include "ui/RuleWatch.h"
#include "ui/SplashScreen.h"
#include "ui/controls/ControlRegistration.h"
#include "ui/palettebar/CPaletteBar.h"

#include <QApplication>
#include <QPixmap>
#include <QSessionManager>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>

namespace dyeworks {

namespace {

/// How often settings, layout and the list of what is open are looked through.
constexpr std::chrono::milliseconds kBetweenKeeping{1500};

constexpr const char* kAppSection = "App section";
constexpr const char* kDirectoryEntry = "Current Directory";

const std::array kFileTypes{
    FileTypeRegistration{"TMF.Document", ".tmf", "image/x-orrery-tmf"},
    FileTypeRegistration{"TPF.Document", ".tpf", "text/x-orrery-tpf"},
    FileTypeRegistration{"TLF.Document", ".tlf", "application/x-orrery-tlf"},
};

/// Of the language that the program speaks, which is one of two whatever the user's locale is.
int localeOf(const CommandLine& commandLine) {
    const bool japanese = commandLine.language.isEmpty()
                              ? platform().locale().defaultLocale() == kLocaleJapanese
                              : commandLine.language == QLatin1String("ja");
    return japanese ? kLocaleJapanese : kLocaleEnglish;
}

} // namespace

bool CDyeworksApp::InitInstance(const CommandLine& commandLine) {
    exitCode_ = 1;
    followLocale(commandLine);
    for (const auto& [letter, folder] : commandLine.drives)
        platform().profile().setText(kDriveSection, {letter, ':'}, folder.toStdString());
    if (!parts_.startObjectServices()) {
        applicationMessage(text(StringId::ObjectServicesFailed));
        return false;
    }
    if (commandLine.isInteractive() && !commandLine.noSplash)
        showSplashScreen();
    readSettings();
    // A picture of the window is to leave no trace.
    keepsSettings_ = !commandLine.renders();
    // Nor is a window that nobody saw to decide where the image's next one stands.
    imageHost_.setKeepsImageSettings(commandLine.isInteractive());
    pictures_.setAsks(commandLine.isInteractive());
    waitsForFiles_ = commandLine.isInteractive();
    if (!registerControls())
        return false;
    createTemplates();
    if (!createMainFrame())
        return false;
    programFolder_ = platform().files().programFolder();
    listenForOpenRequests(commandLine);
    if (!createPaletteSet())
        return false;
    setPlugInHost(&plugInHost_);
    plugIns_.LoadPlugIns(programFolder_, localeOf(commandLine));
    for (const std::string& fileName : plugIns_.failed())
        plugInHost_.tellPlugInFailed(fileName);
    if (commandLine.isInteractive() && !commandLine.renders())
        keepUnsavedWork();
    if (commandLine.task == CommandLine::Task::Serve || !processCommandLine(commandLine))
        return false;
    showMainFrame();
    // At the first start this writes many files, which nobody has to wait for.
    if (commandLine.isInteractive())
        static_cast<void>(platform().shell().registerFileTypes({kFileTypes.begin(), kFileTypes.end()}));
    tellProfileTrouble();
    if (commandLine.task == CommandLine::Task::Nothing && !commandLine.renders() && !ResumeDocuments())
        applicationMessage(text(StringId::ResumeFailed), MessageIcon::Information);
    // As if handed over: a sheet waits for an answer, for which the program has to be up.
    if (const std::vector<std::string> sheets = commandLine.newFiles(); !sheets.empty())
        openRequests_.add(sheets);
    openRequests_.start();
    QObject::connect(&progress_, &QTimer::timeout, &progress_, [this] { keepProgress(); });
    if (commandLine.isInteractive()) {
        progress_.start(kBetweenKeeping);
        startPlace_.start(*mainFrame_, commandLine.files.isEmpty());
    }
    return true;
}

/// Offers what an earlier run has left before anything else is opened, and begins to keep what this one does.
void CDyeworksApp::keepUnsavedWork() {
    recovery_.start();
    outside_.start();
    recovery_.setProgram(parts_.program);
    signals_ = std::make_unique<TerminationSignals>([this](int signal) { endAtOnce(signal); },
                                                    [this](int signal) {
                                                        recovery_.keepWhileHanging();
                                                        std::_Exit(128 + signal);
                                                    });
    // Whoever logs out is not kept waiting by questions; the work is there again at the next start.
    QObject::connect(
        qApp, &QGuiApplication::commitDataRequest, &recovery_,
        [this](QSessionManager& /*session*/) { recovery_.keepNow(); }, Qt::DirectConnection);
    if (!recovery_.hasLeft())
        return;
    showMainFrame();
    recovery_.offer();
}

void CDyeworksApp::endAtOnce(int signal) {
    recovery_.keepNow();
    mainFrame_->keepLayout();
    keepSettings();
    platform().profile().sync();
    std::_Exit(128 + signal); // As a shell tells of it. Nothing of what is open is asked about or closed.
}

/// What is kept at the end is kept all along, so that nothing of it is missing after another end.
void CDyeworksApp::keepProgress() {
    if (!mainFrame_->isVisible() || QApplication::activeModalWidget() != nullptr)
        return;
    // Another program that runs may have changed it, with which it is compared.
    platform().profile().sync();
    mainFrame_->keepLayout();
    keepSettings();
    platform().profile().sync();
    tellProfileTrouble();
}

void CDyeworksApp::tellProfileTrouble() const {
    using Kind = ProfileTrouble::Kind;
    const auto trouble = platform().profile().takeTrouble();
    if (!trouble)
        return;
    if (trouble->kind == Kind::Damaged)
        applicationWarning(text(StringId::SettingsDamaged, {trouble->file}),
                           text(StringId::SettingsDamagedAdvice, {trouble->copy}));
    else
        applicationWarning(text(trouble->kind == Kind::NotReadable ? StringId::SettingsNotReadable
                                                                   : StringId::SettingsNotWritable,
                                {trouble->file}),
                           text(StringId::SettingsAdvice));
}

void CDyeworksApp::keepSettings() const {
    if (!keepsSettings_)
        return;
    platform().profile().setText(kAppSection, kDirectoryEntry, platform().files().currentDirectory());
    recentFiles_.save();
}

int CDyeworksApp::ExitInstance() {
    startPlace_.end();
    outside_.end();
    recovery_.end();
    keepSettings();
    setPlugInHost(nullptr);
    plugIns_.FreePlugIns();
    if (palettes_ != nullptr)
        palettes_->setListener(nullptr);
    mainFrame_.reset();
    palettes_.reset();
    return exitCode_;
}

void CDyeworksApp::followLocale(const CommandLine& commandLine) {
    if (localeOf(commandLine) != kLocaleJapanese)
        return;
    Locale& locale = platform().locale();
    // A host without the Japanese locale still shows Japanese texts and time.
    static_cast<void>(locale.setRuntimeLocale("Japanese"));
    locale.putEnvironment("TZ=JST-9");
    locale.rereadTimeZone();
}

void CDyeworksApp::showSplashScreen() {
    if (splash_ != nullptr)
        return;
    auto* splash = new SplashScreen;
    // It destroys itself when it closes.
    splash_ = splash;
    QObject::connect(splash, &SplashScreen::closed, splash, [this] {
        if (mainFrame_ != nullptr)
            mainFrame_->update();
    });
    splash_->show();
}

void CDyeworksApp::readSettings() {
    const std::string folder = platform().profile().textOr(kAppSection, kDirectoryEntry, "");
    if (!folder.empty())
        static_cast<void>(platform().files().setCurrentDirectory(folder));
    recentFiles_.load();
    restoreDrawingOptions();
}

bool CDyeworksApp::registerControls() {
    constexpr const char* needed = "SwatchGrid.ocx";
    if (!registerControl(needed)) {
        applicationMessage(text(StringId::NeededControlMissing, {needed}));
        return false;
    }
    // Without these, folders are typed and values are entered as numbers.
    for (const char* const control : {"FolderPick.ocx", "RampSlider.ocx"}) {
        if (!registerControl(control))
            applicationMessage(text(StringId::ControlMissing, {control}));
    }
    return true;
}

void CDyeworksApp::createTemplates() {
    DocumentWindows& windows = *this;
    addDocTemplate(std::make_unique<DocumentTemplate>(
        DocumentTemplate::Names{"Texture", ".tmf"},
        [this](DocumentTemplate& own) { return std::make_unique<CDyeworksDoc>(imageHost_, &own); }, windows));
    addDocTemplate(std::make_unique<DocumentTemplate>(
        DocumentTemplate::Names{"Project", ".tpf"},
        [this](DocumentTemplate& own) { return std::make_unique<CTPFDocument>(projectHost_, &own); },
        windows));
}

bool CDyeworksApp::createMainFrame() {
    mainFrame_ = parts_.makeMainFrame(*this);
    if (mainFrame_ == nullptr)
        return false;
    new RuleWatch(*this, mainFrame_->findings());
    projectChecking_.start(mainFrame_->findings());
    return true;
}

void CDyeworksApp::listenForOpenRequests(const CommandLine& commandLine) {
    // A program for one task does not take on others, and may be gone before it could.
    if (!commandLine.isInteractive() || commandLine.newInstance)
        return;
    static_cast<void>(platform().shell().listenForOpenRequests([this](const std::vector<std::string>& paths) {
        raiseMainFrame();
        openRequests_.add(paths);
    }));
}

bool CDyeworksApp::createPaletteSet() {
    palettes_ = parts_.makePaletteSet();
    if (palettes_ == nullptr)
        return false;
    setApplicationPaletteSet(palettes_.get());
    palettes_->setListener(&mainFrame_->paletteBar().state());
    usage_.start(mainFrame_->paletteBar());
    entryOrder_.start(mainFrame_->paletteBar());
    // The first idle moment may be long in coming: files are opened before, and each may raise a message.
    mainFrame_->commandActions().refresh();
    return true;
}

bool CDyeworksApp::processCommandLine(const CommandLine& commandLine) {
    // Windows of images take the room that there is in the main one, which a hidden window settles only when
    // it is rendered.
    if (!commandLine.files.isEmpty())
        static_cast<void>(mainFrame_->grab(QRect(0, 0, 1, 1)));
    if (commandLine.prints()) {
        exitCode_ = printFiles(commandLine) ? 0 : 1;
        return false;
    }
    const std::vector<std::string> paths = commandLine.paths();
    const bool allOpened = OpenFiles(paths, commandLine.attach);
    // A picture that is not of what was asked for is none; a person goes on with what did open.
    exitCode_ = allOpened || !commandLine.renders() ? 0 : 1;
    const bool anyOpened =
        !paletteSet()->palettes.empty() ||
        std::ranges::any_of(templates_, [](const auto& kind) { return !kind->documents().empty(); });
    if (paths.empty() || anyOpened || allOpened || commandLine.renders())
        return true;
    exitCode_ = 1;
    return false;
}

bool CDyeworksApp::printFiles(const CommandLine& commandLine) {
    const std::vector<std::string> paths = commandLine.paths();
    const bool allOpened = OpenFiles(paths, commandLine.attach);
    const CDocument* document = FindOpenDocument(paths.back());
    const ChildFrame* frame = document == nullptr ? nullptr : mainFrame_->frameOf(*document);
    auto* view = frame == nullptr ? nullptr : qobject_cast<ImageView*>(frame->widget());
    if (!allOpened)
        return false;
    if (view != nullptr &&
        mainFrame_->printing().printUnasked(*view, commandLine.printer, commandLine.printFile))
        return true;
    applicationMessage(text(StringId::PrintingFailed));
    return false;
}

void CDyeworksApp::showMainFrame() {
    mainFrame_->show();
    if (splash_ != nullptr)
        splash_->raise();
    // The window is painted before documents that may take a while are opened in it.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void CDyeworksApp::raiseMainFrame() {
    if (mainFrame_ == nullptr || !mainFrame_->isVisible())
        return;
    mainFrame_->setWindowState(mainFrame_->windowState() & ~Qt::WindowMinimized);
    // A dialog that waits for an answer is what the user has to come to.
    QWidget* dialog = QApplication::activeModalWidget();
    QWidget* top = dialog == nullptr ? mainFrame_.get() : dialog->window();
    top->raise();
    top->activateWindow();
}

void CDyeworksApp::openHandedOver(const std::vector<std::string>& request) {
    if (mainFrame_ == nullptr)
        return;
    std::vector<std::string> files = request;
    const bool palette = std::erase(files, CommandLine::kNewPalette) > 0;
    const bool image = std::erase(files, CommandLine::kNewImage) > 0;
    OpenFiles(files, false);
    if (palette)
        router().run(ID_PALETTE_NEW);
    if (image)
        router().run(ID_FILE_NEW);
}

bool CDyeworksApp::ResumeDocuments() {
    return OpenDocumentsList(*this).resume();
}

void CDyeworksApp::SaveOpenDocuments() {
    OpenDocumentsList(*this).save();
}

} // namespace dyeworks
