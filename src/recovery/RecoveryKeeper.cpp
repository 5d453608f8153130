#include "recovery/RecoveryKeeper.h"

#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "platform/StateFolder.h"
#include "project/CTPFDocument.h"
#include "recovery/PackedPalette.h"
#include "recovery/ShadowCopy.h"

#include <ctime>
#include <limits>
#include <new>
#include <utility>

namespace dyeworks {

namespace {

using std::chrono::seconds;

constexpr seconds kQuiet{2};
constexpr seconds kAtLatest{15};
/// Of an image in one look: about a millisecond of copying.
constexpr std::size_t kMostBytes = std::size_t{4} << 20U;

/// Without a file the title would bring its marks into the name that the document gets again.
std::string nameOf(const CDocument& document) {
    return document.pathName().empty() ? document.displayName() : document.title();
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
        }
        subject.unsaved = document->hasUnsavedChanges();
        subject.document = document;
        found.push_back(std::move(subject));
    }
    return found;
}

bool RecoveryKeeper::look(Clock::time_point now) {
    ++looks_;
    bool more = false;
    for (Subject& subject : subjects()) {
        Kept& kept = kept_[subject.key];
        kept.look = looks_;
        if (subject.table != nullptr && !(kept.table && *kept.table == *subject.table)) {
            kept.table = *subject.table;
            ++kept.tableChanges;
        }
        if (subject.table != nullptr)
            subject.stamp.changes = kept.tableChanges;
        if (!subject.unsaved) {
            forget(kept);
            kept.seen.reset();
            kept.written.reset();
            continue;
        }
        if (!isDue(kept, subject.stamp, now) || !writer_.isIdle())
            continue;
        if (write(kept, subject, hurried_ ? std::numeric_limits<std::size_t>::max() : kMostBytes))
            kept.written = subject.stamp;
        else
            more = true;
    }
    for (auto entry = kept_.begin(); entry != kept_.end();) {
        if (entry->second.look == looks_) {
            ++entry;
            continue;
        }
        forget(entry->second);
        std::erase_if(shadows_, [&](const auto& shadow) { return shadow.second == entry->second.shadow; });
        entry = kept_.erase(entry);
    }
    return more;
}

void RecoveryKeeper::forget(const Kept& kept) {
    if (kept.written)
        writer_.remove(kept.name);
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

bool RecoveryKeeper::write(Kept& kept, const Subject& subject, std::size_t most) {
    RecoveryItem item = subject.stamp.item;
    item.time = std::time(nullptr);
    std::string header = recoveryHeader(item);
    if (kept.name.empty())
        kept.name = fileStem(item.kind) + std::to_string(names_++);
    if (subject.table != nullptr) {
        const auto bytes = std::make_shared<std::vector<std::byte>>(packPalette(*subject.table));
        writeFile(kept, std::move(header), *bytes, bytes);
        return true;
    }
    if (const auto* const image = dynamic_cast<CDyeworksDoc*>(subject.document))
        return writeImage(kept, *image, std::move(header), most);
    const auto* const project = dynamic_cast<CTPFDocument*>(subject.document);
    if (project == nullptr)
        return true;
    if (const std::optional<std::string> text = project->projectFile().fileText()) {
        const auto bytes = std::make_shared<std::string>(*text);
        writeFile(kept, std::move(header), std::as_bytes(std::span(*bytes)), bytes);
    }
    return true;
}

void RecoveryKeeper::writeFile(const Kept& kept, std::string header, std::span<const std::byte> contents,
                               std::shared_ptr<const void> keeper) {
    ++writes_;
    writer_.write(kept.name, std::move(header), contents, std::move(keeper));
}

bool RecoveryKeeper::writeImage(Kept& kept, const CDyeworksDoc& image, std::string header, std::size_t most) {
    if (kept.shadow == nullptr) {
        kept.shadow = std::make_shared<ShadowCopy>();
        shadows_[&image] = kept.shadow;
    }
    try {
        if (!kept.shadow->bringUp(image.settledCanvas(), most))
            return false;
    } catch (const std::bad_alloc&) {
        // It is tried again with the next change.
        return true;
    }
    writeFile(kept, std::move(header), kept.shadow->bytes(), kept.shadow);
    return true;
}

void RecoveryKeeper::imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) {
    const auto shadow = shadows_.find(&image);
    if (shadow == shadows_.end() || !texels)
        return;
    shadow->second->mark(image.canvas(), *texels);
}

void RecoveryKeeper::keepNow() {
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
