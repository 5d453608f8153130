#include "ui/StartPlace.h"

#include "framework/widgets/ChildFrame.h"
#include "paint/RememberedPalette.h"
#include "platform/Platform.h"
#include "ui/CMainFrame.h"
#include "ui/RecentFiles.h"

#include <QApplication>
#include <QEvent>
#include <QMdiArea>
#include <QTimer>

#include <array>
#include <utility>

namespace dyeworks {

namespace {

constexpr const char* kStartSection = "Start Page";
constexpr const char* kShownEntry = "Shown";
constexpr const char* kFirstSteps = "..\\doc\\first-steps.html";

bool isWanted() {
    return platform().profile().integer(kStartSection, kShownEntry, 1) != 0;
}

/// Where the samples lie from the program's folder: installed, and beside the sources of a build.
constexpr std::array kSampleFolders{"..\\..\\..\\share\\orrery-dyeworks\\samples", "..\\..\\..\\samples"};

std::vector<StartFile> sampleFiles() {
    const Files& files = platform().files();
    std::vector<StartFile> samples;
    for (const char* const place : kSampleFolders) {
        const std::string folder = files.fullPath(files.programFolder() + place) + '\\';
        for (const FileEntry& entry : files.enumerate(folder + "*.tmf")) {
            const std::string image = folder + entry.name;
            samples.push_back({image, image.substr(0, image.size() - 4) + ".tlf"});
        }
        if (!samples.empty())
            break;
    }
    return samples;
}

} // namespace

StartPlace::StartPlace(const RecentFiles& recent, Parts parts)
    : recent_(recent)
    , parts_(std::move(parts)) {
    on(ID_VIEW_START_PAGE, &StartPlace::OnToggle, &StartPlace::OnUpdateToggle);
}

void StartPlace::start(CMainFrame& frame, bool atOnce) {
    frame_ = &frame;
    waits_ = !atOnce && frame.area().subWindowList().isEmpty();
    frame.area().installEventFilter(this);
    frame.area().viewport()->installEventFilter(this);
    connect(&frame, &MdiFrame::activeChildChanged, this, [this](const ChildFrame* child) {
        waits_ = waits_ && child == nullptr;
        follow();
    });
    follow();
}

void StartPlace::end() {
    frame_ = nullptr;
    delete page_;
}

void StartPlace::follow() {
    if (frame_ == nullptr)
        return;
    const bool shows = isWanted() && !waits_ && frame_->area().subWindowList().isEmpty();
    if (!shows) {
        if (page_ != nullptr) {
            page_->hide();
            page_->deleteLater();
            page_ = nullptr;
        }
        return;
    }
    if (page_ == nullptr)
        QTimer::singleShot(0, this, [this] { makePage(); });
}

void StartPlace::makePage() {
    // Meanwhile a document may have opened, or the window gone.
    if (frame_ == nullptr || page_ != nullptr || !isWanted() || !frame_->area().subWindowList().isEmpty())
        return;
    page_ = new StartPage(frame_->commandActions(), recentFiles(), sampleFiles(), &frame_->area());
    connect(page_, &StartPage::recentChosen, this,
            [this](const StartFile& file) { parts_.open({file.path}, false); });
    connect(page_, &StartPage::sampleChosen, this, [this](const StartFile& file) {
        parts_.open({file.palette, file.path}, true);
    });
    connect(page_, &StartPage::firstStepsAsked, this, [this] { parts_.showHelp(kFirstSteps); });
    connect(
        page_, &StartPage::leftOut, this, [this] { OnToggle(); }, Qt::QueuedConnection);
    place();
    page_->show();
    // Whoever is typing elsewhere goes on there.
    const QWidget* const focus = QApplication::focusWidget();
    if (focus == nullptr || focus == frame_ || frame_->area().isAncestorOf(focus))
        page_->setFocus();
}

void StartPlace::place() {
    // In the corner that the palette bar, where it is at first, leaves free.
    const int gap = page_->fontMetrics().height();
    const QRect room = frame_->area().rect().adjusted(gap, gap, -gap, -gap);
    page_->setGeometry({room.topLeft(), page_->sizeHint().boundedTo(room.size())});
}

bool StartPlace::eventFilter(QObject* watched, QEvent* event) {
    // A window that closes is still there when another becomes the active one.
    if (event->type() == QEvent::ChildRemoved)
        QTimer::singleShot(0, this, [this] { follow(); });
    else if (event->type() == QEvent::Resize && page_ != nullptr)
        place();
    return QObject::eventFilter(watched, event);
}

std::vector<StartFile> StartPlace::recentFiles() const {
    std::vector<StartFile> files;
    for (const std::string& path : recent_.projects().paths())
        files.push_back({path, {}});
    for (const std::string& path : recent_.images().paths()) {
        const std::string palette = rememberedPalette(path);
        // A palette that had no file is not there any more.
        files.push_back({path, palette.starts_with('*') ? std::string() : palette});
    }
    for (const std::string& path : recent_.palettes().paths())
        files.push_back({path, {}});
    return files;
}

void StartPlace::OnToggle() {
    platform().profile().setInteger(kStartSection, kShownEntry, isWanted() ? 0 : 1);
    waits_ = false;
    follow();
}

void StartPlace::OnUpdateToggle(CommandUi& ui) {
    ui.checked = isWanted();
}

} // namespace dyeworks
