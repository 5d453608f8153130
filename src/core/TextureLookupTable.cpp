#include "core/TextureLookupTable.h"

#include "core/PaletteSet.h"
#include "core/PaletteUndoRecord.h"
#include "core/Report.h"
#include "platform/AskForFile.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <new>
#include <utility>

namespace dyeworks {

namespace {

constexpr const char* kModifiedMark = " * ";
constexpr const char* kFilter = "TLF Files (*.tlf)|*.tlf|All Files (*.*)|*.*||";
constexpr const char* kExtension = ".tlf";

/// Numbers the palettes that were created in this run.
std::uint32_t namingCounter = 0;

bool isUnsavedName(const std::string& path) {
    return !path.empty() && path.front() == '*';
}

std::unique_ptr<UndoRecord> makePaletteRecord(const TlutData* before, const TlutData* after) {
    return std::make_unique<PaletteUndoRecord>(before, after);
}

std::uint8_t widened(std::uint8_t fiveBits) {
    return static_cast<std::uint8_t>(fiveBits << 3);
}

} // namespace

class TextureLookupTable::Side : public JointDocument {
public:
    explicit Side(TextureLookupTable& palette)
        : palette_(palette) {}

    std::string jointName() const override {
        return palette_.path.empty() || isUnsavedName(palette_.path)
                   ? palette_.title.substr(0, palette_.title.find(kModifiedMark))
                   : displayPath(palette_.path);
    }
    const EditHistory& jointHistory() const override { return palette_.edits_; }
    void settle() override {}
    bool moveAlone(StepWay way) override {
        const bool moved = way == StepWay::Back ? palette_.edits_.undo(&palette_.table)
                                                : palette_.edits_.redo(&palette_.table);
        if (moved)
            palette_.updateTitle();
        return moved;
    }
    void take(std::unique_ptr<UndoRecord> record) override {
        record->redo(&palette_.table);
        palette_.edits_.add(std::move(record));
        palette_.updateTitle();
    }
    void showMoved() override {
        if (PaletteSet* const set = applicationPaletteSet())
            set->entriesMoved(palette_);
    }

private:
    TextureLookupTable& palette_;
};

TextureLookupTable::TextureLookupTable()
    : makeRecord_(makePaletteRecord)
    , jointSide_(std::make_unique<Side>(*this)) {}

TextureLookupTable::TextureLookupTable(const TextureLookupTable& other)
    : table(other.table)
    , path(other.path)
    , title(other.title)
    , modified(other.modified)
    , file_(other.file_)
    , savedTable_(other.savedTable_)
    , makeRecord_(other.makeRecord_)
    , jointSide_(std::make_unique<Side>(*this)) {
    if (!other.edits_.standsAtSavedPosition())
        edits_.loseSavedPosition();
}

TextureLookupTable::TextureLookupTable(const TlutData& source)
    : table(source)
    , makeRecord_(makePaletteRecord)
    , jointSide_(std::make_unique<Side>(*this)) {}

TextureLookupTable::~TextureLookupTable() = default;

bool TextureLookupTable::create(std::int32_t count, ColourType colourType) {
    const std::string number = std::to_string(static_cast<std::int32_t>(namingCounter));
    title = "palette" + number;
    path = "*palette" + number;
    if (!table.create(count, colourType)) {
        reportTlf(text(StringId::PaletteCreateFailed,
                       {std::to_string(count), std::to_string(static_cast<std::int32_t>(colourType))}));
        return false;
    }
    ++namingCounter;
    return true;
}

bool TextureLookupTable::save(const char* name, bool forceDialog) {
    std::string target = path;
    if (name != nullptr && *name != '\0' && !isUnsavedName(name)) {
        target = name;
    } else if (forceDialog || path.empty() || isUnsavedName(path)) {
        const auto chosen = askForFileToSave({.filter = kFilter,
                                              .defaultExtension = kExtension,
                                              .initialName = isUnsavedName(path) ? path.substr(1) : path});
        if (!chosen)
            return false;
        target = *chosen;
    }
    if (isFileOfAnother(target)) {
        reportTlf(text(StringId::FileIsOfOpenPalette, {displayPath(target)}));
        return false;
    }
    if (!file_.mayBeReplaced(target) || !table.saveTlf(target))
        return false;
    path = target;
    file_ = KnownFile(path);
    titleFromPath();
    modified = false;
    markSaved();
    return true;
}

bool TextureLookupTable::isFileOfAnother(const std::string& file) const {
    const PaletteSet* const set = applicationPaletteSet();
    const TextureLookupTable* const open = set == nullptr ? nullptr : set->lookup(file);
    return open != nullptr && open != this;
}

bool TextureLookupTable::open(const char* name) {
    if (modified)
        return false;
    const std::string source = name == nullptr ? "" : name;
    if (!source.empty()) {
        path = source;
    } else if (path.empty()) {
        const auto chosen = askForFileToOpen(
            {.filter = kFilter, .defaultExtension = kExtension, .initialName = title, .fileMustExist = true});
        if (!chosen)
            return false;
        path = *chosen;
    }
    KnownFile now(path);
    if (!table.readTlf(path))
        return false;
    file_ = std::move(now);
    edits_.setStart(HistoryStart::Opened);
    titleFromPath();
    markSaved();
    updateTitle();
    return true;
}

bool TextureLookupTable::reloadFile() {
    KnownFile now(path);
    TlutData read;
    if (!read.readTlf(path))
        return false;
    if (!(read == table)) {
        beginEdit();
        table = std::move(read);
        commitEdit(StringId::StepReload);
    }
    file_ = std::move(now);
    title.resize(std::min(title.size(), title.find(kModifiedMark)));
    modified = false;
    markSaved();
    return true;
}

bool TextureLookupTable::setRed(std::int32_t index, std::int32_t value) {
    return changed(table.setRed(index, value));
}

bool TextureLookupTable::setGreen(std::int32_t index, std::int32_t value) {
    return changed(table.setGreen(index, value));
}

bool TextureLookupTable::setBlue(std::int32_t index, std::int32_t value) {
    return changed(table.setBlue(index, value));
}

bool TextureLookupTable::setIntensity(std::int32_t index, std::int32_t value) {
    return changed(table.setIntensity(index, value));
}

bool TextureLookupTable::setAlpha(std::int32_t index, std::int32_t value) {
    return changed(table.setAlpha(index, value));
}

bool TextureLookupTable::setEntry(std::int32_t index, std::uint16_t entry) {
    return changed(table.setEntry(index, entry));
}

bool TextureLookupTable::setEntryAlias(std::int32_t index, std::uint16_t entry) {
    return changed(table.setEntry(index, entry));
}

void TextureLookupTable::updateTitle() {
    const std::string base = title.substr(0, title.find(kModifiedMark));
    const bool clean = history && !canUndo();
    if (clean && modified) {
        modified = false;
        title = base;
    } else if (!clean && !modified) {
        modified = true;
        title = base + kModifiedMark;
    }
}

bool TextureLookupTable::toPaletteEntry(std::int32_t index, std::uint8_t& red, std::uint8_t& green,
                                        std::uint8_t& blue, std::uint8_t& flags) const {
    if (table.entries == nullptr || index < 0 || index >= table.count)
        return false;
    const PaletteSet* const set = applicationPaletteSet();
    const bool showAlpha = set != nullptr && set->alphaView != 0;
    switch (table.colourType) {
    case ColourType::Rgba:
        if (showAlpha) {
            red = green = blue = table.getAlpha(index) != 0 ? 255 : 0;
        } else {
            red = widened(table.getRed(index));
            green = widened(table.getGreen(index));
            blue = widened(table.getBlue(index));
        }
        break;
    case ColourType::Ia:
        red = green = blue = showAlpha ? table.getAlpha(index) : table.getIntensity(index);
        break;
    default:
        return false;
    }
    flags = 0;
    return true;
}

bool TextureLookupTable::toRgbQuad(std::int32_t index, std::uint8_t& blue, std::uint8_t& green,
                                   std::uint8_t& red, std::uint8_t& reserved) const {
    return toPaletteEntry(index, red, green, blue, reserved);
}

std::unique_ptr<LogPalette> TextureLookupTable::newLogPalette() const {
    std::unique_ptr<LogPalette> description;
    try {
        description = std::make_unique<LogPalette>();
        description->entryCount = static_cast<std::uint16_t>(table.count & 0xFFFF);
        description->entries.reserve(description->entryCount);
    } catch (const std::bad_alloc&) {
        reportTlf(text(StringId::LogPaletteFailed));
        return nullptr;
    }
    for (std::int32_t i = 0; i < table.count; ++i) {
        PaletteEntry entry;
        if (!toPaletteEntry(i, entry.red, entry.green, entry.blue, entry.flags)) {
            reportTlf(text(StringId::LogPaletteFailed));
            return nullptr;
        }
        if (i < description->entryCount)
            description->entries.push_back(entry);
    }
    return description;
}

bool TextureLookupTable::createPalette(DisplayPalette& palette) const {
    const auto description = newLogPalette();
    return description && palette.create(*description);
}

bool TextureLookupTable::hasUnsavedChanges() const {
    return modified || !edits_.standsAtSavedPosition() || !holdsWhatTheFileHolds() || file_.isMissing();
}

void TextureLookupTable::markUnsaved() {
    modified = true;
    edits_.loseSavedPosition();
}

bool TextureLookupTable::querySave() {
    if (!hasUnsavedChanges())
        return true;
    switch (applicationMessage(text(StringId::SavePaletteQuestion, {title}), MessageButtons::YesNoCancel)) {
    case MessageAnswer::Yes:
        return save(nullptr, false);
    case MessageAnswer::No:
        return true;
    default:
        return false;
    }
}

bool TextureLookupTable::beginEdit() {
    snapshot.reset();
    try {
        snapshot = std::make_unique<TlutData>(table);
    } catch (const std::bad_alloc&) {
        return false;
    }
    if (snapshot->entries == nullptr)
        snapshot.reset();
    return snapshot != nullptr;
}

bool TextureLookupTable::commitEdit(std::optional<StringId> name) {
    if (history == nullptr)
        return false;
    std::unique_ptr<UndoRecord> record = newRecord();
    if (record != nullptr)
        record->name = name;
    return edits_.add(std::move(record));
}

bool TextureLookupTable::undo() {
    return JointStep::move(*jointSide_, StepWay::Back);
}

bool TextureLookupTable::redo() {
    return JointStep::move(*jointSide_, StepWay::Forward);
}

bool TextureLookupTable::goTo(std::int32_t position) {
    return JointStep::moveTo(*jointSide_, position);
}

bool TextureLookupTable::canUndo() const {
    return edits_.canUndo();
}

bool TextureLookupTable::canRedo() const {
    return edits_.canRedo();
}

void TextureLookupTable::resetHistory() {
    edits_.restart();
}

void TextureLookupTable::titleFromPath() {
    std::string rest = path;
    if (const auto separator = rest.rfind('\\'); separator != std::string::npos && separator != 0)
        rest.erase(0, separator + 1);
    if (const auto stop = rest.rfind('.'); stop != std::string::npos && stop != 0)
        rest.erase(stop);
    if (rest.empty())
        return;
    title = isUnsavedName(rest) ? rest.substr(1) : rest;
}

void TextureLookupTable::renameFromPath() {
    const bool marked = title.ends_with(kModifiedMark);
    titleFromPath();
    if (marked)
        title += kModifiedMark;
}

std::string TextureLookupTable::keyFor(const std::string& path) {
    return path.empty() || isUnsavedName(path) ? path : platform().files().fullPath(path);
}

bool TextureLookupTable::changed(bool result) {
    if (result)
        modified = true;
    return result;
}

/// A palette that was never saved or opened has no file to differ from.
bool TextureLookupTable::holdsWhatTheFileHolds() const {
    return !savedTable_ || *savedTable_ == table;
}

void TextureLookupTable::markSaved() {
    edits_.markSaved();
    savedTable_ = table;
}

std::unique_ptr<UndoRecord> TextureLookupTable::newRecord() const {
    try {
        return makeRecord_(snapshot.get(), &table);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace dyeworks
