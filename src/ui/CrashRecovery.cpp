#include "ui/CrashRecovery.h"

#include "core/PaletteSet.h"
#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "framework/DocumentTemplate.h"
#include "framework/PathText.h"
#include "paint/BmpFormat.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CanvasFile.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "project/CTPFDocument.h"
#include "recovery/PackedPalette.h"
#include "ui/CMainFrame.h"
#include "ui/Workspace.h"
#include "ui/sheets/RecoverySheet.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

constexpr int kBetweenLooks = 500; // Milliseconds.
constexpr int kPictureSide = 96;
/// What takes longer to read than a list should take to show has no picture in it.
constexpr std::size_t kLargestShown = std::size_t{64} << 20U;
/// What stands before the contents is smaller.
constexpr std::size_t kHead = std::size_t{64} << 10U;

QImage pictureOf(const TlutData& table) {
    constexpr int kColumns = 16;
    const int rows = std::max(1, (table.count + kColumns - 1) / kColumns);
    QImage picture(kColumns, rows, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    const TextureLookupTable palette(table);
    for (int i = 0; i < table.count; ++i) {
        std::uint8_t red = 0;
        std::uint8_t green = 0;
        std::uint8_t blue = 0;
        std::uint8_t flags = 0;
        if (palette.toPaletteEntry(i, red, green, blue, flags))
            picture.setPixelColor(i % kColumns, i / kColumns, QColor(red, green, blue));
    }
    return picture;
}

/// Of the same size whatever it shows, so that the names below each other begin alike.
QIcon iconOf(const QImage& picture) {
    QPixmap square(kPictureSide, kPictureSide);
    square.fill(Qt::transparent);
    if (!picture.isNull()) {
        const bool small = picture.width() < kPictureSide && picture.height() < kPictureSide;
        const QImage scaled = picture.scaled(square.size(), Qt::KeepAspectRatio,
                                             small ? Qt::FastTransformation : Qt::SmoothTransformation);
        QPainter painter(&square);
        painter.drawImage((kPictureSide - scaled.width()) / 2, (kPictureSide - scaled.height()) / 2, scaled);
    }
    return QIcon(square);
}

QIcon iconOf(const RecoveryItem& item, std::span<const std::byte> contents) {
    if (item.kind == RecoveryItem::Kind::Palette) {
        const std::optional<TlutData> table = unpackPalette(contents);
        return iconOf(table ? pictureOf(*table) : QImage());
    }
    if (item.kind == RecoveryItem::Kind::Image && contents.size() <= kLargestShown)
        return iconOf(QImage::fromData(reinterpret_cast<const uchar*>(contents.data()),
                                       static_cast<int>(contents.size()), "BMP"));
    return iconOf(QImage());
}

/// A file that others have changed since is not to be saved over unasked.
void knowFile(KnownFile& file, const RecoveryItem& item) {
    if (item.tellsFile)
        file = KnownFile(item.path, item.file);
}

} // namespace

CrashRecovery::CrashRecovery(Workspace& workspace)
    : workspace_(workspace) {
    connect(&timer_, &QTimer::timeout, this, &CrashRecovery::look);
}

CrashRecovery::~CrashRecovery() = default;

void CrashRecovery::start() {
    keeper_.emplace(platform().stateFolder(),
                    RecoveryKeeper::Open{[this] { return workspace_.documents(); },
                                         [this] { return workspace_.paletteSet(); }});
    copies_.emplace(
        platform().stateFolder(),
        [](const std::string& path, FileError why) {
            applicationMessage(text(StringId::WrittenInPlaceBroke, {displayPath(path), describe(why)}));
        },
        [this] { timer_.setInterval(0); });
    timer_.start(kBetweenLooks);
}

void CrashRecovery::look() {
    const bool more = keeper_->look(RecoveryKeeper::Clock::now());
    timer_.setInterval(more ? 0 : kBetweenLooks);
    tellFailure();
}

