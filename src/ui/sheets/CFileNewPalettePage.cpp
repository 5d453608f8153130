#include "ui/sheets/CFileNewPalettePage.h"

#include "core/TlfFormat.h"
#include "framework/widgets/IntegerField.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace dyeworks {

namespace {

constexpr std::int32_t kSmall = 16;
constexpr std::int32_t kLarge = 256;

constexpr IntegerField::Range alphasOf(ColourType type) {
    return {0, type == ColourType::Ia ? 255 : 1};
}

} // namespace

CFileNewPalettePage::CFileNewPalettePage()
    : bits4_(choiceButton("IDC_BITMODE_4BIT", StringId::NewImage4Bit, StringId::NewPalette4BitTip))
    , bits8_(choiceButton("IDC_BITMODE_8BIT", StringId::NewPalette8Bit, StringId::NewPalette8BitTip))
    , rgba_(choiceButton("IDC_COLORTYPE_RGBA", StringId::NewPaletteRgba, StringId::NewPaletteRgbaTip))
    , ia_(choiceButton("IDC_COLORTYPE_IA", StringId::NewPaletteIa, StringId::NewPaletteIaTip))
    // Made with the longer range, so that the field's width does for both.
    , alphaField_(new IntegerField(alphasOf(ColourType::Ia), alphasOf(ColourType::Ia), defaultAlpha_))
    , size_(new QLabel) {
    setObjectName(QStringLiteral("IDD_FILENEW_PALETTE"));
    setWindowTitle(shown(StringId::NewPaletteTab));
    alphaField_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    alphaField_->findChild<QLineEdit*>()->setObjectName(QStringLiteral("IDC_DEFAULT_ALPHA"));
    alphaField_->setFixedWidth(alphaField_->sizeHint().width());
    size_->setObjectName(QStringLiteral("IDC_PALETTE_SIZE"));
    size_->setToolTip(shown(StringId::NewPaletteSizeTip));

    auto* layout = new QFormLayout(this);
    layout->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    addChoices(*layout, StringId::NewImageBitMode, {bits4_, bits8_});
    addChoices(*layout, StringId::NewPaletteType, {rgba_, ia_});
    layout->addRow(shown(StringId::NewPaletteAlpha), alphaField_);
    layout->addRow(shown(StringId::NewImageSize), size_);

    connect(bits8_, &QRadioButton::toggled, this, &CFileNewPalettePage::showSize);
    connect(ia_, &QRadioButton::toggled, this, &CFileNewPalettePage::followType);
    showValues();
}

void CFileNewPalettePage::showValues() {
    QRadioButton* const chosenBits = entryCount_ == kLarge ? bits8_ : bits4_;
    chosenBits->setChecked(true);
    setFocusProxy(chosenBits);
    (colourType_ == ColourType::Ia ? ia_ : rgba_)->setChecked(true);
    alphaField_->setValue(defaultAlpha_);
    followType();
    showSize();
}

bool CFileNewPalettePage::takeOver() {
    const std::optional<int> newAlpha = alphaField_->takeOver();
    if (!newAlpha)
        return false;
    entryCount_ = chosenCount();
    colourType_ = chosenType();
    defaultAlpha_ = *newAlpha;
    return true;
}

std::int32_t CFileNewPalettePage::chosenCount() const {
    return bits8_->isChecked() ? kLarge : kSmall;
}

ColourType CFileNewPalettePage::chosenType() const {
    return ia_->isChecked() ? ColourType::Ia : ColourType::Rgba;
}

void CFileNewPalettePage::followType() {
    const IntegerField::Range alphas = alphasOf(chosenType());
    alphaField_->setRanges(alphas, alphas);
    const QString tip = shown(StringId::NewPaletteAlphaTip, {std::to_string(alphas.highest)});
    alphaField_->setToolTip(tip);
    alphaField_->setAccessibleName(tip);
}

void CFileNewPalettePage::showSize() {
    const auto missing = static_cast<std::size_t>(kLarge - chosenCount());
    size_->setText(byteCount(static_cast<qlonglong>(kLargestTlfSize - missing * sizeof(std::uint16_t))));
}

} // namespace dyeworks
