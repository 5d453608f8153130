#pragma once

#include <QString>

#include <cstddef>
#include <memory>
#include <vector>

namespace dyeworks::plugins {

/// A note with those below it. Its address stays the same as long as it is in the tree.
struct Note {
    QString title;
    QString text;           ///< Its lines have "\n" between them.
    Note* parent = nullptr; ///< Null for the top of the tree alone.
    std::vector<std::unique_ptr<Note>> children;
};

/// True for the note itself as well.
[[nodiscard]] bool isWithin(const Note& note, const Note& above);
[[nodiscard]] std::size_t rowOf(const Note& note);
/// Notes above the note; 0 for one at the top.
[[nodiscard]] int depthOf(const Note& note);
/// All notes below the note.
[[nodiscard]] std::size_t countBelow(const Note& note);

/// The row that something gets below `parent`: 0 puts it first, the number of children last.
struct NotePlace {
    Note* parent = nullptr;
    std::size_t row = 0;
};

/// The notes of a project. Titles can be parts of node paths, and no two notes side by side have the same,
/// small and capital letters being the same: nodes are found by them.
class NoteTree {
public:
    static constexpr qsizetype kLongestTitle = 100; ///< In UTF-16 units.
    static constexpr int kMostLevels = 64;
    static constexpr const char* kNodeName = "Notes";
    /// The node of the top, above all notes.
    static constexpr const char* kPath = "\\Project\\Notes";

    [[nodiscard]] Note& root() noexcept { return root_; }
    [[nodiscard]] const Note& root() const noexcept { return root_; }

    /// The note of the node; null when it is none of ours. `root` for the node above all notes.
    [[nodiscard]] Note* find(const QString& path);
    [[nodiscard]] QString pathOf(const Note& note) const;

    /// Why a note below `parent` cannot be called so, in the user's language; empty when it can. `own`: the
    /// note that is renamed.
    [[nodiscard]] static QString problemOf(const QString& title, const Note& parent, const Note* own);
    /// The title, or one made from it that a note below `parent` can have.
    [[nodiscard]] static QString titleFor(const QString& proposed, const Note& parent,
                                          const Note* own = nullptr);

    /// Whether the note, or a new one when it is null, can go there without the tree becoming too deep.
    [[nodiscard]] static bool hasRoom(const Note& parent, const Note* note);

    /// These give the note another title when its own is taken.
    Note& insert(const NotePlace& place, const QString& title, const QString& text);
    /// With all below it, which the place must not be.
    Note& insertCopy(const NotePlace& place, const Note& original);
    /// The row counts the note where it is; the place must not be within it.
    void move(Note& note, const NotePlace& place);
    void remove(Note& note);

private:
    Note root_;
};

} // namespace dyeworks::plugins
