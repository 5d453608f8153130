#include "platform/qt/QtClipboard.h"

#include "platform/PackedDib.h"
#include "platform/qt/QtPictureReader.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <algorithm>
#include <array>
#include <memory>
#include <new>

namespace dyeworks {

namespace {

/// Names that programs give to BMP data. Ours is the first.
const std::array kBmpFormats{QStringLiteral("image/bmp"), QStringLiteral("image/x-bmp"),
                             QStringLiteral("image/x-MS-bmp"), QStringLiteral("image/x-win-bitmap")};

const QString kPngFormat = QStringLiteral("image/png");

QClipboard* desktopClipboard() {
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr
               ? QGuiApplication::clipboard()
               : nullptr;
}

const QMimeData* offered() {
    QClipboard* clipboard = desktopClipboard();
    return clipboard == nullptr ? nullptr : clipboard->mimeData();
}

std::optional<std::vector<std::byte>> dibOf(const QByteArray& bmp) {
    return dibFromBmp(std::as_bytes(std::span(bmp.constData(), static_cast<std::size_t>(bmp.size()))));
}

QByteArray asBmp(const QImage& image) {
    QBuffer buffer;
    if (image.isNull() || !image.save(&buffer, "BMP"))
        return {};
    return buffer.data();
}

/// `dib` as a BMP file, and as a picture that is turned into any other form when a program asks for it.
std::unique_ptr<QMimeData> offerOf(std::span<const std::byte> dib) {
    const std::optional<std::vector<std::byte>> bmp = bmpFromDib(dib);
    if (!bmp)
        return nullptr;
    const QByteArray bytes(reinterpret_cast<const char*>(bmp->data()), static_cast<qsizetype>(bmp->size()));
    auto data = std::make_unique<QMimeData>();
    data->setData(kBmpFormats.front(), bytes);
    const QImage picture = QImage::fromData(bytes, "BMP");
    if (!picture.isNull())
        data->setImageData(picture);
    return data;
}

} // namespace

QtClipboard::~QtClipboard() {
    QObject::disconnect(changes_);
}

/// Not before there is an application.
void QtClipboard::followChanges() const {
    if (changes_)
        return;
    changes_ = QObject::connect(desktopClipboard(), &QClipboard::dataChanged, [this] {
        offersText_.reset();
        offersBitmap_.reset();
    });
}

bool QtClipboard::offers(ClipboardFormat format) const {
    const bool text = format == ClipboardFormat::Text;
    std::optional<bool>& answer = text ? offersText_ : offersBitmap_;
    if (answer)
        return *answer;
    const QMimeData* data = offered();
    if (data == nullptr)
        return false;
    followChanges();
    answer =
        text ? data->hasText()
             : data->hasImage() || std::any_of(kBmpFormats.begin(), kBmpFormats.end(),
                                               [data](const QString& name) { return data->hasFormat(name); });
    return *answer;
}

bool QtClipboard::setBitmap(std::span<const std::byte> dib) {
    QClipboard* clipboard = desktopClipboard();
    if (clipboard == nullptr)
        return false;
    try {
        std::unique_ptr<QMimeData> data = offerOf(dib);
        if (data == nullptr)
            return false;
        const QByteArray bytes = data->data(kBmpFormats.front());
        clipboard->setMimeData(data.release());
        const QMimeData* now = clipboard->mimeData();
        return now != nullptr && now->data(kBmpFormats.front()) == bytes;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

std::optional<std::vector<std::byte>> QtClipboard::bitmap() const {
    const QMimeData* data = offered();
    if (data == nullptr)
        return std::nullopt;
    try {
        for (const QString& name : kBmpFormats) {
            if (std::optional<std::vector<std::byte>> dib = dibOf(data->data(name)))
                return dib;
        }
        return dibOf(asBmp(qvariant_cast<QImage>(data->imageData())));
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

std::optional<std::vector<std::byte>> QtClipboard::png() const {
    const QMimeData* data = offered();
    if (data == nullptr || !data->hasFormat(kPngFormat))
        return std::nullopt;
    try {
        const QByteArray bytes = data->data(kPngFormat);
        const auto view = std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size())));
        if (view.empty())
            return std::nullopt;
        return std::vector<std::byte>(view.begin(), view.end());
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

std::optional<Picture> QtClipboard::picture() const {
    const QMimeData* data = offered();
    if (data == nullptr)
        return std::nullopt;
    const auto image = qvariant_cast<QImage>(data->imageData());
    return isPictureSize(image.width(), image.height()) ? pictureOf(image) : std::nullopt;
}

bool QtClipboard::setText(const std::string& text) {
    QClipboard* clipboard = desktopClipboard();
    if (clipboard == nullptr)
        return false;
    const QString wanted = QString::fromStdString(text);
    clipboard->setText(wanted);
    return clipboard->text() == wanted;
}

std::optional<std::string> QtClipboard::text() const {
    const QMimeData* data = offered();
    if (data == nullptr || !data->hasText())
        return std::nullopt;
    return data->text().toStdString();
}

} // namespace dyeworks
