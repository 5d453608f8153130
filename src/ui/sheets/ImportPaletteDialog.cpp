#include "ui/sheets/ImportPaletteDialog.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>

namespace dyeworks {

ImportPaletteDialog::ImportPaletteDialog(std::int32_t colours, std::int32_t entries, std::int32_t chosen,
                                         QWidget* parent)
    : QDialog(parent)
    , asNew_(choiceButton("IDC_IMPORT_NEW", StringId::ImportAsNew, StringId::ImportAsNewTip))
    , intoCurrent_(choiceButton("IDC_IMPORT_INTO", StringId::ImportInto, StringId::ImportIntoTip))
    , first_(new QSpinBox) {
    setObjectName(QStringLiteral("IDD_IMPORT_PALETTE"));
    setWindowTitle(shown(StringId::ImportPaletteCaption));
    auto* count = new QLabel(shown(StringId::ImportColourCount, {std::to_string(colours)}));
    first_->setObjectName(QStringLiteral("IDC_IMPORT_FIRST"));
    first_->setRange(0, entries - 1);
    first_->setValue(chosen);
    first_->setToolTip(shown(StringId::ImportFirstTip));
    first_->setAccessibleName(shown(StringId::ImportFirstTip));
    first_->setEnabled(false);
    asNew_->setChecked(true);
    connect(intoCurrent_, &QRadioButton::toggled, first_, &QSpinBox::setEnabled);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportPaletteDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportPaletteDialog::reject);

    auto* layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(count, 0, 0, 1, 2);
    layout->addWidget(asNew_, 1, 0, 1, 2);
    layout->addWidget(intoCurrent_, 2, 0);
    layout->addWidget(first_, 2, 1);
    layout->addWidget(buttons, 3, 0, 1, 2);
}

std::optional<std::int32_t> ImportPaletteDialog::firstEntry() const {
    return intoCurrent_->isChecked() ? std::optional(first_->value()) : std::nullopt;
}

} // namespace dyeworks
