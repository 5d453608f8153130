#include "ui/FindingsDock.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace dyeworks {

namespace {

// Letters that the columns get room for by themselves; the last takes what is left.
constexpr std::array kColumnLetters{24, 28, 30};
constexpr int kReasonColumn = 3;
constexpr int kThousand = 1000;

/// What the buttons do, in their order.
constexpr std::array kSteps{&Finding::relink, &Finding::remove, &Finding::add};

QStringList wordsOf(const Finding& finding) {
    return {finding.source, finding.check, finding.place, finding.reason};
}

/// Brings those of one source together, in the order in which the sources come first.
void group(std::vector<Finding>& findings) {
    std::map<QString, std::size_t> places;
    for (const Finding& finding : findings)
        places.try_emplace(finding.source, places.size());
    std::ranges::stable_sort(findings, {}, [&](const Finding& finding) { return places.at(finding.source); });
}

} // namespace

FindingsDock::FindingsDock()
    : QDockWidget(shown(StringId::FindingsCaption))
    , pages_(new QStackedWidget)
    , list_(new QTreeWidget)
    , notice_(new QLabel) {
    setObjectName(QStringLiteral("ID_VIEW_FINDINGS"));
    setWhatsThis(shown(StringId::FindingsHelp));
    makeList();
    pages_->addWidget(list_);
    pages_->addWidget(makeNotice());
    pages_->setCurrentIndex(1);
    auto* all = new QWidget;
    auto* layout = new QVBoxLayout(all);
    layout->setContentsMargins({});
    layout->addWidget(pages_);
    layout->addWidget(makeButtons());
    setWidget(all);
    endProgress();
    selectionChanged();
}

void FindingsDock::makeList() {
    list_->setObjectName(QStringLiteral("IDC_FINDINGS"));
    list_->setAccessibleName(shown(StringId::FindingsCaption));
    list_->setAccessibleDescription(shown(StringId::FindingsHelp));
    list_->setHeaderLabels({shown(StringId::FindingsImage), shown(StringId::FindingsRule),
                            shown(StringId::FindingsPlace), shown(StringId::FindingsReason)});
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list_, &QTreeWidget::itemClicked, this, [this](auto* row) { run(&Finding::go, row); });
    connect(list_, &QTreeWidget::itemActivated, this, [this](auto* row) {
        const int index = list_->indexOfTopLevelItem(row);
        const bool opens = index >= 0 && findings_.at(static_cast<std::size_t>(index)).open;
        run(opens ? &Finding::open : &Finding::go, row);
    });
    connect(list_, &QTreeWidget::currentItemChanged, this, &FindingsDock::selectionChanged);
    connect(list_, &QTreeWidget::customContextMenuRequested, this, &FindingsDock::popUpMenu);
}

QPushButton* FindingsDock::button(const char* name, StringId caption, StringId tip) {
    auto* made = new QPushButton(shown(caption));
    made->setObjectName(QString::fromLatin1(name));
    made->setToolTip(shown(tip));
    made->setAccessibleDescription(shown(tip));
    return made;
}

/// They never become narrower than they are, or the user has made them.
void FindingsDock::widenColumns() {
    for (std::size_t i = 0; i < kColumnLetters.size(); ++i) {
        const auto column = static_cast<int>(i);
        const int before = areWidened_ && list_->topLevelItemCount() > 0 ? list_->columnWidth(column) : 0;
        list_->resizeColumnToContents(column);
        const int most = kColumnLetters.at(i) * fontMetrics().averageCharWidth();
        list_->setColumnWidth(column, std::max(before, std::min(list_->columnWidth(column), most)));
    }
    areWidened_ = true;
}

/// Most starts of the program do without the dock, and without what its columns cost.
void FindingsDock::showEvent(QShowEvent* event) {
    if (!areWidened_)
        widenColumns();
    QDockWidget::showEvent(event);
}

QWidget* FindingsDock::makeNotice() {
    notice_->setObjectName(QStringLiteral("IDC_FINDINGS_NOTICE"));
    auto* rules = button("IDC_FINDINGS_RULES", StringId::FindingsRules, StringId::FindingsRulesTip);
    connect(rules, &QPushButton::clicked, this, &FindingsDock::rulesWanted);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(notice_);
    layout->addWidget(rules, 0, Qt::AlignLeft);
    layout->addStretch();
    return page;
}

QWidget* FindingsDock::makeButtons() {
    check_ = button("IDC_PROJECT_CHECK", StringId::ProjectCheckButton, StringId::ProjectCheckButtonTip);
    stop_ = button("IDC_PROJECT_CHECK_STOP", StringId::ProjectCheckStop, StringId::ProjectCheckStopTip);
    progress_ = new QProgressBar;
    progress_->setObjectName(QStringLiteral("IDC_PROJECT_CHECK_PROGRESS"));
    progress_->setRange(0, kThousand);
    progress_->setFormat(shown(StringId::ProjectChecking));
    state_ = new QLabel;
    state_->setObjectName(QStringLiteral("IDC_PROJECT_CHECK_STATE"));
    actions_ = {button("IDC_PROJECT_RELINK", StringId::ProjectRelink, StringId::ProjectRelinkTip),
                button("IDC_PROJECT_REMOVE", StringId::ProjectRemove, StringId::ProjectRemoveTip),
                button("IDC_PROJECT_ADD", StringId::ProjectAdd, StringId::ProjectAddTip)};
    connect(check_, &QPushButton::clicked, this, &FindingsDock::checkWanted);
    connect(stop_, &QPushButton::clicked, this, &FindingsDock::stopWanted);
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    for (QWidget* each : std::initializer_list<QWidget*>{check_, stop_, progress_, state_})
        layout->addWidget(each);
    layout->addStretch();
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        layout->addWidget(actions_[i]);
        connect(actions_[i], &QPushButton::clicked, this,
                [this, i] { run(kSteps.at(i), list_->currentItem()); });
    }
    return row;
}

