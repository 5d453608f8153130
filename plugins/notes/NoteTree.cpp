#include "notes/NoteTree.h"

#include "common/Say.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace dyeworks::plugins {

namespace {

constexpr QLatin1Char kSeparator('\\');

/// Levels that the note and those below it take.
int heightOf(const Note& note) {
    int below = 0;
    for (const std::unique_ptr<Note>& child : note.children)
        below = std::max(below, heightOf(*child));
    return below + 1;
}

bool isTaken(const QString& title, const Note& parent, const Note* own) {
    return std::ranges::any_of(parent.children, [&](const std::unique_ptr<Note>& child) {
        return child.get() != own && child->title.compare(title, Qt::CaseInsensitive) == 0;
    });
}

QString cut(const QString& text, qsizetype length) {
    QString result = text.left(length);
    if (!result.isEmpty() && result.back().isHighSurrogate())
        result.chop(1);
    return result.trimmed();
}

void putInto(const NotePlace& place, std::unique_ptr<Note> note) {
    note->parent = place.parent;
    place.parent->children.insert(place.parent->children.begin() + static_cast<std::ptrdiff_t>(place.row),
                                  std::move(note));
}

std::unique_ptr<Note> takeOut(Note& note) {
    auto& siblings = note.parent->children;
    const auto at = siblings.begin() + static_cast<std::ptrdiff_t>(rowOf(note));
    std::unique_ptr<Note> taken = std::move(*at);
    siblings.erase(at);
    return taken;
}

std::unique_ptr<Note> copyOf(const Note& original) {
    auto copy = std::make_unique<Note>();
    copy->title = original.title;
    copy->text = original.text;
    for (const std::unique_ptr<Note>& child : original.children) {
        copy->children.push_back(copyOf(*child));
        copy->children.back()->parent = copy.get();
    }
    return copy;
}

} // namespace

bool isWithin(const Note& note, const Note& above) {
    const Note* at = &note;
    while (at != nullptr && at != &above)
        at = at->parent;
    return at != nullptr;
}

std::size_t rowOf(const Note& note) {
    const auto& siblings = note.parent->children;
    const auto found = std::ranges::find(siblings, &note, &std::unique_ptr<Note>::get);
    return static_cast<std::size_t>(found - siblings.begin());
}

int depthOf(const Note& note) {
    int depth = -1;
    for (const Note* above = note.parent; above != nullptr; above = above->parent)
        ++depth;
    return depth;
}

std::size_t countBelow(const Note& note) {
    std::size_t count = note.children.size();
    for (const std::unique_ptr<Note>& child : note.children)
        count += countBelow(*child);
    return count;
}

Note* NoteTree::find(const QString& path) {
    const QString top = QString::fromLatin1(kPath);
    if (path == top)
        return &root_;
    if (!path.startsWith(top + kSeparator))
        return nullptr;
    Note* note = &root_;
    for (const QString& title : path.mid(top.size() + 1).split(kSeparator)) {
        const auto found = std::ranges::find(note->children, title,
                                             [](const std::unique_ptr<Note>& child) { return child->title; });
        if (found == note->children.end())
            return nullptr;
        note = found->get();
    }
    return note;
}

QString NoteTree::pathOf(const Note& note) const {
    QString below;
    for (const Note* at = &note; at->parent != nullptr; at = at->parent)
        below.prepend(kSeparator + at->title);
    return QString::fromLatin1(kPath) + below;
}

QString NoteTree::problemOf(const QString& title, const Note& parent, const Note* own) {
    const QString wanted = title.trimmed();
    if (wanted.isEmpty())
        return say("A note needs a title.", "タイトルを入力してください。");
    if (wanted.contains(kSeparator))
        return say("A title cannot have \"\\\" in it.", "タイトルに「\\」は使えません。");
    if (isTaken(wanted, parent, own))
        return say("Another note here has this title.", "同じタイトルのノートがここにあります。");
    return {};
}

QString NoteTree::titleFor(const QString& proposed, const Note& parent, const Note* own) {
    static const QRegularExpression unfit(QStringLiteral(R"([\\\x00-\x1F\x7F])"));
    static const QRegularExpression number(QStringLiteral(R"( \(\d+\)$)"));
    QString title = proposed;
    title = cut(title.replace(unfit, QStringLiteral(" ")).trimmed(), kLongestTitle);
    if (title.isEmpty())
        title = say("Note", "ノート");
    if (!isTaken(title, parent, own))
        return title;
    QString base = title;
    base.remove(number);
    for (int n = 2; isTaken(title, parent, own); ++n) {
        const QString suffix = QStringLiteral(" (%1)").arg(n);
        title = cut(base, kLongestTitle - suffix.size()) + suffix;
    }
    return title;
}

bool NoteTree::hasRoom(const Note& parent, const Note* note) {
    return depthOf(parent) + 1 + (note == nullptr ? 1 : heightOf(*note)) <= kMostLevels;
}

Note& NoteTree::insert(const NotePlace& place, const QString& title, const QString& text) {
    auto note = std::make_unique<Note>();
    Note& added = *note;
    added.title = titleFor(title, *place.parent);
    added.text = text;
    putInto(place, std::move(note));
    return added;
}

Note& NoteTree::insertCopy(const NotePlace& place, const Note& original) {
    std::unique_ptr<Note> note = copyOf(original);
    Note& added = *note;
    added.title = titleFor(added.title, *place.parent);
    putInto(place, std::move(note));
    return added;
}

void NoteTree::move(Note& note, const NotePlace& place) {
    NotePlace after = place;
    if (after.parent == note.parent && after.row > rowOf(note))
        --after.row;
    std::unique_ptr<Note> moved = takeOut(note);
    moved->title = titleFor(moved->title, *after.parent);
    putInto(after, std::move(moved));
}

void NoteTree::remove(Note& note) {
    takeOut(note);
}

} // namespace dyeworks::plugins
