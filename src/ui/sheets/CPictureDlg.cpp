#include "ui/sheets/CPictureDlg.h"

#include "core/TextureLookupTable.h"
#include "core/TmfFormat.h"
#include "framework/widgets/IntegerField.h"
#include "platform/FileMessages.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "project/PictureImage.h"
#include "project/widgets/PictureThumbnail.h"
#include "ui/sheets/CFileNewPalettePage.h"
#include "ui/sheets/CFileNewSheet.h"
#include "ui/sheets/CFileNewTexturePage.h"
#include "ui/sheets/PictureFileRow.h"
#include "ui/sheets/SheetControls.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <utility>

namespace dyeworks {

namespace {

constexpr IntegerField::Range kBanks{0, kLastBank};
/// Of the preview, in heights of a letter.
constexpr int kPreviewSide = 10;

constexpr PictureFileRow::Kind kImages{".tmf",
                                       "TMF Files (*.tmf)|*.tmf|All Files (*.*)|*.*||",
                                       StringId::PictureImage,
                                       StringId::PictureImageTip,
                                       StringId::PictureBrowseImageTip,
                                       StringId::PictureNewImageTip,
                                       "IDC_PICTURE_IMAGE",
                                       "IDC_PICTURE_BROWSE_IMAGE",
                                       "IDC_PICTURE_NEW_IMAGE"};
constexpr PictureFileRow::Kind kPalettes{".tlf",
                                         "TLF Files (*.tlf)|*.tlf|All Files (*.*)|*.*||",
                                         StringId::PicturePalette,
                                         StringId::PicturePaletteTip,
                                         StringId::PictureBrowsePaletteTip,
                                         StringId::PictureNewPaletteTip,
                                         "IDC_PICTURE_PALETTE",
                                         "IDC_PICTURE_BROWSE_PALETTE",
                                         "IDC_PICTURE_NEW_PALETTE"};

/// Whether the file was written; if not, the user is told.
bool wasWritten(const std::string& path, const std::optional<FileError>& error) {
    if (error)
        tellNotSaved(path, *error);
    return !error.has_value();
}

bool makeImage(const std::string& path, QWidget* owner) {
    CFileNewSheet sheet(owner);
    const CFileNewTexturePage& page = sheet.texturePage();
    sheet.keepOnly(page);
    if (sheet.exec() != QDialog::Accepted)
        return false;
    TmfImage image;
    return wasWritten(path, image.create(page.imageWidth(), page.imageHeight(), page.bitsPerPixel())
                                ? writeTmf(image, path)
                                : FileError::TooLarge);
}

bool makePalette(const std::string& path, QWidget* owner) {
    CFileNewSheet sheet(owner);
    const CFileNewPalettePage& page = sheet.palettePage();
    sheet.keepOnly(page);
    if (sheet.exec() != QDialog::Accepted)
        return false;
    TextureLookupTable palette;
    if (!palette.create(page.entryCount(), page.colourType()))
        return false;
    for (std::int32_t entry = 0; entry < page.entryCount(); ++entry)
        palette.setAlpha(entry, page.defaultAlpha());
    return palette.save(path.c_str(), false);
}

} // namespace

CPictureDlg::CPictureDlg(const PictureSettings& settings, Check check, QWidget* parent)
    : QDialog(parent)
    , settings_(settings)
    , check_(std::move(check))
    , name_(new QLineEdit(QString::fromStdString(settings.name)))
    , image_(new PictureFileRow(kImages, settings.imageDirectories, settings.imageFile,
                                [this](const std::string& path) { return makeImage(path, this); }))
    , palette_(new PictureFileRow(kPalettes, settings.paletteDirectories, settings.paletteFile,
                                  [this](const std::string& path) { return makePalette(path, this); }))
    , number_(new IntegerField(kBanks, kBanks, settings.paletteNumber))
    , preview_(new QLabel) {
    setObjectName(QStringLiteral("IDD_PICTURE"));
    setWindowTitle(shown(StringId::PictureCaption));
    name_->setObjectName(QStringLiteral("IDC_PICTURE_NAME"));
    name_->setToolTip(shown(StringId::PictureNameTip));
    number_->setObjectName(QStringLiteral("IDC_PICTURE_NUMBER_SPIN"));
    number_->findChild<QLineEdit*>()->setObjectName(QStringLiteral("IDC_PICTURE_NUMBER"));
    number_->setToolTip(shown(StringId::PicturePaletteNumberTip));
    const int side = kPreviewSide * fontMetrics().height();
    preview_->setObjectName(QStringLiteral("IDC_PICTURE_PREVIEW"));
    preview_->setFixedSize(side, side);
    preview_->setAlignment(Qt::AlignCenter);
    preview_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    preview_->setToolTip(shown(StringId::PicturePreviewTip));
    preview_->setAccessibleName(shown(StringId::PicturePreview));

    const auto label = [](StringId caption, QWidget* field) {
        auto* text = new QLabel(shown(caption));
        text->setBuddy(field);
        return text;
    };
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &CPictureDlg::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CPictureDlg::reject);

