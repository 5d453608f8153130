#include "notes/NotesProject.h"

#include "common/Say.h"
#include "notes/NoteValues.h"

#include <QStringList>

#include <array>
#include <utility>

namespace dyeworks::plugins {

namespace {

constexpr const char* kPictures = "\\Project\\Picture\\";
constexpr std::int32_t kFolderIcon = 1;
constexpr std::int32_t kNoteIcon = 2;

/// The longest value of a project's file has 511 characters.
constexpr std::int32_t kValueSize = 4096;
/// In UTF-16 units. The text of a drag has room for 65536 bytes, of which each unit may take three.
constexpr qsizetype kDraggedText = 16000;

/// With this bit a drop puts the note below its target. The effect is all that a drop hears of the keys.
constexpr std::uint32_t kBelow = DW_DROP_LINK;

/// The host's way to name a node by its text.
DwNode nodeCalled(const QByteArray& title) {
    return reinterpret_cast<DwNode>(title.constData());
}

std::optional<QByteArray> storedValue(const QByteArray& key) {
    std::array<char, kValueSize> buffer{};
    if (DW_getValue(key.constData(), buffer.data(), kValueSize) == 0)
        return std::nullopt;
    return QByteArray(buffer.data());
}

/// Nothing that would end it as a key of the drag's line.
QByteArray dragKey(const QString& path) {
    return encoded(path).replace('=', "%3D");
}

QByteArray dragValue(const Note& note) {
    QString text = note.text.left(kDraggedText);
    if (!text.isEmpty() && text.back().isHighSurrogate())
        text.chop(1);
    return encoded(text);
}

bool isNoteKey(const QByteArray& key) {
    return key.startsWith(QByteArray(NoteTree::kPath) + '\\');
}

bool isPictureKey(const QByteArray& key) {
    return key.startsWith(kPictures) && key.size() > QByteArray(kPictures).size();
}

QString lastPart(const QString& path) {
    return path.mid(path.lastIndexOf(QLatin1Char('\\')) + 1);
}

/// `value`: image, palette and bank of the picture, with commas between them.
QString textOfPicture(const QString& name, const QByteArray& value) {
    const QStringList parts = QString::fromUtf8(value).split(QLatin1Char(','));
    const QString palette = parts.value(1);
    QString text = say("Picture: %1", "ピクチャー: %1").arg(name);
    text += say("\nImage: ", "\n画像: ") + parts.value(0);
    if (!palette.isEmpty())
        text += say("\nPalette: ", "\nパレット: ") + palette + say("\nBank: ", "\nバンク: ") + parts.value(2);
    return text;
}

} // namespace

void NotesProject::load() {
    stored_ = readNotes(notes_, storedValue);
}

void NotesProject::showNodes() const {
    DW_addNode(NoteTree::kNodeName, kFolderIcon, "\\Project", nodeCalled(""));
    for (const std::unique_ptr<Note>& note : notes_.root().children)
        show(*note);
}

/// Its siblings in front of it are shown already.
void NotesProject::show(const Note& note) const {
    const std::size_t row = rowOf(note);
    const QByteArray parent = notes_.pathOf(*note.parent).toUtf8();
    const QByteArray before = row == 0 ? QByteArray() : note.parent->children[row - 1]->title.toUtf8();
    DW_addNode(note.title.toUtf8().constData(), kNoteIcon, parent.constData(),
               row == 0 ? 0 : nodeCalled(before));
    for (const std::unique_ptr<Note>& child : note.children)
        show(*child);
}

void NotesProject::hide(const Note& note) const {
    const QByteArray title = note.title.toUtf8();
    DW_removeNode(nodeCalled(title), notes_.pathOf(*note.parent).toUtf8().constData());
}

void NotesProject::add(Note& parent, const QString& title, const QString& text) {
    show(notes_.insert({&parent, parent.children.size()}, title, text));
    save();
}

void NotesProject::edit(Note& note, const QString& title, const QString& text) {
    const QByteArray before = note.title.toUtf8();
    note.title = NoteTree::titleFor(title, *note.parent, &note);
    note.text = text;
    const QByteArray after = note.title.toUtf8();
    if (after != before)
        DW_renameNode(after.constData(), nodeCalled(before),
                      notes_.pathOf(*note.parent).toUtf8().constData());
    save();
}

void NotesProject::remove(Note& note) {
    hide(note);
    notes_.remove(note);
    save();
}

void NotesProject::move(Note& note, const NotePlace& place) {
    const std::size_t row = rowOf(note);
    if (place.parent == note.parent && (place.row == row || place.row == row + 1))
        return;
    hide(note);
    notes_.move(note, place);
    show(note);
    save();
}

QByteArray NotesProject::dragLine(const QString& path) {
    const Note* const note = notes_.find(path);
    if (note == nullptr || note->parent == nullptr)
        return {};
    return dragKey(path) + '=' + dragValue(*note);
}

/// Nothing when it must not go there. `dragged` is null for what comes from elsewhere.
std::optional<NotePlace> NotesProject::placeFor(const QString& target, const Note* dragged, bool copies,
                                                bool below) {
    Note* const note = notes_.find(target);
    if (note == nullptr)
        return std::nullopt;
    const bool isBeside = note->parent != nullptr && !below;
    // A copy of a note beside itself is the one thing that can be dropped on the note.
    if (dragged != nullptr && isWithin(*note, *dragged) && !(note == dragged && copies && isBeside))
        return std::nullopt;
    NotePlace place{note, 0};
    if (isBeside)
        place = {note->parent, rowOf(*note) + 1};
    else if (note->parent != nullptr)
        place.row = note->children.size();
    if (!NoteTree::hasRoom(*place.parent, dragged))
        return std::nullopt;
    return place;
}

std::uint32_t NotesProject::dropEffect(const QString& target, const QByteArray& dragged,
                                       std::uint32_t keyState) {
    if (!isNoteKey(dragged) && !isPictureKey(dragged))
        return 0;
    const Note* const note = isNoteKey(dragged) ? notes_.find(decoded(dragged)) : nullptr;
    const bool copies = note == nullptr || (keyState & DW_KEY_CONTROL) != 0;
    const bool below = (keyState & DW_KEY_SHIFT) != 0;
    if (!placeFor(target, note, copies, below))
        return 0;
    return (copies ? DW_DROP_COPY : DW_DROP_MOVE) | (below ? kBelow : 0U);
}

bool NotesProject::drop(const QString& target, const QByteArray& key, const QByteArray& value,
                        std::uint32_t effect) {
    if (!isNoteKey(key) && !isPictureKey(key))
        return false;
    const QString path = isNoteKey(key) ? decoded(key) : QString::fromUtf8(key);
    Note* note = isNoteKey(key) ? notes_.find(path) : nullptr;
    // Another project may have a note of this path.
    if (note != nullptr && dragValue(*note) != value)
        note = nullptr;
    const bool copies = note == nullptr || (effect & DW_DROP_MOVE) == 0;
    const std::optional<NotePlace> place = placeFor(target, note, copies, (effect & kBelow) != 0);
    if (!place)
        return false;
    if (!copies) {
        move(*note, *place);
        return true;
    }
    const QString title = lastPart(path);
    if (note != nullptr)
        show(notes_.insertCopy(*place, *note));
    else
        show(notes_.insert(*place, title, isPictureKey(key) ? textOfPicture(title, value) : decoded(value)));
    save();
    return true;
}

/// Only what has changed: lines of the project's file that can stay as they are do. Those behind a new one
/// are set again, because a new line goes to the end of the file, where they then follow in their order.
void NotesProject::save() {
    std::map<QByteArray, QByteArray> gone = std::exchange(stored_, {});
    bool isBehindNew = false;
    for (const auto& [key, value] : valuesOf(notes_)) {
        const auto before = gone.find(key);
        const bool isNew = before == gone.end();
        if (isBehindNew && !isNew)
            DW_removeKey(key.constData());
        if (isBehindNew || isNew || before->second != value)
            DW_setValue(key.constData(), value.constData());
        isBehindNew = isBehindNew || isNew;
        if (!isNew)
            gone.erase(before);
        stored_.emplace(key, value);
    }
    for (const auto& [key, value] : gone)
        DW_removeKey(key.constData());
}

} // namespace dyeworks::plugins