/// Once, when the user is not in the middle of something.
void CrashRecovery::tellFailure() {
    const auto failure = keeper_->failure();
    if (!failure || failureTold_ || !workspace_.hasMainFrame() ||
        QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activeModalWidget() != nullptr ||
        QApplication::activePopupWidget() != nullptr)
        return;
    failureTold_ = true;
    applicationWarning(text(StringId::RecoveryFailed, {describe(*failure)}),
                       *failure == FileError::TooLarge
                           ? adviceOnOpening(*failure)
                           : text(StringId::RecoveryFolderAdvice, {platform().stateFolder().location()}));
}

void CrashRecovery::plugInCallBegins(const std::string& fileName) {
    if (keeper_)
        keeper_->mayHang([this, fileName] { hangNotice_.show(fileName, RecoveryKeeper::kHangs); });
}

void CrashRecovery::plugInCallEnds() {
    if (keeper_)
        keeper_->cameBack();
    hangNotice_.close();
}

void CrashRecovery::keepWhileHanging() {
    if (keeper_)
        keeper_->keepWhileHanging();
}

void CrashRecovery::imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) {
    if (keeper_)
        keeper_->imageChanged(image, texels);
}

void CrashRecovery::keepNow() {
    if (keeper_)
        keeper_->keepNow();
}

void CrashRecovery::end() {
    timer_.stop();
    copies_.reset();
    if (keeper_)
        keeper_->discard();
    keeper_.reset();
}

void CrashRecovery::find() {
    if (states_)
        return;
    states_ = platform().stateFolder().left();
    for (const auto& state : *states_) {
        for (const std::string& name : state->names()) {
            const auto file = state->readStart(name, kHead);
            if (!file)
                continue;
            if (auto read = parseRecoveryItem(file.value().bytes()))
                left_.push_back({state.get(), name, std::move(read->item)});
        }
    }
    // Palettes come first, so that images find theirs.
    std::ranges::stable_sort(left_, {}, [](const Left& left) { return left.item.kind; });
}

bool CrashRecovery::hasLeft() {
    find();
    return !left_.empty();
}

void CrashRecovery::offer() {
    find();
    while (!left_.empty()) {
        std::vector<RecoverySheet::Row> rows;
        for (const Left& left : left_) {
            const auto file = left.state->readStart(left.name, kLargestShown + kHead);
            const auto read = file ? parseRecoveryItem(file.value().bytes()) : std::nullopt;
            const bool inFile = !left.item.path.empty() && !left.item.path.starts_with('*');
            rows.push_back({read ? iconOf(read->item, read->contents) : QIcon(),
                            QString::fromStdString(left.item.title),
                            inFile ? QString::fromStdString(displayPath(left.item.path)) : QString(),
                            QDateTime::fromSecsSinceEpoch(left.item.time)});
        }
        RecoverySheet sheet(rows, &workspace_.mainFrame());
        const int answer = sheet.exec();
        if (answer == QDialog::Rejected)
            break;
        if (answer == QDialog::Accepted)
            recover(sheet.chosen());
        else if (applicationMessage(
                     text(StringId::RecoveryDiscardQuestion, {std::to_string(sheet.chosen().size())}),
                     MessageButtons::YesNo) == MessageAnswer::Yes)
            forget(sheet.chosen());
    }
    // What is still there is free to be offered again.
    left_.clear();
    states_->clear();
}

void CrashRecovery::recover(const std::vector<std::size_t>& rows) {
    std::vector<Renamed> palettes;
    std::vector<std::size_t> opened;
    std::string failed;
    for (const std::size_t row : rows) {
        const Left& left = left_[row];
        const auto file = left.state->read(left.name);
        const auto read = file ? parseRecoveryItem(file.value().bytes()) : std::nullopt;
        if (read && open(left.item, read->contents, palettes))
            opened.push_back(row);
        else
            failed += "\n" + left.item.title;
    }
    // It is kept by this run before what the other one has kept is taken away.
    keepNow();
    forget(opened);
    if (!failed.empty())
        applicationMessage(text(StringId::RecoveryNotOpened, {failed}));
}

