#include "platform/qt/QtPictureReader.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

namespace dyeworks {

namespace {

/// In MiB; what the largest picture takes, and a little for what goes beside its pixels.
constexpr int kMostMemory = 1024 + 64;

PictureError tooLarge(const QSize& size) {
    return {PictureError::Kind::TooLarge, {}, size.width(), size.height()};
}

PictureError errorOf(const QImageReader& reader) {
    if (reader.error() == QImageReader::UnsupportedFormatError)
        return {PictureError::Kind::UnknownFormat, {}, 0, 0};
    return {PictureError::Kind::Damaged, reader.errorString().toStdString(), 0, 0};
}

/// Whether the rows of a bitmap that has no shorter form for them reach beyond the end of the file.
bool rowsAreCut(const QByteArray& bitmap) {
    constexpr int kOldHeader = 12;
    constexpr int kNewHeader = 40;
    if (bitmap.size() < 14 + kNewHeader)
        return false; // So small an old one has hardly a row.
    const auto number = [&bitmap](int at) {
        return qFromLittleEndian<std::int32_t>(bitmap.constData() + at);
    };
    const auto half = [&bitmap](int at) { return qFromLittleEndian<std::uint16_t>(bitmap.constData() + at); };
    const bool old = number(14) == kOldHeader;
    constexpr int kRle8 = 1;
    constexpr int kRle4 = 2;
    if (!old && (number(30) == kRle8 || number(30) == kRle4))
        return false;
    const std::int64_t width = old ? half(18) : number(18);
    const std::int64_t height = old ? half(20) : number(22);
    const std::int64_t rowBytes = (width * half(old ? 24 : 28) + 31) / 32 * 4;
    return static_cast<std::uint32_t>(number(10)) + rowBytes * std::abs(height) > bitmap.size();
}

/// Of some formats Qt gives what there is of a file that was cut off.
bool isCutOff(const QByteArray& format, const QByteArray& file) {
    if (format == "bmp")
        return rowsAreCut(file);
    // Within the data behind a "start of scan" neither of the two markers can occur.
    if (format == "jpeg")
        return file.lastIndexOf("\xFF\xD9") < file.lastIndexOf("\xFF\xDA");
    return false;
}

Colour colourOf(QRgb colour) {
    return {static_cast<std::uint8_t>(qRed(colour)), static_cast<std::uint8_t>(qGreen(colour)),
            static_cast<std::uint8_t>(qBlue(colour)), static_cast<std::uint8_t>(qAlpha(colour))};
}

bool hasTable(const QImage& image) {
    return image.format() == QImage::Format_Indexed8 || image.format() == QImage::Format_Mono ||
           image.format() == QImage::Format_MonoLSB;
}

template <typename Pixel>
void copyRows(const QImage& image, std::vector<Pixel>& to) {
    const auto width = static_cast<std::size_t>(image.width());
    to.resize(width * static_cast<std::size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(to.data() + width * static_cast<std::size_t>(y), image.constScanLine(y),
                    width * sizeof(Pixel));
}

} // namespace

std::optional<Picture> pictureOf(const QImage& image) {
    // The pixels are copied row by row as they stand.
    static_assert(sizeof(Colour) == 4);
    try {
        Picture picture;
        picture.width = image.width();
        picture.height = image.height();
        const bool indexed = hasTable(image);
        const QImage rows =
            image.convertToFormat(indexed ? QImage::Format_Indexed8 : QImage::Format_RGBA8888);
        if (rows.isNull())
            return std::nullopt;
        if (!indexed) {
            copyRows(rows, picture.pixels);
            return picture;
        }
        copyRows(rows, picture.indices);
        for (const QRgb colour : rows.colorTable())
            picture.colours.push_back(colourOf(colour));
        // A damaged file may use numbers for which it has no colour.
        const std::size_t used =
            std::size_t{*std::max_element(picture.indices.begin(), picture.indices.end())} + 1;
        picture.colours.resize(std::max(picture.colours.size(), used));
        return picture;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

Result<Picture, PictureError> QtPictureReader::read(std::span<const std::byte> file) const {
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(file.data()),
                                               static_cast<qsizetype>(file.size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader::setAllocationLimit(kMostMemory);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (const QSize size = reader.size(); size.isValid() && !isPictureSize(size.width(), size.height()))
        return tooLarge(size);
    const QByteArray format = reader.format();
    const QImage image = reader.read();
    if (image.isNull())
        return errorOf(reader);
    if (!isPictureSize(image.width(), image.height()))
        return tooLarge(image.size());
    if (isCutOff(format, bytes))
        return PictureError{PictureError::Kind::EndsTooEarly, {}, 0, 0};
    std::optional<Picture> picture = pictureOf(image);
    if (!picture)
        return PictureError{PictureError::Kind::NoMemory, {}, 0, 0};
    return std::move(*picture);
}

} // namespace dyeworks
