#include "ui/UndoListDock.h"

#include "core/StepList.h"
#include "platform/StringId.h"
#include "ui/UndoListDelegate.h"
#include "ui/UndoListModel.h"
#include "ui/sheets/SheetControls.h"

#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimerEvent>
#include <QVBoxLayout>

#include <utility>

namespace dyeworks {

namespace {

constexpr std::array kOwners{StepOwner::Image, StepOwner::Palette};

StringId tabOf(StepOwner owner) {
    return owner == StepOwner::Image ? StringId::UndoListImage : StringId::UndoListPalette;
}

} // namespace

UndoListDock::UndoListDock(UndoListHost& host)
    : QDockWidget(shown(StringId::UndoListCaption))
    , host_(host)
    , tabs_(new QTabBar)
    , pages_(new QStackedWidget)
    , list_(new QListView)
    , notice_(new QLabel)
    , model_(new UndoListModel(this)) {
    setObjectName(QStringLiteral("ID_VIEW_UNDO_LIST"));
    setWhatsThis(shown(StringId::HelpUndoList));
    tabs_->setObjectName(QStringLiteral("IDC_UNDO_LIST_OWNER"));
    tabs_->setAccessibleName(shown(StringId::UndoListSwitch));
    tabs_->setDocumentMode(true);
    tabs_->setElideMode(Qt::ElideRight);
    tabs_->setUsesScrollButtons(false);
    for (const StepOwner each : kOwners)
        tabs_->addTab(shown(tabOf(each)));
    makeList();
    notice_->setAlignment(Qt::AlignCenter);
    notice_->setWordWrap(true);
    notice_->setMargin(fontMetrics().height() / 2);
    pages_->addWidget(list_);
    pages_->addWidget(notice_);
    auto* all = new QWidget;
    auto* layout = new QVBoxLayout(all);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(tabs_);
    layout->addWidget(pages_);
    setWidget(all);
    connect(tabs_, &QTabBar::currentChanged, this, &UndoListDock::refreshSoon);
    connect(this, &QDockWidget::visibilityChanged, this, &UndoListDock::refreshSoon);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*old*/, const QWidget* now) { followFocus(now); });
}

void UndoListDock::makeList() {
    list_->setObjectName(QStringLiteral("IDC_UNDO_LIST"));
    list_->setAccessibleName(shown(StringId::UndoListCaption));
    list_->setAccessibleDescription(shown(StringId::HelpUndoList));
    list_->setModel(model_);
    list_->setItemDelegate(new UndoListDelegate(list_));
    list_->setUniformItemSizes(true);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(list_, &QListView::clicked, this, [this](const QModelIndex& index) { goTo(index.row()); });
    connect(list_, &QListView::activated, this, [this](const QModelIndex& index) { goTo(index.row()); });
}

StepOwner UndoListDock::owner() const {
    return kOwners.at(static_cast<std::size_t>(tabs_->currentIndex()));
}

void UndoListDock::followFocus(const QWidget* now) {
    if (const std::optional<StepOwner> worksIn = host_.ownerAt(now))
        tabs_->setCurrentIndex(static_cast<int>(*worksIn));
}

bool UndoListDock::wasEdited(StepOwner owner) {
    const JointDocument* const document = host_.stepsOf(owner);
    Seen now;
    if (document != nullptr)
        now = {document->handle(), document->jointHistory().position()};
    const Seen before = std::exchange(seen_.at(static_cast<std::size_t>(owner)), now);
    return document != nullptr && before.document.lock() == now.document.lock() &&
           before.position != now.position;
}

/// Commands reach a palette also while the keys are elsewhere.
void UndoListDock::followEdits() {
    const bool image = wasEdited(StepOwner::Image);
    const bool palette = wasEdited(StepOwner::Palette);
    if (image != palette)
        tabs_->setCurrentIndex(static_cast<int>(image ? StepOwner::Image : StepOwner::Palette));
}

void UndoListDock::nameTabs() {
    for (const StepOwner each : kOwners) {
        const std::string name = host_.nameOf(each);
        const QString words =
            name.empty() ? shown(tabOf(each)) : shown(StringId::UndoListOf, {text(tabOf(each)), name});
        const auto index = static_cast<int>(each);
        tabs_->setTabText(index, QString(words).replace(QLatin1Char('&'), QStringLiteral("&&")));
        tabs_->setTabToolTip(index, words);
    }
}

void UndoListDock::refreshSoon() {
    if (isVisible() && !soon_.isActive())
        soon_.start(0, this);
}

void UndoListDock::showEvent(QShowEvent* event) {
    QDockWidget::showEvent(event);
    refreshSoon();
}

void UndoListDock::timerEvent(QTimerEvent* event) {
    if (event->timerId() != soon_.timerId())
        return QDockWidget::timerEvent(event);
    refresh();
}

void UndoListDock::refresh() {
    soon_.stop();
    // One of several docks in the same place is visible, but in sight is the one in front alone.
    if (!isVisible() || tabs_->visibleRegion().isEmpty())
        return;
    followEdits();
    nameTabs();
    const JointDocument* const document = host_.stepsOf(owner());
    listed_ = owner();
    listedDocument_ = document == nullptr ? std::weak_ptr<JointDocument*>() : document->handle();
    if (document == nullptr) {
        notice_->setText(
            shown(owner() == StepOwner::Image ? StringId::UndoListNoImage : StringId::UndoListNoPalette));
        model_->show({}, 0);
        pages_->setCurrentIndex(1);
        return;
    }
    pages_->setCurrentIndex(0);
    const std::vector<StepRow> rows = stepsOf(document->jointHistory());
    const std::size_t current = currentRow(rows, document->jointHistory());
    if (model_->show(rows, current))
        markCurrent();
}

/// The keys begin at the state that the document is in.
void UndoListDock::markCurrent() {
    const QModelIndex index = model_->index(model_->currentRow());
    list_->setCurrentIndex(index);
    list_->scrollTo(index);
}

void UndoListDock::goTo(int row) {
    // Another document may have come to the front since the list was made.
    const JointDocument* const document = host_.stepsOf(listed_);
    if (document != nullptr && document->handle().lock() == listedDocument_.lock())
        host_.goTo(listed_, model_->position(row));
    refresh();
    markCurrent();
}

} // namespace dyeworks
