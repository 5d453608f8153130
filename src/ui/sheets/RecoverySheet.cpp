#include "ui/sheets/RecoverySheet.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace dyeworks {

namespace {

constexpr int kPictureSide = 48;
constexpr QSize kFirstSize{640, 400};
enum LostColumn { kName, kFile, kTime, kColumns };

} // namespace

RecoverySheet::RecoverySheet(const std::vector<Row>& rows, QWidget* parent)
    : QDialog(parent)
    , list_(new QTreeWidget)
    , recover_(new QPushButton(shown(StringId::RecoveryRecover)))
    , discard_(new QPushButton(shown(StringId::RecoveryDiscard))) {
    setObjectName(QStringLiteral("IDD_RECOVERY"));
    setWindowTitle(shown(StringId::RecoveryCaption));
    auto* words = new QLabel(shown(StringId::RecoveryWords));
    words->setWordWrap(true);

    list_->setObjectName(QStringLiteral("IDC_RECOVERY_LIST"));
    list_->setAccessibleName(shown(StringId::RecoveryCaption));
    list_->setColumnCount(kColumns);
    list_->setHeaderLabels(
        {shown(StringId::RecoveryName), shown(StringId::RecoveryFile), shown(StringId::RecoveryTime)});
    list_->setRootIsDecorated(false);
    list_->setIconSize({kPictureSide, kPictureSide});
    list_->setTextElideMode(Qt::ElideMiddle);
    for (const Row& row : rows) {
        auto* item = new QTreeWidgetItem(list_);
        item->setIcon(kName, row.picture);
        item->setText(kName, row.name);
        item->setText(kFile, row.file.isEmpty() ? shown(StringId::RecoveryNoFile) : row.file);
        item->setToolTip(kFile, row.file);
        item->setText(kTime, QLocale().toString(row.time, QLocale::ShortFormat));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(kName, Qt::Checked);
    }
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(kName, QHeaderView::ResizeToContents);
    list_->header()->setSectionResizeMode(kFile, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(kTime, QHeaderView::ResizeToContents);
    if (!rows.empty())
        list_->setCurrentItem(list_->topLevelItem(0));
    connect(list_, &QTreeWidget::itemChanged, this, &RecoverySheet::choiceChanged);

    auto* buttons = new QDialogButtonBox;
    buttons->addButton(recover_, QDialogButtonBox::AcceptRole);
    buttons->addButton(discard_, QDialogButtonBox::DestructiveRole);
    auto* later = buttons->addButton(shown(StringId::RecoveryLater), QDialogButtonBox::RejectRole);
    recover_->setObjectName(QStringLiteral("IDOK"));
    discard_->setObjectName(QStringLiteral("IDC_RECOVERY_DISCARD"));
    later->setObjectName(QStringLiteral("IDCANCEL"));
    recover_->setToolTip(shown(StringId::RecoveryRecoverTip));
    discard_->setToolTip(shown(StringId::RecoveryDiscardTip));
    later->setToolTip(shown(StringId::RecoveryLaterTip));
    recover_->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &RecoverySheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &RecoverySheet::reject);
    connect(discard_, &QPushButton::clicked, this, [this] { done(kDiscard); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(words);
    layout->addWidget(list_);
    layout->addWidget(buttons);
    resize(kFirstSize);
}

std::vector<std::size_t> RecoverySheet::chosen() const {
    std::vector<std::size_t> rows;
    for (int i = 0; i < list_->topLevelItemCount(); ++i) {
        if (list_->topLevelItem(i)->checkState(kName) == Qt::Checked)
            rows.push_back(static_cast<std::size_t>(i));
    }
    return rows;
}

void RecoverySheet::choiceChanged() {
    const bool any = !chosen().empty();
    recover_->setEnabled(any);
    discard_->setEnabled(any);
}

} // namespace dyeworks
