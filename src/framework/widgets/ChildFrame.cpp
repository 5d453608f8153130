#include "framework/widgets/ChildFrame.h"

#include "framework/DocumentTemplate.h"
#include "framework/widgets/ScrollView.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QLayout>
#include <QMenu>
#include <QScrollBar>

#include <algorithm>

namespace dyeworks {

ChildFrame::ChildFrame(CDocument& document, std::unique_ptr<QWidget> widget, FrameView& view)
    : document_(&document)
    , view_(&view) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWidget(widget.release());
    // Tab would stop at it, where no key does anything.
    setFocusPolicy(Qt::ClickFocus);
    // Its keys are those of commands, and a key that stands for two things does neither.
    for (QAction* action : systemMenu()->actions())
        action->setShortcuts(QList<QKeySequence>());
    document.addView(view.documentView());
    document.addTitleListener(*this);
    documentRenamed();
    on(ID_FILE_CLOSE, &ChildFrame::OnFileClose);
}

ChildFrame::~ChildFrame() {
    release();
}

void ChildFrame::closeUnasked() {
    asks_ = false;
    close();
}

WindowPlacement ChildFrame::placement() const {
    WindowPlacement placement;
    if (isMinimized()) {
        placement.showCommand = WindowPlacement::kShowMinimized;
        placement.minX = x();
        placement.minY = y();
    } else if (isMaximized()) {
        placement.showCommand = WindowPlacement::kShowMaximized;
    }
    placement.left = normalGeometry_.left();
    placement.top = normalGeometry_.top();
    placement.right = normalGeometry_.left() + normalGeometry_.width() - grown_.width();
    placement.bottom = normalGeometry_.top() + normalGeometry_.height() - grown_.height();
    return placement;
}

void ChildFrame::setPlacement(const WindowPlacement& placement) {
    if (isMaximized() || isMinimized())
        showNormal();
    if (placement.hasRectangle())
        setGeometry(placement.left, placement.top, placement.right - placement.left,
                    placement.bottom - placement.top);
    if (placement.showCommand == WindowPlacement::kShowMaximized)
        showMaximized();
    else if (placement.showCommand == WindowPlacement::kShowMinimized)
        showMinimized();
}

void ChildFrame::fitToContent(const ScrollView& view) {
    if (isMaximized() || isMinimized())
        return;
    if (layout() != nullptr)
        layout()->activate();
    const QWidget* area = parentWidget();
    const QSize available =
        area == nullptr ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : area->size() - QSize(x(), y());
    QSize wanted = view.contentSize() + (size() - view.maximumViewportSize());
    // A scroll bar that one direction needs takes its room from the other one.
    const bool tooWide = wanted.width() > available.width();
    if (tooWide)
        wanted.rheight() += view.horizontalScrollBar()->sizeHint().height();
    if (wanted.height() > available.height()) {
        wanted.rwidth() += view.verticalScrollBar()->sizeHint().width();
        if (!tooWide && wanted.width() > available.width())
            wanted.rheight() += view.horizontalScrollBar()->sizeHint().height();
    }
    resize(wanted.boundedTo(available).expandedTo(minimumSizeHint()));
}

void ChildFrame::setBar(QWidget* bar) {
    const bool hasOwnSize = !isMaximized() && !isMinimized();
    if (bar_ != nullptr) {
        if (widget() != nullptr && bar_->isAncestorOf(QApplication::focusWidget()))
            widget()->setFocus();
        layout()->removeWidget(bar_);
        bar_->hide();
        bar_->deleteLater();
        if (hasOwnSize)
            resize(size() - grown_);
        grown_ = QSize(0, 0);
    }
    bar_ = bar;
    auto* const boxes = qobject_cast<QBoxLayout*>(layout());
    if (bar == nullptr || boxes == nullptr)
        return;
    boxes->setSpacing(0);
    boxes->insertWidget(0, bar);
    bar->show();
    if (!hasOwnSize || parentWidget() == nullptr)
        return;
    const QSize before = size();
    resize(std::max(width(), bar->minimumSizeHint().width() + width() - contentsRect().width()), height());
    // How high it is shows once it has its width.
    layout()->activate();
    const int below = parentWidget()->height() - geometry().bottom() - 1;
    resize(width(), height() + std::clamp(bar->heightForWidth(bar->width()), 0, std::max(below, 0)));
    grown_ = size() - before;
}

QSize ChildFrame::minimumSizeHint() const {
    constexpr int kLetters = 12;
    const QSize buttons = QMdiSubWindow::minimumSizeHint();
    if (isMinimized())
        return buttons;
    const QFontMetrics metrics(QApplication::font("QMdiSubWindowTitleBar"));
    const int letters = std::max(metrics.horizontalAdvance(windowTitle().left(kLetters)),
                                 kLetters * metrics.averageCharWidth());
    return buttons + QSize(letters, 0);
}

void ChildFrame::closeEvent(QCloseEvent* event) {
    if (document_ != nullptr) {
        // A document that closes may run an event loop, in which the frame is closed again.
        const auto mayClose = [this] {
            return isLastOfDocument() ? document_->mayClose() : view_->mayClose(*this);
        };
        if (releasing_ || (asks_ && !mayClose())) {
            event->ignore();
            return;
        }
        release();
    }
    QMdiSubWindow::closeEvent(event);
}

void ChildFrame::moveEvent(QMoveEvent* event) {
    QMdiSubWindow::moveEvent(event);
    rememberNormalGeometry();
}

void ChildFrame::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    rememberNormalGeometry();
}

void ChildFrame::OnFileClose() {
    close();
}

void ChildFrame::documentRenamed() {
    // "[*]" is Qt's mark for a changed document, doubled it is itself.
    QString title =
        QString::fromStdString(document_->title()).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    const auto& views = document_->views();
    if (views.size() > 1) {
        const auto number = std::ranges::find(views, &view_->documentView()) - views.begin() + 1;
        title += QStringLiteral(":%1").arg(number);
    }
    setWindowTitle(title);
}

bool ChildFrame::isLastOfDocument() const {
    const auto& views = document_->views();
    return std::ranges::all_of(views,
                               [this](const DocumentView* view) { return view == &view_->documentView(); });
}

void ChildFrame::rememberNormalGeometry() {
    if (!isMaximized() && !isMinimized())
        normalGeometry_ = geometry();
}

void ChildFrame::release() {
    if (document_ == nullptr)
        return;
    releasing_ = true;
    CDocument& document = *document_;
    const bool ends = isLastOfDocument() && document.documentTemplate() != nullptr;
    // While it still shows, for whoever wants to read what is in its view.
    if (ends)
        document.onCloseDocument();
    view_->closing(*this);
    document.removeTitleListener(*this);
    document.removeView(view_->documentView());
    view_ = nullptr;
    document_ = nullptr;
    delete widget();
    if (ends)
        document.documentTemplate()->dropClosedDocument(document);
}

} // namespace dyeworks
