#pragma once

#include "dyeworks/plugin.h"
#include "notes/NoteTree.h"

#include <QByteArray>

#include <cstdint>
#include <map>
#include <optional>

namespace dyeworks::plugins {

/// The notes of the open project: its file and its tree always show what they are.
class NotesProject {
public:
    /// From the project's file.
    void load();
    /// Puts all nodes into the project's tree, which has none of them yet.
    void showNodes() const;

    /// The project is gone; what still refers to its notes is to leave them alone.
    void close() noexcept { open_ = false; }
    [[nodiscard]] bool isOpen() const noexcept { return open_; }

    [[nodiscard]] NoteTree& notes() noexcept { return notes_; }

    /// As the last one below `parent`, which has room.
    void add(Note& parent, const QString& title, const QString& text);
    void edit(Note& note, const QString& title, const QString& text);
    /// With all below it.
    void remove(Note& note);

    /// What a drag of the node carries: its path and its text, encoded. Empty when the node is no note.
    [[nodiscard]] QByteArray dragLine(const QString& path);

    /// What dropping something on the node `target` does; 0 when it cannot be dropped there. Notes go behind
    /// the note that is the target, with Shift below it, as its last, and first when it is the node above all
    /// notes. `dragged` is what stands before "=" in the drag's text: a note of this project, which is moved,
    /// and copied with Ctrl, or a picture or a note of another project, of which a note is made.
    [[nodiscard]] std::uint32_t dropEffect(const QString& target, const QByteArray& dragged,
                                           std::uint32_t keyState);
    /// Carries it out. False when nothing was done.
    [[nodiscard]] bool drop(const QString& target, const QByteArray& key, const QByteArray& value,
                            std::uint32_t effect);

private:
    [[nodiscard]] std::optional<NotePlace> placeFor(const QString& target, const Note* dragged, bool copies,
                                                    bool below);
    void show(const Note& note) const;
    void hide(const Note& note) const;
    void move(Note& note, const NotePlace& place);
    void save();

    NoteTree notes_;
    std::map<QByteArray, QByteArray> stored_; ///< What the project's file has of the notes.
    bool open_ = true;
};

} // namespace dyeworks::plugins
