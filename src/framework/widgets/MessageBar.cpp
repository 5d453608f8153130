#include "framework/widgets/MessageBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

namespace dyeworks {

namespace {

constexpr int kFewestLetters = 24; ///< Of the words, beside the buttons.

bool isEscape(const QEvent& event) {
    return static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

} // namespace

MessageBar::MessageBar(const QString& name, QWidget* parent)
    : QFrame(parent)
    , layout_(new QBoxLayout(QBoxLayout::LeftToRight, this))
    , row_(new QHBoxLayout)
    , text_(new QLabel) {
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    // The colours of a hint stand out from windows and images, dark and light.
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    const int gap = fontMetrics().height() / 4;
    layout_->setContentsMargins(2 * gap, gap, 2 * gap, gap);
    layout_->setSpacing(gap);
    row_->setSpacing(gap);

    auto* words = new QHBoxLayout;
    auto* icon = new QLabel;
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()
                        ->standardIcon(QStyle::SP_MessageBoxInformation)
                        .pixmap(QSize(side, side), devicePixelRatioF()));
    words->setSpacing(2 * gap);
    words->addWidget(icon);
    words->addWidget(text_, 1);
    layout_->addLayout(words, 1);
    layout_->addLayout(row_);
}

void MessageBar::setText(const QString& text) {
    // What is below must not jump while words take turns.
    if (isVisible())
        text_->setMinimumHeight(text_->height());
    text_->setText(text);
    setAccessibleDescription(text);
}

QPushButton* MessageBar::addButton(const char* name, const QString& caption, const QString& tip) {
    last_ = new QPushButton(caption);
    last_->setObjectName(QString::fromLatin1(name));
    last_->setToolTip(tip);
    last_->setAccessibleDescription(tip);
    row_->addWidget(last_);
    return last_;
}

/// As wide as the buttons are.
QSize MessageBar::minimumSizeHint() const {
    const QMargins margins = layout_->contentsMargins();
    return {row_->minimumSize().width() + margins.left() + margins.right(), layout_->minimumSize().height()};
}

/// A hint may be as dark as the window is; the edge tells the bar from it.
void MessageBar::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter(this).fillRect(0, 0, layout_->contentsMargins().left() / 2, height(), palette().highlight());
}

void MessageBar::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        text_->setMinimumHeight(0);
    const int left = width() - minimumSizeHint().width();
    layout_->setDirection(left < kFewestLetters * fontMetrics().averageCharWidth() ? QBoxLayout::TopToBottom
                                                                                   : QBoxLayout::LeftToRight);
}

void MessageBar::showEvent(QShowEvent* event) {
    QFrame::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

bool MessageBar::event(QEvent* event) {
    // Before it is a shortcut of the window.
    if (event->type() == QEvent::ShortcutOverride && isEscape(*event)) {
        event->accept();
        return true;
    }
    return QFrame::event(event);
}

void MessageBar::keyPressEvent(QKeyEvent* event) {
    if (isEscape(*event) && last_ != nullptr)
        last_->click();
    else
        QFrame::keyPressEvent(event);
}

} // namespace dyeworks
