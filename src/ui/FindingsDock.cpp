#include "ui/FindingsDock.h"

#include "platform/StringId.h"
#include "platform/Text.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace dyeworks {

namespace {

// Letters that the columns get room for by themselves; the last takes what is left.
constexpr std::array kColumnLetters{24, 28, 30};

QString shown(StringId id) {
    return QString::fromStdString(text(id));
}

QStringList wordsOf(const Finding& finding) {
    return {finding.source, finding.check, finding.place, finding.reason};
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
    setWidget(pages_);
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
    widenColumns();
    connect(list_, &QTreeWidget::itemClicked, this, &FindingsDock::go);
    connect(list_, &QTreeWidget::itemActivated, this, &FindingsDock::go);
}

/// They never become narrower than they are, or the user has made them.
void FindingsDock::widenColumns() {
    for (std::size_t i = 0; i < kColumnLetters.size(); ++i) {
        const auto column = static_cast<int>(i);
        const int before = list_->topLevelItemCount() == 0 ? 0 : list_->columnWidth(column);
        list_->resizeColumnToContents(column);
        const int most = kColumnLetters.at(i) * fontMetrics().averageCharWidth();
        list_->setColumnWidth(column, std::max(before, std::min(list_->columnWidth(column), most)));
    }
}

QWidget* FindingsDock::makeNotice() {
    notice_->setObjectName(QStringLiteral("IDC_FINDINGS_NOTICE"));
    auto* button = new QPushButton(shown(StringId::FindingsRules));
    button->setObjectName(QStringLiteral("IDC_FINDINGS_RULES"));
    button->setToolTip(shown(StringId::FindingsRulesTip));
    button->setAccessibleDescription(shown(StringId::FindingsRulesTip));
    connect(button, &QPushButton::clicked, this, &FindingsDock::rulesWanted);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(notice_);
    layout->addWidget(button, 0, Qt::AlignLeft);
    layout->addStretch();
    return page;
}

void FindingsDock::showFindings(std::vector<Finding> findings) {
    const bool same = std::ranges::equal(
        findings, findings_, [](const Finding& a, const Finding& b) { return wordsOf(a) == wordsOf(b); });
    const int current = list_->indexOfTopLevelItem(list_->currentItem());
    const QStringList words =
        current < 0 ? QStringList() : wordsOf(findings_.at(static_cast<std::size_t>(current)));
    // They may lead elsewhere even if they read alike.
    findings_ = std::move(findings);
    pages_->setCurrentIndex(0);
    if (same)
        return;
    QList<QTreeWidgetItem*> rows;
    QTreeWidgetItem* again = nullptr;
    for (const Finding& finding : findings_) {
        rows.append(new QTreeWidgetItem(wordsOf(finding)));
        if (again == nullptr && wordsOf(finding) == words)
            again = rows.last();
    }
    list_->clear();
    list_->addTopLevelItems(rows);
    widenColumns();
    if (again == nullptr && current >= 0 && !rows.isEmpty())
        again = rows.at(std::min(current, static_cast<int>(rows.size()) - 1));
    list_->setCurrentItem(again);
}

void FindingsDock::showNotice(const QString& notice) {
    findings_.clear();
    list_->clear();
    notice_->setText(notice);
    pages_->setCurrentIndex(1);
}

void FindingsDock::go(QTreeWidgetItem* row) {
    const int index = list_->indexOfTopLevelItem(row);
    // A copy: on the way there the list may be filled anew.
    const auto way = index < 0 ? std::function<void()>() : findings_.at(static_cast<std::size_t>(index)).go;
    if (!way)
        return;
    way();
    list_->setFocus();
}

} // namespace dyeworks
