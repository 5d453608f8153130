#include "ui/OutsideChanges.h"

#include "core/PaletteSet.h"
#include "framework/ReloadOption.h"
#include "framework/widgets/ChildFrame.h"
#include "paint/widgets/ImageView.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/CMainFrame.h"
#include "ui/OutsideBar.h"
#include "ui/Workspace.h"
#include "ui/palettebar/CPaletteBar.h"

#include <QApplication>

#include <algorithm>

namespace dyeworks {

namespace {

constexpr int kFollowMilliseconds = 700;
constexpr int kAnswerMilliseconds = 10;
/// After so many times that long, those are looked at that have answered.
constexpr int kMostAnswers = 50;

} // namespace

OutsideChanges::OutsideChanges(Workspace& workspace)
    : workspace_(workspace) {
    soon_.setSingleShot(true);
    connect(&follow_, &QTimer::timeout, this, &OutsideChanges::follow);
    connect(&soon_, &QTimer::timeout, this, &OutsideChanges::ask);
    connect(&answer_, &QTimer::timeout, this, &OutsideChanges::look);
}

OutsideChanges::~OutsideChanges() {
    end();
}

void OutsideChanges::start() {
    FileWatcher& watcher = platform().fileWatcher();
    watch_.emplace(watcher, OutsideWatch::Open{[this] { return workspace_.documents(); },
                                               [this] { return workspace_.paletteSet(); }});
    watcher.setListener([this] { lookSoon(); });
    // Where the host tells nothing, coming back to the window is the moment to find out.
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            lookSoon();
    });
    connect(&workspace_.mainFrame().paletteBar(), &CPaletteBar::shownAnew, this,
            &OutsideChanges::showForPalettes);
    follow_.start(kFollowMilliseconds);
}

void OutsideChanges::end() {
    if (!watch_)
        return;
    follow_.stop();
    soon_.stop();
    answer_.stop();
    platform().fileWatcher().setListener(nullptr);
    qApp->disconnect(this);
    watch_.reset();
}

void OutsideChanges::follow() {
    watch_->follow();
    show();
}

/// A change is told once it has been the same in two looks.
void OutsideChanges::lookSoon() {
    if (!soon_.isActive())
        soon_.start(platform().fileWatcher().patience());
}

/// Before they are looked at, so that nobody waits for those that do not answer.
void OutsideChanges::ask() {
    answering_.ask(watch_->paths());
    asked_ = 0;
    answer_.start(kAnswerMilliseconds);
}

void OutsideChanges::look() {
    if (!answering_.isDone() && ++asked_ < kMostAnswers)
        return;
    answer_.stop();
    // Whoever answers a question means the document as it then was.
    if (QApplication::activeModalWidget() != nullptr) {
        lookSoon();
        return;
    }
    const std::set<std::string> answered = answering_.answered();
    if (watch_->look(reloadsUnchanged(), &answered))
        lookSoon();
    for (const std::string& path : watch_->takeReloaded())
        workspace_.mainFrame().SetStatusText(text(StringId::OutsideReloaded, {displayPath(path)}), 0);
    show();
}

std::optional<OutsideBar*> OutsideChanges::barFor(const OutsideWatch::Notice* notice, QWidget* shown,
                                                  QWidget* view) {
    const auto* const before = qobject_cast<OutsideBar*>(shown);
    if (notice == nullptr)
        return before == nullptr ? std::nullopt : std::optional<OutsideBar*>(nullptr);
    if (before != nullptr && before->notice() == *notice)
        return std::nullopt;
    auto* const bar = new OutsideBar(*notice, qobject_cast<ImageView*>(view));
    // The bar that tells so goes when the answer has been carried out, and so does its notice.
    connect(bar, &OutsideBar::reloadWanted, this, [this](OutsideWatch::Notice wanted) {
        watch_->reload(wanted);
        show();
    });
    connect(bar, &OutsideBar::keepWanted, this, [this](OutsideWatch::Notice wanted) {
        watch_->keep(wanted);
        show();
    });
    std::erase_if(bars_, [](const QPointer<OutsideBar>& one) { return one == nullptr; });
    bars_.emplace_back(bar);
    return bar;
}

void OutsideChanges::show() {
    const std::vector<OutsideWatch::Notice> notices = watch_->notices();
    for (ChildFrame* const frame : workspace_.mainFrame().childFrames()) {
        if (frame->document() == nullptr)
            continue;
        const auto found = std::ranges::find(notices, frame->document(), &OutsideWatch::Notice::document);
        const auto bar = barFor(found == notices.end() ? nullptr : &*found, frame->bar(), frame->widget());
        if (bar)
            frame->setBar(*bar);
    }
    showForPalettes();
}

/// The bar speaks of the current palette first, then of the others.
void OutsideChanges::showForPalettes() {
    const std::vector<OutsideWatch::Notice> notices = watch_->notices();
    const OutsideWatch::Notice* chosen = nullptr;
    for (const OutsideWatch::Notice& notice : notices) {
        if (notice.document == nullptr &&
            (chosen == nullptr || notice.path == workspace_.paletteSet()->currentKey))
            chosen = &notice;
    }
    CPaletteBar& paletteBar = workspace_.mainFrame().paletteBar();
    if (const auto bar = barFor(chosen, paletteBar.bar(), nullptr))
        paletteBar.setBar(*bar);
}

void OutsideChanges::imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) {
    for (const QPointer<OutsideBar>& bar : bars_) {
        if (bar != nullptr)
            bar->imageChanged(image, texels.has_value());
    }
}

} // namespace dyeworks
