#include "ui/sheets/ExportPaletteDialog.h"

#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/sheets/PaletteFormats.h"
#include "ui/sheets/SheetControls.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QRadioButton>

namespace dyeworks {

namespace {

constexpr const char* kSection = "Settings\\Export Palette";
constexpr const char* kFormatEntry = "Format";

} // namespace

ExportPaletteDialog::ExportPaletteDialog(std::int32_t entries, std::int32_t bank, QWidget* parent)
    : QDialog(parent)
    , entries_(entries)
    , bank_(bank)
    , format_(new QComboBox)
    , all_(choiceButton("IDC_EXPORT_ALL", StringId::ExportAll, StringId::ExportAllTip))
    , bankOnly_(choiceButton("IDC_EXPORT_BANK", StringId::ExportBank, StringId::ExportBankTip)) {
    setObjectName(QStringLiteral("IDD_EXPORT_PALETTE"));
    setWindowTitle(shown(StringId::ExportPaletteCaption));
    all_->setText(shown(StringId::ExportAll, {std::to_string(entries)}));
    bankOnly_->setText(shown(StringId::ExportBank, {std::to_string(bank), std::to_string(bank * kBankSize),
                                                    std::to_string((bank + 1) * kBankSize - 1)}));
    all_->setChecked(true);
    bankOnly_->setEnabled(entries > kBankSize);
    format_->setObjectName(QStringLiteral("IDC_EXPORT_FORMAT"));
    format_->setToolTip(shown(StringId::ExportFormatTip));
    for (const PaletteFormat format : kPaletteFormats)
        format_->addItem(
            QStringLiteral("%1 (%2)").arg(shown(nameOf(format)), QString::fromStdString(endingOf(format))));
    format_->setCurrentIndex(platform().profile().integer(kSection, kFormatEntry, 0));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        platform().profile().setInteger(kSection, kFormatEntry, format_->currentIndex());
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportPaletteDialog::reject);

    auto* layout = new QFormLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addRow(shown(StringId::ExportFormat), format_);
    addChoices(*layout, StringId::ExportEntries, {all_, bankOnly_});
    layout->addRow(buttons);
}

PaletteFormat ExportPaletteDialog::format() const {
    const int index = format_->currentIndex();
    return kPaletteFormats.at(index < 0 ? 0 : static_cast<std::size_t>(index));
}

std::int32_t ExportPaletteDialog::firstEntry() const {
    return bankOnly_->isChecked() ? bank_ * kBankSize : 0;
}

std::int32_t ExportPaletteDialog::entryCount() const {
    return bankOnly_->isChecked() ? kBankSize : entries_;
}

} // namespace dyeworks
