#include "ui/sheets/ReduceDepthSheet.h"

#include "paint/TextureCanvas.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

namespace dyeworks {

ReduceDepthSheet::ReduceDepthSheet(const ReduceDepth& proposed, const TextureCanvas& image, QWidget* owner)
    : ImageWorkSheet("IDD_REDUCE_DEPTH", StringId::DepthCaption, image, owner)
    , banks_(proposed.banks)
    , counts_(countIndexes(image))
    , outside_(new QLabel)
    , bank_(new QComboBox) {
    outside_->setObjectName(QStringLiteral("IDC_REDUCE_OUTSIDE"));
    bank_->setObjectName(QStringLiteral("IDC_REDUCE_BANK"));
    bank_->setToolTip(shown(StringId::DepthBankTip));
    bank_->setAccessibleName(shown(StringId::DepthBankTip));
    for (std::int32_t bank = 0; bank < banks_; ++bank)
        bank_->addItem(QString::number(bank));
    bank_->setCurrentIndex(proposed.bank);
    bank_->setEnabled(banks_ > 1);
    form().addRow(outside_);
    form().addRow(shown(StringId::DepthBank), bank_);
    addButtons();
    ok().setText(shown(StringId::DepthNearest));
    ok().setToolTip(shown(StringId::DepthNearestTip));
    cancel().setText(shown(StringId::DepthRefuse));
    cancel().setToolTip(shown(StringId::DepthRefuseTip));
    connect(bank_, &QComboBox::currentIndexChanged, this, &ReduceDepthSheet::showOutside);
    showOutside();
}

void ReduceDepthSheet::showOutside() {
    const auto number = [](qlonglong count) { return QLocale().toString(count).toStdString(); };
    outside_->setText(shown(StringId::DepthOutside, {number(countOutside(counts_, bank_->currentIndex())),
                                                     number(qlonglong{image().width()} * image().height())}));
    setAccessibleDescription(outside_->text());
}

std::optional<ImageWork> ReduceDepthSheet::work() const {
    return ReduceDepth{bank_->currentIndex(), banks_};
}

} // namespace dyeworks
