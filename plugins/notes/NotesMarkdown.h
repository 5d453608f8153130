#pragma once

#include "notes/NoteTree.h"

#include <QByteArray>

namespace dyeworks::plugins {

/// The notes as a Markdown document below a heading with the project's name: a heading for each title, of the
/// level of its note as far as there are levels, and the texts as they were typed, signs that mean something
/// in Markdown included. UTF-8.
[[nodiscard]] QByteArray markdownOf(const NoteTree& notes, const QString& projectName);

/// Where the document goes unless the user says otherwise: beside the project's file, whose path is in the
/// program's form. A file on a drive that the host does not have is no place; the name alone is left of it.
[[nodiscard]] QString markdownFileFor(const QString& projectPath);

/// The name of the project's file without its ending.
[[nodiscard]] QString projectNameOf(const QString& projectPath);

} // namespace dyeworks::plugins