void FindingsDock::showFindings(std::vector<Finding> findings, std::set<std::string> images) {
    ofImages_ = std::move(findings);
    images_ = std::move(images);
    list();
}

void FindingsDock::showNotice(const QString& notice, std::set<std::string> images) {
    notice_->setText(notice);
    showFindings({}, std::move(images));
}

void FindingsDock::showProjectFindings(std::optional<std::vector<Finding>> findings) {
    ofProject_ = std::move(findings);
    if (!ofProject_)
        state_->clear();
    else if (ofProject_->empty())
        state_->setText(shown(StringId::ProjectFindingsNone));
    else
        state_->setText(shown(StringId::ProjectFindingsCount,
                              {localNumeral(static_cast<std::int64_t>(ofProject_->size()))}));
    list();
}

void FindingsDock::showProgress(int thousandths) {
    progress_->setValue(thousandths);
    for (QWidget* each : std::initializer_list<QWidget*>{progress_, stop_})
        each->show();
    for (QWidget* each : std::initializer_list<QWidget*>{check_, state_})
        each->hide();
}

void FindingsDock::endProgress() {
    const bool hadFocus = stop_->hasFocus();
    for (QWidget* each : std::initializer_list<QWidget*>{check_, state_})
        each->show();
    if (hadFocus)
        check_->setFocus();
    for (QWidget* each : std::initializer_list<QWidget*>{progress_, stop_})
        each->hide();
}

void FindingsDock::setProjectOpen(bool open) {
    check_->setEnabled(open);
}

void FindingsDock::list() {
    std::vector<Finding> findings = ofProject_.value_or(std::vector<Finding>());
    std::erase_if(findings, [this](const Finding& finding) {
        return !finding.ruleOf.empty() && images_.contains(finding.ruleOf);
    });
    findings.insert(findings.end(), ofImages_.begin(), ofImages_.end());
    group(findings);
    const bool same = std::ranges::equal(
        findings, findings_, [](const Finding& a, const Finding& b) { return wordsOf(a) == wordsOf(b); });
    const int current = list_->indexOfTopLevelItem(list_->currentItem());
    const QStringList words =
        current < 0 ? QStringList() : wordsOf(findings_.at(static_cast<std::size_t>(current)));
    // They may lead elsewhere even if they read alike.
    findings_ = std::move(findings);
    if (same) {
        selectionChanged();
        return;
    }
    QList<QTreeWidgetItem*> rows;
    QTreeWidgetItem* again = nullptr;
    for (const Finding& finding : findings_) {
        rows.append(new QTreeWidgetItem(wordsOf(finding)));
        rows.last()->setToolTip(kReasonColumn, finding.reason);
        if (again == nullptr && wordsOf(finding) == words)
            again = rows.last();
    }
    list_->clear();
    list_->addTopLevelItems(rows);
    widenColumns();
    if (again == nullptr && current >= 0 && !rows.isEmpty())
        again = rows.at(std::min(current, static_cast<int>(rows.size()) - 1));
    list_->setCurrentItem(again);
    pages_->setCurrentIndex(rows.isEmpty() ? 1 : 0);
}

/// The buttons are those of the current row.
void FindingsDock::selectionChanged() {
    const int index = list_->indexOfTopLevelItem(list_->currentItem());
    const bool known = index >= 0 && static_cast<std::size_t>(index) < findings_.size();
    for (std::size_t i = 0; i < actions_.size(); ++i)
        actions_[i]->setEnabled(known && findings_[static_cast<std::size_t>(index)].*kSteps.at(i));
}

void FindingsDock::popUpMenu(const QPoint& place) {
    QTreeWidgetItem* const row = list_->currentItem();
    QMenu menu;
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        if (actions_[i]->isEnabled())
            menu.addAction(actions_[i]->text(), actions_[i], &QPushButton::click);
    }
    if (row != nullptr && !menu.isEmpty())
        menu.exec(list_->viewport()->mapToGlobal(place));
}

void FindingsDock::run(const std::function<void()> Finding::*step, QTreeWidgetItem* row) {
    const int index = list_->indexOfTopLevelItem(row);
    // A copy: on the way there the list may be filled anew.
    const auto way =
        index < 0 ? std::function<void()>() : findings_.at(static_cast<std::size_t>(index)).*step;
    if (!way)
        return;
    way();
    list_->setFocus();
}

} // namespace dyeworks
