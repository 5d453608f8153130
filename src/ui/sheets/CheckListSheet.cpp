#include "ui/sheets/CheckListSheet.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace dyeworks {

namespace {

// In letters and lines of the font.
constexpr int kWidth = 110;
constexpr int kHeight = 28;

QLabel* wrapped(const QString& words) {
    auto* label = new QLabel(words);
    label->setWordWrap(true);
    return label;
}

} // namespace

CheckListSheet::CheckListSheet(const Words& words, const std::vector<QStringList>& rows, QWidget* parent)
    : QDialog(parent)
    , list_(new QTreeWidget)
    , ok_(new QPushButton(words.ok)) {
    setObjectName(QString::fromLatin1(words.name));
    setWindowTitle(words.caption);

    list_->setObjectName(QStringLiteral("IDC_CHECK_LIST"));
    list_->setAccessibleName(words.question);
    list_->setHeaderLabels(words.columns);
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setTextElideMode(Qt::ElideMiddle);
    QList<QTreeWidgetItem*> items;
    for (const QStringList& row : rows) {
        items.append(new QTreeWidgetItem(row));
        items.last()->setCheckState(0, Qt::Checked);
        for (int column = 0; column < row.size(); ++column)
            items.last()->setToolTip(column, row.at(column));
    }
    list_->addTopLevelItems(items);
    list_->header()->setSectionResizeMode(QHeaderView::Stretch);
    list_->setCurrentItem(items.value(0));
    connect(list_, &QTreeWidget::itemChanged, this, &CheckListSheet::choiceChanged);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(ok_, QDialogButtonBox::AcceptRole);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("IDCANCEL"));
    ok_->setObjectName(QStringLiteral("IDOK"));
    connect(buttons, &QDialogButtonBox::accepted, this, &CheckListSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CheckListSheet::reject);
    const auto addChoice = [&](const char* name, StringId caption, StringId tip, bool checked) {
        auto* button = buttons->addButton(shown(caption), QDialogButtonBox::ActionRole);
        button->setObjectName(QString::fromLatin1(name));
        button->setToolTip(shown(tip));
        connect(button, &QPushButton::clicked, this, [this, checked] { checkAll(checked); });
    };
    addChoice("IDC_CHECK_ALL", StringId::CheckListAll, StringId::CheckListAllTip, true);
    addChoice("IDC_CHECK_NONE", StringId::CheckListNone, StringId::CheckListNoneTip, false);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(wrapped(words.question));
    layout->addWidget(list_);
    if (!words.note.isEmpty())
        layout->addWidget(wrapped(words.note));
    layout->addWidget(buttons);
    // Before the buttons were in the window one of them would have become it by itself.
    ok_->setDefault(true);
    list_->setFocus();
    resize(kWidth * fontMetrics().averageCharWidth(), kHeight * fontMetrics().height());
}

std::vector<bool> CheckListSheet::chosen() const {
    std::vector<bool> rows;
    for (int i = 0; i < list_->topLevelItemCount(); ++i)
        rows.push_back(list_->topLevelItem(i)->checkState(0) == Qt::Checked);
    return rows;
}

void CheckListSheet::checkAll(bool checked) {
    {
        const QSignalBlocker quiet(list_);
        for (int i = 0; i < list_->topLevelItemCount(); ++i)
            list_->topLevelItem(i)->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
    }
    // What the list was not told of it has not shown either.
    list_->viewport()->update();
    choiceChanged();
}

void CheckListSheet::choiceChanged() {
    bool any = false;
    for (int i = 0; i < list_->topLevelItemCount() && !any; ++i)
        any = list_->topLevelItem(i)->checkState(0) == Qt::Checked;
    ok_->setEnabled(any);
}

} // namespace dyeworks