bool CrashRecovery::open(const RecoveryItem& item, std::span<const std::byte> contents,
                         std::vector<Renamed>& palettes) {
    switch (item.kind) {
    case RecoveryItem::Kind::Palette: {
        const std::optional<TlutData> table = unpackPalette(contents);
        return table && openPalette(item, *table, palettes);
    }
    case RecoveryItem::Kind::Image: {
        const Result<BmpImage, BmpError> bitmap = parseBmp(contents);
        return bitmap &&
               openImage(
                   item, [&](CDyeworksDoc& image) { return image.CreateFrom(bitmap.value()); }, palettes);
    }
    case RecoveryItem::Kind::File:
        return openFile(item, contents, palettes);
    case RecoveryItem::Kind::Project:
        break;
    }
    return openProject(item, contents);
}

/// By the kind of the file, as if it were opened.
bool CrashRecovery::openFile(const RecoveryItem& item, std::span<const std::byte> contents,
                             std::vector<Renamed>& palettes) {
    const std::string_view extension = extensionOf(item.path);
    if (equalIgnoringCase(extension, ".tpf"))
        return openProject(item, contents);
    if (equalIgnoringCase(extension, ".tlf")) {
        const auto table = parseTlf(contents);
        return table && openPalette(item, table.value(), palettes);
    }
    RecoveryItem as = item;
    as.kind = RecoveryItem::Kind::Image;
    if (isBmpName(item.path))
        return open(as, contents, palettes);
    const auto image = parseTmf(contents);
    return image &&
           openImage(
               as, [&](CDyeworksDoc& document) { return document.CreateFrom(image.value()); }, palettes);
}

bool CrashRecovery::openPalette(const RecoveryItem& item, const TlutData& table,
                                std::vector<Renamed>& palettes) {
    auto palette = std::make_unique<TextureLookupTable>(table);
    palette->path = item.path;
    palette->titleFromPath();
    palette->markUnsaved();
    PaletteSet& set = *workspace_.paletteSet();
    if (!set.add(std::move(palette)))
        return false;
    if (KnownFile& file = set.lookup("")->file(); file.isAt(item.path))
        knowFile(file, item);
    palettes.push_back({item.path, set.currentKey});
    return true;
}

bool CrashRecovery::openImage(const RecoveryItem& item, const std::function<bool(CDyeworksDoc&)>& fill,
                              const std::vector<Renamed>& palettes) {
    // What became of the palette; one that had no unsaved changes is to be opened from its file.
    std::string key = item.attachedName;
    const auto renamed = std::ranges::find(palettes, key, &Renamed::before);
    if (renamed != palettes.end())
        key = renamed->key;
    else if (!key.empty() && !key.starts_with('*') && workspace_.paletteSet()->lookup(key) == nullptr)
        workspace_.OpenDocumentFile(key);
    const bool isFree = !item.path.empty() && workspace_.FindOpenDocument(item.path) == nullptr;
    return workspace_.imageTemplate().newDocument(item.title, [&](CDocument& document) {
        auto& image = static_cast<CDyeworksDoc&>(document);
        if (!fill(image))
            return false;
        if (isFree)
            image.setPathName(item.path);
        if (isFree)
            knowFile(image.file(), item);
        image.setAttachedName(key);
        image.setPaletteValue(item.firstEntry);
        image.RefreshOwnPalette();
        return true;
    }) != nullptr;
}

bool CrashRecovery::openProject(const RecoveryItem& item, std::span<const std::byte> contents) {
    return workspace_.projectTemplate().newDocument(item.title, [&](CDocument& document) {
        if (!static_cast<CTPFDocument&>(document).Recover(item.path, contents))
            return false;
        knowFile(document.file(), item);
        return true;
    }) != nullptr;
}

void CrashRecovery::forget(const std::vector<std::size_t>& rows) {
    // From the last on, so that the numbers of the others stay.
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        const Left& left = left_[*row];
        left.state->remove(left.name);
        if (left.state->names().empty())
            left.state->discard();
        left_.erase(left_.begin() + static_cast<std::ptrdiff_t>(*row));
    }
}

} // namespace dyeworks
