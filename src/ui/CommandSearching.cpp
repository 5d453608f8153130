#include "ui/CommandSearching.h"

#include "framework/CommandRouter.h"
#include "framework/widgets/ChildFrame.h"
#include "framework/widgets/CommandActions.h"
#include "paint/widgets/ImageView.h"
#include "ui/CommandSearchBox.h"
#include "ui/DisabledReason.h"
#include "ui/MainMenus.h"

#include <QApplication>
#include <QWindow>

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <utility>

namespace dyeworks {

namespace {

/// For a window manager that does not give the keys back.
constexpr std::chrono::milliseconds kPatience{500};

} // namespace

CommandSearching::CommandSearching(MdiFrame& frame, CommandActions& actions, CommandRouter& router,
                                   std::function<bool()> projectIsOpen)
    : frame_(frame)
    , actions_(actions)
    , router_(router)
    , projectIsOpen_(std::move(projectIsOpen)) {
    on(ID_COMMAND_SEARCH, &CommandSearching::OnSearch);
    patience_.setSingleShot(true);
    connect(&patience_, &QTimer::timeout, this, &CommandSearching::runWaiting);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* now) {
        // Not in the midst of the change.
        if (patience_.isActive() && before_ != nullptr && now == before_->window()->windowHandle())
            patience_.start(0);
    });
}

CommandSearching::~CommandSearching() = default;

std::vector<ListedCommand> CommandSearching::commands() const {
    const std::vector<ChildFrame*> windows = frame_.childFrames();
    OpenThings open;
    open.image = std::ranges::any_of(windows, [](const ChildFrame* window) {
        return qobject_cast<const ImageView*>(window->widget()) != nullptr;
    });
    open.project = projectIsOpen_();
    const ChildFrame* const active = frame_.activeChild();
    const bool ownMenus = active != nullptr && !active->menus().empty();
    const std::array bars{ownMenus ? active->menus() : mainMenu(), imageMenu(), projectMenu(), mainMenu()};
    return listCommands(bars, router_, actions_, frame_, usage_, [&open](const CommandUi& state) {
        const std::optional<StringId> reason = disabledReason(state, open);
        return reason ? text(*reason) : std::string();
    });
}

void CommandSearching::OnSearch() {
    if (box_ == nullptr) {
        usage_.load();
        box_ = new CommandSearchBox(frame_);
        connect(box_, &CommandSearchBox::chosen, this, &CommandSearching::run);
        connect(box_, &CommandSearchBox::givenUp, this, &CommandSearching::giveKeysBack);
    }
    if (box_->isVisible()) {
        giveKeysBack();
        return;
    }
    before_ = QApplication::focusWidget();
    box_->open(commands());
}

void CommandSearching::giveKeysBack() {
    if (before_ == nullptr || !before_->isVisible())
        before_ = &frame_;
    patience_.start(kPatience);
    before_->window()->activateWindow();
    if (before_ != &frame_)
        before_->setFocus(Qt::PopupFocusReason);
}

void CommandSearching::run(const ListedCommand& command) {
    waiting_ = [this, id = command.id, window = command.window] {
        if (id != 0) {
            usage_.add(id);
            actions_.run(id);
        } else if (window != nullptr) {
            frame_.activateChild(*window);
        }
    };
    giveKeysBack();
}

void CommandSearching::runWaiting() {
    patience_.stop();
    box_->hide();
    if (waiting_)
        std::exchange(waiting_, {})();
}

} // namespace dyeworks
