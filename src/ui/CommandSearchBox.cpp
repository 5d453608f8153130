#include "ui/CommandSearchBox.h"

#include "platform/StringId.h"
#include "ui/CommandRowPainter.h"
#include "ui/sheets/SheetControls.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

constexpr int kWidth = 80; // Letters.
constexpr int kRows = 9;
constexpr double kShareOfOwner = 0.9;

} // namespace

CommandSearchBox::CommandSearchBox(QWidget& owner)
    // A tool window leaves the keys of commands working, as the palette bar does.
    : QDialog(&owner, Qt::Tool | Qt::FramelessWindowHint)
    , field_(new QLineEdit)
    , list_(new QListView)
    , none_(new QLabel(shown(StringId::CommandSearchNone))) {
    setObjectName(QStringLiteral("ID_COMMAND_SEARCH"));
    setWindowTitle(shown(StringId::CommandSearchTitle));
    setWhatsThis(shown(StringId::HelpCommandSearch));
    field_->setObjectName(QStringLiteral("IDC_COMMAND_NAME"));
    field_->setAccessibleName(shown(StringId::CommandSearchField));
    field_->setPlaceholderText(shown(StringId::CommandSearchHint));
    field_->setToolTip(shown(StringId::CommandSearchHint));
    field_->setWhatsThis(shown(StringId::HelpCommandSearch));
    addClearButton(*field_);
    field_->installEventFilter(this);
    list_->setObjectName(QStringLiteral("IDC_COMMANDS_FOUND"));
    list_->setAccessibleName(shown(StringId::CommandSearchList));
    list_->setWhatsThis(shown(StringId::HelpCommandSearch));
    list_->setModel(&model_);
    list_->setItemDelegate(new CommandRowPainter(list_));
    list_->setUniformItemSizes(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setFocusPolicy(Qt::NoFocus);
    none_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    none_->setWordWrap(true);
    none_->hide();

    auto* layout = new QVBoxLayout(this);
    const int margin = fontMetrics().height() / 2;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(field_);
    layout->addWidget(list_, 1);
    layout->addWidget(none_, 1);
    connect(field_, &QLineEdit::textChanged, this, &CommandSearchBox::showFound);
    connect(list_, &QListView::clicked, this, [this](const QModelIndex& index) { choose(index.row()); });
}

void CommandSearchBox::open(std::vector<ListedCommand> commands) {
    leaving_ = false;
    composed_.clear();
    model_.setCommands(std::move(commands));
    field_->clear();
    showFound();
    placeOverOwner();
    show();
    activateWindow();
    field_->setFocus(Qt::PopupFocusReason);
    goTo(list_->currentIndex().row());
}

void CommandSearchBox::placeOverOwner() {
    const QWidget& owner = *parentWidget();
    const auto* const window = qobject_cast<const QMainWindow*>(&owner);
    const QMenuBar* const menus = window == nullptr ? nullptr : window->menuBar();
    const int top = menus == nullptr || !menus->isVisible() ? 0 : menus->height();
    const int row = list_->sizeHintForRow(0);
    const QRect screen = owner.screen()->availableGeometry();
    const int width = std::min({kWidth * fontMetrics().averageCharWidth(),
                                static_cast<int>(owner.width() * kShareOfOwner), screen.width()});
    // The layout knows what stands around the list.
    const int around = sizeHint().height() - list_->sizeHint().height();
    const int height = std::min(around + kRows * row + 2 * list_->frameWidth(),
                                std::max(owner.height() - top, around + 2 * row));
    const QPoint place = owner.mapToGlobal(QPoint((owner.width() - width) / 2, top));
    resize(width, std::min(height, screen.height()));
    move(std::clamp(place.x(), screen.left(), std::max(screen.left(), screen.right() + 1 - width)),
         std::clamp(place.y(), screen.top(), std::max(screen.top(), screen.bottom() + 1 - this->height())));
}

void CommandSearchBox::showFound() {
    model_.search(field_->text().insert(field_->cursorPosition(), composed_));
    const bool found = model_.rowCount() > 0;
    list_->setVisible(found);
    none_->setVisible(!found);
    field_->setAccessibleDescription(found ? QString() : none_->text());
    goTo(0);
}

void CommandSearchBox::goTo(int row) {
    if (row < 0 || row >= model_.rowCount())
        return;
    list_->setCurrentIndex(model_.index(row));
    if (!isVisible())
        return;
    // Of a list without the keys nobody would tell.
    QAccessibleEvent now(list_, QAccessible::Focus);
    now.setChild(row);
    QAccessible::updateAccessibility(&now);
}

void CommandSearchBox::choose(int row) {
    if (leaving_ || row < 0 || row >= model_.rowCount() || !model_.command(row).reason.empty())
        return;
    leaving_ = true;
    Q_EMIT chosen(model_.command(row));
}

bool CommandSearchBox::pressKey(int key, Qt::KeyboardModifiers modifiers) {
    const int row = list_->currentIndex().row();
    const int last = model_.rowCount() - 1;
    const int page = std::max(1, list_->viewport()->height() / std::max(1, list_->sizeHintForRow(0)) - 1);
    const bool control = (modifiers & Qt::ControlModifier) != 0;
    switch (key) {
    case Qt::Key_Up:
        goTo(row == 0 ? last : row - 1);
        return true;
    case Qt::Key_Down:
        goTo(row == last ? 0 : row + 1);
        return true;
    case Qt::Key_PageUp:
        goTo(std::max(0, row - page));
        return true;
    case Qt::Key_PageDown:
        goTo(std::min(last, row + page));
        return true;
    case Qt::Key_Home:
    case Qt::Key_End:
        // Without Ctrl they are the field's.
        if (control)
            goTo(key == Qt::Key_Home ? 0 : last);
        return control;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(row);
        return true;
    case Qt::Key_Escape:
        leaving_ = true;
        Q_EMIT givenUp();
        return true;
    default:
        return false;
    }
}

bool CommandSearchBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::InputMethod) {
        const QString now = static_cast<QInputMethodEvent*>(event)->preeditString();
        // Once the field has what it was given.
        if (std::exchange(composed_, now) != now)
            QMetaObject::invokeMethod(this, &CommandSearchBox::showFound, Qt::QueuedConnection);
    }
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    return leaving_ || pressKey(key.key(), key.modifiers());
}

/// Nobody else draws a line around it.
void CommandSearchBox::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

bool CommandSearchBox::event(QEvent* event) {
    // Whoever goes on elsewhere has no more use for it.
    if (event->type() == QEvent::WindowDeactivate)
        hide();
    return QDialog::event(event);
}

} // namespace dyeworks
