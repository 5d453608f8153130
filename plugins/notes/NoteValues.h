#pragma once

#include "notes/NoteTree.h"

#include <QByteArray>

#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace dyeworks::plugins {

/// The text in pieces of at most `longest` bytes, each of which a value of the project's file can hold: "%"
/// and two hexadecimal digits stand for a byte that it cannot, and for blanks at the ends of a piece. Lines
/// are pieces of their own.
[[nodiscard]] std::vector<QByteArray> encodedPieces(const QString& text, qsizetype longest);
/// The same as one piece, whatever its lines and length.
[[nodiscard]] QByteArray encoded(const QString& text);
/// What was encoded; a "%" without digits stands for itself.
[[nodiscard]] QString decoded(const QByteArray& text);

/// Keys and values of the project's file, in the order in which they are to be set:
///
///     \Project\Notes      number of notes; none without notes
///     \Project\Notes\0    of the first note in the order of the tree: its depth, from 0, the number of
///     pieces
///                         that its text has, and its title, with commas between them
///     \Project\Notes\0.0  the first piece
using NoteValues = std::vector<std::pair<QByteArray, QByteArray>>;

[[nodiscard]] NoteValues valuesOf(const NoteTree& tree);

/// Fills the empty tree with what `valueOf` knows, and gives back all that it found. Notes that are missing
/// or damaged are left out; those below them go to the note above.
std::map<QByteArray, QByteArray>
readNotes(NoteTree& tree, const std::function<std::optional<QByteArray>(const QByteArray& key)>& valueOf);

} // namespace dyeworks::plugins