    auto* layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(label(StringId::PictureName, name_), 0, 0);
    layout->addWidget(name_, 0, 1, 1, 2);
    layout->addWidget(image_, 1, 0, 1, 3);
    layout->addWidget(palette_, 2, 0, 1, 3);
    layout->addWidget(label(StringId::PicturePaletteNumber, number_), 3, 0);
    layout->addWidget(number_, 3, 1, Qt::AlignLeft);
    layout->addWidget(preview_, 0, 3, 4, 1, Qt::AlignCenter);
    layout->addWidget(buttons, 4, 0, 1, 4);
    layout->setColumnStretch(2, 1);

    name_->selectAll();
    connect(image_, &PictureFileRow::changed, this, &CPictureDlg::showPreview);
    connect(palette_, &PictureFileRow::changed, this, &CPictureDlg::showPreview);
    connect(number_, &IntegerField::edited, this, &CPictureDlg::showPreview);
    showPreview();
}

void CPictureDlg::showPreview() {
    const auto canvas = readPicture(image_->path(), palette_->path(), number_->value().value_or(0));
    const int frame = 2 * preview_->frameWidth();
    const QSize room = (preview_->size() - QSize(frame, frame)) * devicePixelRatioF();
    QImage picture = canvas == nullptr ? QImage() : thumbnailOf(*canvas, room);
    picture.setDevicePixelRatio(devicePixelRatioF());
    if (picture.isNull())
        preview_->clear();
    else
        preview_->setPixmap(QPixmap::fromImage(picture));
}

void CPictureDlg::accept() {
    const std::optional<int> number = number_->takeOver();
    if (!number)
        return;
    PictureSettings entered = settings_;
    entered.name = name_->text().toStdString();
    entered.imageFile = image_->name();
    entered.paletteFile = palette_->name();
    entered.paletteNumber = *number;
    if (!filesAreThere(entered))
        return;
    if (const PictureField field = check_(entered); field != PictureField::None) {
        focusField(field);
        return;
    }
    settings_ = entered;
    QDialog::accept();
}

/// Whether they are, or the user does not mind.
bool CPictureDlg::filesAreThere(const PictureSettings& entered) {
    const auto passes = [](const PictureFileRow& row, const std::string& name) {
        return !row.path().empty() ||
               platform().messages().show({text(StringId::FileIsNotFoundIgnore, {displayPath(name)}), "",
                                           MessageButtons::OkCancel, MessageIcon::Warning,
                                           MessageOwner::MainWindow, true}) == MessageAnswer::Ok;
    };
    if (!passes(*image_, entered.imageFile)) {
        focusField(PictureField::Image);
        return false;
    }
    if (!passes(*palette_, entered.paletteFile)) {
        focusField(PictureField::Palette);
        return false;
    }
    return true;
}

void CPictureDlg::focusField(PictureField field) {
    switch (field) {
    case PictureField::Image:
        image_->takeFocus();
        break;
    case PictureField::Palette:
        palette_->takeFocus();
        break;
    case PictureField::Name:
        name_->setFocus();
        name_->selectAll();
        break;
    case PictureField::None:
        break;
    }
}

} // namespace dyeworks
