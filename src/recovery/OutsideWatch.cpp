#include "recovery/OutsideWatch.h"

#include "core/PaletteSet.h"
#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "framework/PathText.h"
#include "paint/BmpFormat.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CanvasFile.h"
#include "platform/FileWatcher.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

using State = KnownFile::State;

struct OutsideWatch::Subject {
    CDocument* document = nullptr;
    TextureLookupTable* palette = nullptr;
    PaletteSet* palettes = nullptr;

    [[nodiscard]] KnownFile& file() const { return palette != nullptr ? palette->file() : document->file(); }
    [[nodiscard]] bool isUnsaved() const {
        return palette != nullptr ? palette->hasUnsavedChanges() : document->hasUnsavedChanges();
    }
    [[nodiscard]] bool isOf(const Notice& notice) const {
        return document == notice.document && file().path() == notice.path;
    }
    [[nodiscard]] bool reload() const {
        if (palette == nullptr)
            return document->reloadFile();
        const bool reloaded = palette->reloadFile();
        if (reloaded)
            palettes->entriesMoved(*palette);
        return reloaded;
    }
    void markUnsaved() const {
        if (palette == nullptr) {
            document->markUnsaved();
            return;
        }
        palette->markUnsaved();
        palettes->entriesChanged(*palette);
    }
};

namespace {

/// A file that is still being written is no whole one.
bool holdsWholeImage(const std::string& path) {
    const Files& files = platform().files();
    if (isBmpName(path)) {
        const auto bytes = files.read(path);
        return bytes && parseBmp(bytes.value().bytes());
    }
    const auto file = files.openForReading(path);
    if (!file)
        return false;
    const auto header = readTmfHeader(*file.value());
    return header && TmfImage::canBe(header.value().width, header.value().height, header.value().bits) &&
           missingTexelBytes(header.value(), file.value()->size()) == 0;
}

bool holdsWholePalette(const std::string& path) {
    const auto bytes = platform().files().read(path);
    return bytes && parseTlf(bytes.value().bytes());
}

/// Without a word about what could not be read.
bool canBeReloaded(const std::string& path, const CDocument* document) {
    if (document == nullptr)
        return holdsWholePalette(path);
    const auto* const image = dynamic_cast<const CDyeworksDoc*>(document);
    return image == nullptr || (!image->isBeingEdited() && holdsWholeImage(path));
}

} // namespace

bool OutsideWatch::Notice::offersReload() const {
    return state == State::Changed || state == State::BackChanged;
}

std::string OutsideWatch::Notice::words() const {
    const std::string name(fileNameOf(path));
    switch (state) {
    case State::Removed:
        return text(StringId::OutsideRemoved, {name});
    case State::Back:
        return text(StringId::OutsideBack, {name});
    case State::BackChanged:
        return text(StringId::OutsideBackChanged, {name});
    default:
        return text(unsaved ? StringId::OutsideChangedBoth : StringId::OutsideChanged, {name});
    }
}

OutsideWatch::OutsideWatch(FileWatcher& watcher, Open open)
    : watcher_(watcher)
    , open_(std::move(open)) {}

OutsideWatch::~OutsideWatch() {
    watcher_.watch({});
}

std::vector<OutsideWatch::Subject> OutsideWatch::subjects() const {
    std::vector<Subject> found;
    if (PaletteSet* const set = open_.palettes()) {
        for (const auto& [key, palette] : set->palettes)
            found.push_back({nullptr, palette.get(), set});
    }
    for (CDocument* const document : open_.documents())
        found.push_back({document, nullptr, nullptr});
    std::erase_if(found, [](const Subject& subject) { return subject.file().path().empty(); });
    return found;
}

std::vector<std::string> OutsideWatch::paths() const {
    std::vector<std::string> paths;
    for (const Subject& subject : subjects())
        paths.push_back(subject.file().path());
    std::ranges::sort(paths);
    return paths;
}

void OutsideWatch::follow() {
    if (std::vector<std::string> now = paths(); now != watched_)
        watcher_.watch(watched_ = std::move(now));
    for (const Subject& subject : subjects()) {
        if (subject.file().rememberContents())
            break;
    }
}

bool OutsideWatch::look(bool reloadsUnchanged, const std::set<std::string>* answering) {
    bool goesOn = false;
    for (const Subject& subject : subjects()) {
        KnownFile& file = subject.file();
        if (answering == nullptr || answering->contains(file.path()))
            goesOn = file.look() == State::Unsettled || goesOn;
    }
    if (!reloadsUnchanged)
        return goesOn;
    for (const Notice& notice : notices()) {
        if (!notice.offersReload() || notice.unsaved || !canBeReloaded(notice.path, notice.document))
            continue;
        if (reload(notice))
            reloaded_.push_back(notice.path);
    }
    return goesOn;
}

std::vector<OutsideWatch::Notice> OutsideWatch::notices() const {
    std::vector<Notice> notices;
    for (const Subject& subject : subjects()) {
        KnownFile& file = subject.file();
        if (file.asks())
            notices.push_back({file.path(), subject.document, file.state(), subject.isUnsaved()});
    }
    return notices;
}

std::vector<std::string> OutsideWatch::takeReloaded() {
    return std::exchange(reloaded_, {});
}

bool OutsideWatch::reload(const Notice& notice) {
    // It may have been closed meanwhile.
    for (const Subject& subject : subjects()) {
        if (subject.isOf(notice))
            return subject.reload();
    }
    return false;
}

void OutsideWatch::keep(const Notice& notice) {
    for (const Subject& subject : subjects()) {
        if (!subject.isOf(notice))
            continue;
        subject.file().keep();
        if (notice.state != State::Back)
            subject.markUnsaved();
        return;
    }
}

} // namespace dyeworks
