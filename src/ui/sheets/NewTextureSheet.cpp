#include "ui/sheets/NewTextureSheet.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

#include <memory>

namespace dyeworks {

namespace {

/// In front of the open palettes, in this order.
enum NewPalette { kNewRgba, kNewIa };

constexpr int kMostLetters = 24; // A long name does not make the sheet wide.

} // namespace

NewTexturePage::NewTexturePage(const std::vector<OpenPaletteName>& openPalettes)
    : palettes_(new QComboBox) {
    setObjectName(QStringLiteral("newTexturePage"));
    palettes_->setObjectName(QStringLiteral("newTexturePalette"));
    palettes_->setToolTip(shown(StringId::NewTexturePaletteTip));
    palettes_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    palettes_->setMinimumContentsLength(kMostLetters);
    palettes_->insertItem(kNewRgba, shown(StringId::NewTextureRgba));
    palettes_->insertItem(kNewIa, shown(StringId::NewTextureIa));
    for (const auto& [key, title] : openPalettes)
        palettes_->addItem(QString::fromStdString(title), QString::fromStdString(key));
    auto* name = new QLabel(shown(StringId::NewTexturePalette));
    name->setBuddy(palettes_);
    static_cast<QFormLayout*>(layout())->addRow(name, palettes_);
}

bool NewTexturePage::takeOver() {
    if (!CFileNewTexturePage::takeOver())
        return false;
    openPalette_.reset();
    const QVariant key = palettes_->currentData();
    if (key.isValid())
        openPalette_ = key.toString().toStdString();
    colourType_ = palettes_->currentIndex() == kNewIa ? ColourType::Ia : ColourType::Rgba;
    return true;
}

NewTextureSheet::NewTextureSheet(const std::vector<OpenPaletteName>& openPalettes, QWidget* parent)
    : PropertySheet(shown(StringId::NewTextureCaption), parent) {
    setObjectName(QStringLiteral("newTexture"));
    auto page = std::make_unique<NewTexturePage>(openPalettes);
    page_ = page.get();
    addPage(std::move(page));
}

} // namespace dyeworks
