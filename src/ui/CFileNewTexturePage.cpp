#include "ui/CFileNewTexturePage.h"

#include "core/TmfImage.h"
#include "framework/widgets/IntegerField.h"
#include "platform/Platform.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QRadioButton>
#include <QVBoxLayout>

namespace dyeworks {

namespace {

constexpr std::int32_t kFirstSide = 64;
constexpr IntegerField::Range kTypedSides{0, 1024};
constexpr IntegerField::Range kSpunSides{1, 1024};

QString label(StringId id) {
    return QString::fromStdString(text(id));
}

IntegerField* sideField(const char* editName, const char* spinName, StringId tip) {
    auto* field = new IntegerField(kTypedSides, kSpunSides, kFirstSide);
    field->setObjectName(QString::fromLatin1(spinName));
    field->findChild<QLineEdit*>()->setObjectName(QString::fromLatin1(editName));
    field->setToolTip(label(tip));
    field->setAccessibleName(label(tip));
    return field;
}

QRadioButton* depthButton(const char* name, StringId caption, StringId tip) {
    auto* button = new QRadioButton(label(caption));
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(label(tip));
    return button;
}

} // namespace

CFileNewTexturePage::CFileNewTexturePage()
    : widthField_(sideField("IDC_TEXTURE_WIDTH", "IDC_TEXTURE_WIDTH_SPIN", StringId::NewImageWidthTip))
    , heightField_(sideField("IDC_TEXTURE_HEIGHT", "IDC_TEXTURE_HEIGHT_SPIN", StringId::NewImageHeightTip))
    , bits8_(depthButton("IDC_BITMODE_8BIT", StringId::NewImage8Bit, StringId::NewImage8BitTip))
    , size_(new QLabel)
    , imageWidth_(kFirstSide)
    , imageHeight_(kFirstSide) {
    setObjectName(QStringLiteral("IDD_FILENEW_TEXTURE"));
    setWindowTitle(label(StringId::NewImageTab));
    auto* bits4 = depthButton("IDC_BITMODE_4BIT", StringId::NewImage4Bit, StringId::NewImage4BitTip);
    bits4->setChecked(true);
    size_->setObjectName(QStringLiteral("IDC_TEXTURE_SIZE"));
    size_->setToolTip(label(StringId::NewImageSizeTip));

    auto* depth = new QWidget;
    auto* depthLayout = new QVBoxLayout(depth);
    depthLayout->setContentsMargins(0, 0, 0, 0);
    depthLayout->addWidget(bits4);
    depthLayout->addWidget(bits8_);

    auto* layout = new QFormLayout(this);
    layout->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    layout->addRow(label(StringId::NewImageWidth), widthField_);
    layout->addRow(label(StringId::NewImageHeight), heightField_);
    layout->addRow(label(StringId::NewImageBitMode), depth);
    layout->addRow(label(StringId::NewImageSize), size_);

    setFocusProxy(widthField_);
    connect(widthField_, &IntegerField::edited, this, &CFileNewTexturePage::showSize);
    connect(heightField_, &IntegerField::edited, this, &CFileNewTexturePage::showSize);
    connect(bits8_, &QRadioButton::toggled, this, &CFileNewTexturePage::showSize);
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
    size_->setText(QString::fromStdString(
        text(StringId::NewImageBytes,
             {QLocale().toString(static_cast<qlonglong>(image.blockSize())).toStdString()})));
}

} // namespace dyeworks
