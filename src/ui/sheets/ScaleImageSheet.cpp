#include "ui/sheets/ScaleImageSheet.h"

#include "framework/widgets/IntegerField.h"
#include "paint/TextureCanvas.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QSignalBlocker>

#include <utility>

namespace dyeworks {

ScaleImageSheet::ScaleImageSheet(const ScaleImage& proposed, const TextureCanvas& image, QWidget* owner)
    : ImageWorkSheet("IDD_SCALE_IMAGE", StringId::ScaleCaption, image, owner)
    , sides_({image.width(), image.height()})
    , width_(addField("IDC_SCALE_WIDTH", StringId::NewImageWidth, shown(StringId::ImageWorkWidthTip), 1,
                      kLongestSide, proposed.size.width))
    , height_(addField("IDC_SCALE_HEIGHT", StringId::NewImageHeight, shown(StringId::ImageWorkHeightTip), 1,
                       kLongestSide, proposed.size.height))
    , multiple_(new QComboBox)
    , lock_(new QCheckBox(shown(StringId::ScaleLock))) {
    multiple_->setObjectName(QStringLiteral("IDC_SCALE_MULTIPLE"));
    multiple_->setToolTip(shown(StringId::ScaleMultipleTip));
    multiple_->setAccessibleName(shown(StringId::ScaleMultipleTip));
    multiple_->addItem(shown(StringId::ScaleAnySize), 0);
    for (const int factor : {2, 3, 4, 8, -2, -3, -4, -8})
        multiple_->addItem(factor > 0 ? QStringLiteral("\u00d7 %1").arg(factor)
                                      : QStringLiteral("1/%1").arg(-factor),
                           factor);
    form().addRow(shown(StringId::ScaleMultiple), multiple_);
    lock_->setObjectName(QStringLiteral("IDC_SCALE_LOCK"));
    lock_->setToolTip(shown(StringId::ScaleLockTip));
    lock_->setChecked(true);
    form().addRow(QString(), lock_);
    addTakes();
    addButtons();
    for (IntegerField* field : {width_, height_})
        connect(field, &IntegerField::edited, this, [this, field] { typed(*field); });
    connect(multiple_, &QComboBox::currentIndexChanged, this, &ScaleImageSheet::takeMultiple);
    connect(lock_, &QCheckBox::toggled, this, [this](bool locked) {
        if (locked)
            typed(*width_);
    });
    follow(size());
}

void ScaleImageSheet::show(IntegerField& field, int value) {
    following_ = true;
    field.setValue(value);
    following_ = false;
}

void ScaleImageSheet::takeMultiple() {
    if (const int factor = multiple_->currentData().toInt(); factor != 0) {
        const Size size = sides_.times(factor);
        show(*width_, size.width);
        show(*height_, size.height);
    }
    follow(size());
}

void ScaleImageSheet::typed(IntegerField& field) {
    if (following_)
        return;
    const QSignalBlocker block(multiple_);
    multiple_->setCurrentIndex(0);
    if (const std::optional<int> side = field.value(); side && lock_->isChecked()) {
        if (&field == width_)
            show(*height_, sides_.heightFor(*side));
        else
            show(*width_, sides_.widthFor(*side));
    }
    follow(size());
}

std::optional<Size> ScaleImageSheet::size() const {
    const std::optional<int> width = width_->value();
    const std::optional<int> height = height_->value();
    return width && height ? std::optional(Size{*width, *height}) : std::nullopt;
}

std::optional<ImageWork> ScaleImageSheet::work() const {
    const std::optional<Size> wanted = size();
    if (!wanted || !canHaveSize(*wanted, image().bitsPerPixel()))
        return std::nullopt;
    return ScaleImage{*wanted};
}

} // namespace dyeworks
