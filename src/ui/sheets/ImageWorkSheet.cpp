#include "ui/sheets/ImageWorkSheet.h"

#include "framework/widgets/IntegerField.h"
#include "paint/TextureCanvas.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace dyeworks {

ImageWorkSheet::ImageWorkSheet(const char* name, StringId caption, const TextureCanvas& image, QWidget* owner)
    : QDialog(owner)
    , image_(image)
    , form_(new QFormLayout)
    , buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel)) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(shown(caption));
    ok().setObjectName(QStringLiteral("IDOK"));
    cancel().setObjectName(QStringLiteral("IDCANCEL"));
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form_->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(form_);
}

QPushButton& ImageWorkSheet::ok() const {
    return *buttons_->button(QDialogButtonBox::Ok);
}

QPushButton& ImageWorkSheet::cancel() const {
    return *buttons_->button(QDialogButtonBox::Cancel);
}

IntegerField* ImageWorkSheet::addField(const char* name, StringId label, const QString& tip, int lowest,
                                       int highest, int value) {
    const IntegerField::Range range{lowest, highest};
    auto* field = new IntegerField(range, range, value);
    field->setObjectName(QString::fromLatin1(name));
    field->setToolTip(tip);
    field->setAccessibleName(tip);
    form_->addRow(shown(label), field);
    return field;
}

void ImageWorkSheet::addTakes() {
    takes_ = new QLabel;
    takes_->setObjectName(QStringLiteral("IDC_IMAGE_WORK_TAKES"));
    takes_->setToolTip(shown(StringId::ImageWorkTakesTip));
    // As wide as the longest thing that it may say, so that the sheet does not jump.
    takes_->setMinimumWidth(takes_->fontMetrics().horizontalAdvance(shown(StringId::ImageWorkTooLarge)));
    form_->addRow(shown(StringId::ImageWorkTakes), takes_);
}

void ImageWorkSheet::addButtons() {
    layout()->addWidget(buttons_);
    // What is typed at once takes the first number's place.
    if (auto* const first = findChild<IntegerField*>())
        first->selectAll();
}

void ImageWorkSheet::follow(std::optional<Size> size) {
    if (!size)
        takes_->setText(QStringLiteral("\u2013"));
    else if (canHaveSize(*size, image_.bitsPerPixel()))
        takes_->setText(byteCount(canvasBytes(*size, image_.bitsPerPixel())));
    else
        takes_->setText(shown(StringId::ImageWorkTooLarge));
    follow();
}

void ImageWorkSheet::follow() {
    ok().setEnabled(work().has_value());
}

} // namespace dyeworks
