#include "ui/sheets/CFileNewTexturePage.h"

#include "core/TmfImage.h"
#include "framework/widgets/IntegerField.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace dyeworks {

namespace {

constexpr std::int32_t kFirstSide = 64;
constexpr IntegerField::Range kTypedSides{0, 1024};
constexpr IntegerField::Range kSpunSides{1, 1024};

IntegerField* sideField(const char* editName, const char* spinName, StringId tip) {
    auto* field = new IntegerField(kTypedSides, kSpunSides, kFirstSide);
    field->setObjectName(QString::fromLatin1(spinName));
    field->findChild<QLineEdit*>()->setObjectName(QString::fromLatin1(editName));
    field->setToolTip(shown(tip));
    field->setAccessibleName(shown(tip));
    return field;
}

} // namespace

CFileNewTexturePage::CFileNewTexturePage()
    : widthField_(sideField("IDC_TEXTURE_WIDTH", "IDC_TEXTURE_WIDTH_SPIN", StringId::NewImageWidthTip))
    , heightField_(sideField("IDC_TEXTURE_HEIGHT", "IDC_TEXTURE_HEIGHT_SPIN", StringId::NewImageHeightTip))
    , bits4_(choiceButton("IDC_BITMODE_4BIT", StringId::NewImage4Bit, StringId::NewImage4BitTip))
    , bits8_(choiceButton("IDC_BITMODE_8BIT", StringId::NewImage8Bit, StringId::NewImage8BitTip))
    , size_(new QLabel)
    , imageWidth_(kFirstSide)
    , imageHeight_(kFirstSide) {
    setObjectName(QStringLiteral("IDD_FILENEW_TEXTURE"));
    setWindowTitle(shown(StringId::NewImageTab));
    size_->setObjectName(QStringLiteral("IDC_TEXTURE_SIZE"));
    size_->setToolTip(shown(StringId::NewImageSizeTip));

    auto* layout = new QFormLayout(this);
    layout->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    layout->addRow(shown(StringId::NewImageWidth), widthField_);
    layout->addRow(shown(StringId::NewImageHeight), heightField_);
    addChoices(*layout, StringId::NewImageBitMode, {bits4_, bits8_});
    layout->addRow(shown(StringId::NewImageSize), size_);

    setFocusProxy(widthField_);
    connect(widthField_, &IntegerField::edited, this, &CFileNewTexturePage::showSize);
    connect(heightField_, &IntegerField::edited, this, &CFileNewTexturePage::showSize);
    connect(bits8_, &QRadioButton::toggled, this, &CFileNewTexturePage::showSize);
    showValues();
}

void CFileNewTexturePage::showValues() {
    widthField_->setValue(imageWidth_);
    heightField_->setValue(imageHeight_);
    (bits_ == 8 ? bits8_ : bits4_)->setChecked(true);
    showSize();
}

bool CFileNewTexturePage::takeOver() {
    const std::optional<int> newWidth = widthField_->takeOver();
    if (!newWidth)
        return false;
    const std::optional<int> newHeight = heightField_->takeOver();
    if (!newHeight)
        return false;
    imageWidth_ = *newWidth;
    imageHeight_ = *newHeight;
    bits_ = chosenBits();
    return true;
}

std::int32_t CFileNewTexturePage::chosenBits() const {
    return bits8_->isChecked() ? 8 : 4;
}

void CFileNewTexturePage::showSize() {
    const std::optional<int> newWidth = widthField_->value();
    const std::optional<int> newHeight = heightField_->value();
    if (!newWidth || !newHeight) {
        size_->setText(QStringLiteral("\u2013"));
        return;
    }
    TmfImage image;
    image.width = *newWidth;
    image.height = *newHeight;
    image.bits = chosenBits();
    size_->setText(byteCount(image.blockSize()));
}

} // namespace dyeworks
