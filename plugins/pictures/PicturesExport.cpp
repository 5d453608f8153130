#include "pictures/PicturesExport.h"

#include "common/Records.h"
#include "common/Say.h"
#include "common/WriteFile.h"
#include "common/WritePng.h"
#include "pictures/PictureFileNames.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace dyeworks::plugins {

namespace {

constexpr std::int32_t kTextSize = 65536;
constexpr std::int32_t kBankSize = 16;

/// Room for a text of the host.
class TextBuffer {
public:
    [[nodiscard]] char* data() noexcept { return text_.data(); }
    [[nodiscard]] QString text() const { return QString::fromUtf8(text_.data()); }

private:
    std::vector<char> text_ = std::vector<char>(kTextSize);
};

/// "\sky.tmf", "/sky.tmf" and "c:sky.tmf" are found without the project's folders.
bool isRooted(const QString& name) {
    return name.startsWith(QLatin1Char('\\')) || name.startsWith(QLatin1Char('/')) ||
           name.indexOf(QLatin1Char(':')) == 1;
}

/// Where a file of the project can be, in the order in which it is looked for.
QStringList placesOf(const QString& name, const QString& folders) {
    if (isRooted(name))
        return {name};
    QStringList places;
    for (QString folder : folders.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        if (!folder.endsWith(QLatin1Char('\\')) && !folder.endsWith(QLatin1Char('/')))
            folder += QLatin1Char('\\');
        places.append(folder + name);
    }
    return places;
}

class Exporter {
public:
    explicit Exporter(const QString& folder)
        : folder_(folder) {
        TextBuffer buffer;
        if (DW_getTMFDir(buffer.data(), kTextSize) != 0)
            imageFolders_ = buffer.text();
        if (DW_getTLFDir(buffer.data(), kTextSize) != 0)
            paletteFolders_ = buffer.text();
    }

    /// Empty, or why the picture is not there.
    [[nodiscard]] QString write(const ProjectPicture& picture) {
        const ImageRecord image = readImage(picture.image);
        if (image == nullptr)
            return say("the image \"%1\" cannot be read.", "画像「%1」を読み込めません。").arg(picture.image);
        PaletteRecord palette;
        if (!picture.palette.isEmpty()) {
            palette = readPalette(picture.palette);
            if (palette == nullptr)
                return say("the palette \"%1\" cannot be read.", "パレット「%1」を読み込めません。")
                    .arg(picture.palette);
        }
        // A palette without such a bank shows its first.
        const std::int32_t banks = palette == nullptr ? 0 : palette->count / kBankSize;
        const bool isBank = picture.bank < static_cast<std::uint32_t>(banks);
        const std::int32_t first = isBank ? static_cast<std::int32_t>(picture.bank) * kBankSize : 0;
        QString reason = writePngFile(QDir(folder_).filePath(picture.file), *image, palette.get(), first);
        if (reason.isEmpty())
            list(picture, *image);
        return reason;
    }

    /// The list of what was written. Empty, or why it is not there.
    [[nodiscard]] QString writeIndex() const {
        return writeFile(QDir(folder_).filePath(QString::fromLatin1(kIndexFile)),
                         QJsonDocument(QJsonObject{{QStringLiteral("pictures"), index_}}).toJson());
    }

private:
    [[nodiscard]] ImageRecord readImage(const QString& name) const {
        for (const QString& place : placesOf(name, imageFolders_)) {
            if (ImageRecord image{DW_getTMF(place.toUtf8().constData())})
                return image;
        }
        return nullptr;
    }

    /// An open palette is known by its whole path, or by a name of its own before it is saved.
    [[nodiscard]] PaletteRecord readPalette(const QString& name) const {
        const QStringList places = placesOf(name, paletteFolders_) + QStringList{name};
        for (const QString& place : places) {
            if (PaletteRecord palette{DW_getTLF(place.toUtf8().constData())})
                return palette;
        }
        return nullptr;
    }

    void list(const ProjectPicture& picture, const TmfImage& image) {
        index_.append(QJsonObject{{QStringLiteral("name"), picture.name},
                                  {QStringLiteral("file"), picture.file},
                                  {QStringLiteral("image"), picture.image},
                                  {QStringLiteral("palette"), picture.palette},
                                  {QStringLiteral("bank"), static_cast<qint64>(picture.bank)},
                                  {QStringLiteral("size"), QJsonArray{image.width, image.height}},
                                  {QStringLiteral("depth"), image.bits}});
    }

    QString folder_;
    QString imageFolders_;
    QString paletteFolders_;
    QJsonArray index_;
};

} // namespace

std::vector<ProjectPicture> projectPictures() {
    std::vector<ProjectPicture> pictures;
    PictureFileNames files;
    TextBuffer name;
    TextBuffer image;
    TextBuffer palette;
    for (std::int32_t i = 0; DW_getPictureName(i, name.data(), kTextSize) != 0; ++i) {
        ProjectPicture picture{name.text(), files.fileFor(name.text()), {}, {}, 0};
        if (DW_getPicture(name.data(), image.data(), kTextSize, palette.data(), kTextSize, &picture.bank) !=
            0) {
            picture.image = image.text();
            picture.palette = palette.text();
        }
        pictures.push_back(std::move(picture));
    }
    return pictures;
}

PicturesExport exportPictures(const QString& folder, const std::vector<ProjectPicture>& pictures,
                              const std::function<bool(std::size_t done)>& step) {
    PicturesExport result;
    Exporter exporter(folder);
    for (std::size_t i = 0; i < pictures.size() && step(i); ++i) {
        const QString reason = exporter.write(pictures[i]);
        if (reason.isEmpty())
            ++result.written;
        else
            result.failures.append(QStringLiteral("%1: %2").arg(pictures[i].name, reason));
    }
    if (const QString reason = exporter.writeIndex(); !reason.isEmpty())
        result.failures.append(QStringLiteral("%1: %2").arg(QString::fromLatin1(kIndexFile), reason));
    return result;
}

} // namespace dyeworks::plugins
