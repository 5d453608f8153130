#include "recovery/RecoveryKeeper.h"

#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CanvasDrawing.h"
#include "paint/DrawingOptions.h"
#include "platform/StateFolder.h"
#include "project/CTPFDocument.h"
#include "recovery/PackedPalette.h"
#include "recovery/ShadowCopy.h"

#include <algorithm>
#include <ctime>
#include <limits>
#include <new>
#include <tuple>
#include <utility>

namespace dyeworks {

namespace {

using std::chrono::seconds;

constexpr seconds kQuiet{2};
constexpr seconds kAtLatest{15};
/// Of an image in one look: about a millisecond of copying.
constexpr std::size_t kMostBytes = std::size_t{4} << 20U;
/// For the disk, before something is called that may hang.
constexpr std::chrono::milliseconds kPatience{200};

/// Without a file the title would bring its marks into the name that the document gets again.
std::string nameOf(const CDocument& document) {
    return document.pathName().empty() ? document.displayName() : document.title();
}

void tellFile(RecoveryItem& item, const KnownFile& file) {
    item.tellsFile = !item.path.empty() && file.path() == item.path;
    if (item.tellsFile)
        item.file = file.known();
}

const char* fileStem(RecoveryItem::Kind kind) {
    switch (kind) {
    case RecoveryItem::Kind::Palette:
        return "palette-";
    case RecoveryItem::Kind::Image:
        return "image-";
    case RecoveryItem::Kind::Project:
    case RecoveryItem::Kind::File:
        break;
    }
    return "project-";
}

/// What floats above the image is kept as if it had been placed. The next copying takes it out again.
void placePieces(ShadowCopy& shadow, const CDyeworksDoc& image) {
    const std::vector<FloatingPiece> pieces = image.floatingPieces();
    const TextureCanvas& canvas = image.settledCanvas();
    std::int32_t top = canvas.height();
    std::int32_t bottom = -1;
    for (const FloatingPiece& piece : pieces) {
        // Around the edges it may touch any row.
        const bool anywhere = drawingOptions().wrap;
        top = anywhere ? 0 : std::max(0, std::min({top, piece.place.top, piece.place.bottom}));
        bottom =
            std::min(canvas.height() - 1,
                     anywhere ? canvas.height() : std::max({bottom, piece.place.top, piece.place.bottom}));
    }
    if (top > bottom)
        return;
    const std::unique_ptr<TextureCanvas> rows = canvas.CopyRect(0, top, canvas.width() - 1, bottom);
    if (rows == nullptr)
        throw std::bad_alloc();
    for (const FloatingPiece& piece : pieces) {
        Rect place = piece.place;
        place.top -= top;
        place.bottom -= top;
        CanvasDrawing(*rows, drawingOptions(), 0).paste(*piece.texels, place);
    }
    shadow.cover(canvas, *rows, top);
}

} // namespace

RecoveryKeeper::RecoveryKeeper(StateFolder& folder, Open open)
    : open_(std::move(open))
    , folder_(folder)
    , writer_(folder) {}

RecoveryKeeper::~RecoveryKeeper() = default;

std::vector<RecoveryKeeper::Subject> RecoveryKeeper::subjects() const {
    std::vector<Subject> found;
    if (const PaletteSet* const set = open_.palettes()) {
        for (const auto& [key, palette] : set->palettes) {
            Subject subject;
            subject.key = "palette " + key;
            subject.stamp.item = {RecoveryItem::Kind::Palette, key, palette->title, 0, {}, 0};
            // One that was never saved is in no file, changed or not.
            subject.unsaved = palette->hasUnsavedChanges() || key.starts_with('*');
            subject.table = &palette->table;
            tellFile(subject.stamp.item, palette->file());
            found.push_back(std::move(subject));
        }
    }
    for (CDocument* const document : open_.documents()) {
        const auto* const image = dynamic_cast<CDyeworksDoc*>(document);
        Subject subject;
        subject.key = "document " + std::to_string(document->number());
        subject.stamp.changes = document->changes();
        subject.stamp.item = {image != nullptr ? RecoveryItem::Kind::Image : RecoveryItem::Kind::Project,
                              document->pathName(),
                              nameOf(*document),
                              0,
                              {},
                              0};
        if (image != nullptr) {
            subject.stamp.item.attachedName = image->attachedName();
            subject.stamp.item.firstEntry = image->paletteValue();
            subject.stamp.position = image->edits().position();
            subject.stamp.pieces = image->floatingPieces();
        }
        tellFile(subject.stamp.item, document->file());
        subject.unsaved = document->hasUnsavedChanges();
        subject.document = document;
        found.push_back(std::move(subject));
    }
    return found;
}

RecoveryKeeper::Kept& RecoveryKeeper::keptOf(Subject& subject) {
    Kept& kept = kept_[subject.key];
    if (subject.table == nullptr)
        return kept;
    if (!(kept.table && *kept.table == *subject.table)) {
        kept.table = *subject.table;
        ++kept.tableChanges;
    }
    subject.stamp.changes = kept.tableChanges;
    return kept;
}

bool RecoveryKeeper::look(Clock::time_point now) {
    // Whoever is here has not been left hanging.
    settleHeld();
    // Who is in a hurry tries each once.
    if (!hurried_)
        takeFailed(now);
    memoryIsShort_ = false;
    ++looks_;
    bool more = false;
    try {
        for (Subject& subject : subjects())
            more = lookAt(subject, now) || more;
        dropClosed();
    } catch (const std::bad_alloc&) {
        memoryIsShort_ = true;
        return false;
    }
    // It may yet hang.
    if (hanging_ > 0)
        holdUnsaved();
    return more;
}

/// What this look has not met is no longer open.
void RecoveryKeeper::dropClosed() {
    for (auto entry = kept_.begin(); entry != kept_.end();) {
        if (entry->second.look == looks_) {
            ++entry;
            continue;
        }
        forget(entry->second);
        std::erase_if(shadows_, [&](const auto& shadow) { return shadow.second == entry->second.shadow; });
        entry = kept_.erase(entry);
    }
}

/// Whether there is more to do at once.
bool RecoveryKeeper::lookAt(Subject& subject, Clock::time_point now) {
    Kept& kept = keptOf(subject);
    kept.look = looks_;
    if (!subject.unsaved) {
        forget(kept);
        kept.seen.reset();
        kept.written.reset();
        return false;
    }
    forgetOlderThanFile(kept, subject.stamp, now);
    if (!isDue(kept, subject.stamp, now) || !writer_.isIdle())
        return false;
    try {
        auto file = fileOf(kept, subject, hurried_ ? std::numeric_limits<std::size_t>::max() : kMostBytes);
        if (!file)
            return true;
        if (file->keeper != nullptr) {
            kept.inFolder = subject.stamp.item;
            writer_.write(std::move(*file));
            ++writes_;
        }
        kept.written = std::move(subject.stamp);
    } catch (const std::bad_alloc&) {
        memoryIsShort_ = true;
        tryLater(kept, now);
    }
    return false;
}

void RecoveryKeeper::forget(Kept& kept) {
    if (!kept.inFolder)
        return;
    writer_.remove(kept.name);
    kept.inFolder.reset();
}

/// Once a document has been saved, the file holds more than what was kept of it before, also when it has been
/// changed again since.
void RecoveryKeeper::forgetOlderThanFile(Kept& kept, const Stamp& stamp, Clock::time_point now) {
    const auto fileOf = [](const RecoveryItem& item) {
        return std::tie(item.path, item.tellsFile, item.file);
    };
    if (!kept.inFolder || fileOf(*kept.inFolder) == fileOf(stamp.item))
        return;
    forget(kept);
    kept.written.reset();
    kept.seen = stamp;
    kept.changed = now;
    kept.first = now - kAtLatest;
}

bool RecoveryKeeper::isDue(Kept& kept, const Stamp& stamp, Clock::time_point now) const {
    if (kept.written == stamp)
        return false;
    if (kept.seen != stamp) {
        if (!kept.seen || kept.seen == kept.written)
            kept.first = now;
        kept.seen = stamp;
        kept.changed = now;
    }
    return hurried_ || now - kept.changed >= kQuiet || now - kept.first >= kAtLatest;
}

/// A full disk is not to be filled again at every look.
void RecoveryKeeper::tryLater(Kept& kept, Clock::time_point now) {
    kept.written.reset();
    kept.first = now;
    kept.changed = now + (kAtLatest - kQuiet);
}

void RecoveryKeeper::takeFailed(Clock::time_point now) {
    const std::vector<std::string> failed = writer_.takeFailed();
    for (auto& [key, kept] : kept_) {
        if (std::ranges::find(failed, kept.name) != failed.end())
            tryLater(kept, now);
    }
}

std::optional<RecoveryWriter::File> RecoveryKeeper::fileOf(Kept& kept, const Subject& subject,
                                                           std::size_t most) {
    RecoveryItem item = subject.stamp.item;
    item.time = std::time(nullptr);
    if (kept.name.empty())
        kept.name = fileStem(item.kind) + std::to_string(names_++);
    RecoveryWriter::File file{kept.name, recoveryHeader(item), {}, nullptr};
    if (subject.table != nullptr) {
        const auto bytes = std::make_shared<std::vector<std::byte>>(packPalette(*subject.table));
        file.contents = *bytes;
        file.keeper = bytes;
    } else if (const auto* const image = dynamic_cast<CDyeworksDoc*>(subject.document)) {
        const std::shared_ptr<ShadowCopy> shadow = shadowOf(kept, *image, most);
        if (shadow == nullptr)
            return std::nullopt;
        file.contents = shadow->bytes();
        file.keeper = shadow;
    } else if (const auto* const project = dynamic_cast<CTPFDocument*>(subject.document)) {
        if (std::optional<std::string> text = project->projectFile().fileText()) {
            const auto bytes = std::make_shared<std::string>(std::move(*text));
            file.contents = std::as_bytes(std::span(*bytes));
            file.keeper = bytes;
        }
    }
    return file;
}

std::shared_ptr<ShadowCopy> RecoveryKeeper::shadowOf(Kept& kept, const CDyeworksDoc& image,
                                                     std::size_t most) {
    if (kept.shadow == nullptr) {
        kept.shadow = std::make_shared<ShadowCopy>();
        shadows_[&image] = kept.shadow;
    }
    if (!kept.shadow->bringUp(image.settledCanvas(), most))
        return nullptr;
    placePieces(*kept.shadow, image);
    return kept.shadow;
}

void RecoveryKeeper::mayHang(std::function<void()> then) {
    if (hanging_++ > 0)
        return;
    whenItHangs_ = std::move(then);
    holdUnsaved();
}

void RecoveryKeeper::holdUnsaved() {
    settleHeld();
    // A copy that is being written must stay as it is. What cannot be had soon is kept as it last was.
    if (!writer_.waitUntilIdle(kPatience))
        return;
    std::vector<RecoveryWriter::File> files;
    try {
        for (Subject& subject : subjects()) {
            Kept& kept = keptOf(subject);
            if (!subject.unsaved || kept.written == subject.stamp)
                continue;
            auto file = fileOf(kept, subject, std::numeric_limits<std::size_t>::max());
            if (!file || file->keeper == nullptr)
                continue;
            held_.push_back({subject.key, subject.stamp});
            files.push_back(std::move(*file));
        }
    } catch (const std::bad_alloc&) {
        held_.erase(held_.begin() + static_cast<std::ptrdiff_t>(files.size()), held_.end());
    }
    writer_.hold(std::move(files), kHangs, whenItHangs_);
}

void RecoveryKeeper::cameBack() {
    if (hanging_ > 0 && --hanging_ == 0)
        settleHeld();
}

void RecoveryKeeper::settleHeld() {
    if (writer_.drop()) {
        held_.clear();
        return;
    }
    for (auto& [key, stamp] : std::exchange(held_, {})) {
        if (const auto kept = kept_.find(key); kept != kept_.end()) {
            kept->second.inFolder = stamp.item;
            kept->second.written = std::move(stamp);
        }
    }
}

void RecoveryKeeper::keepWhileHanging() {
    writer_.release();
    writer_.waitUntilIdle();
}

void RecoveryKeeper::imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) {
    const auto shadow = shadows_.find(&image);
    if (shadow == shadows_.end() || !texels)
        return;
    shadow->second->mark(image.canvas(), *texels);
}

void RecoveryKeeper::keepNow() {
    takeFailed(Clock::now());
    hurried_ = true;
    std::uint64_t before = 0;
    // Each look writes one of them, because the next one waits for the writer.
    do {
        writer_.waitUntilIdle();
        before = writes_;
        static_cast<void>(look(Clock::now()));
    } while (writes_ != before);
    writer_.waitUntilIdle();
    hurried_ = false;
}

void RecoveryKeeper::discard() {
    writer_.waitUntilIdle();
    kept_.clear();
    shadows_.clear();
    folder_.discard();
}

} // namespace dyeworks
