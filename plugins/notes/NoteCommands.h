#pragma once

#include "notes/NotesProject.h"

#include <cstdint>
#include <memory>

namespace dyeworks::plugins {

/// Whether the node has the command (`DW_NODE_ADD`, ...).
[[nodiscard]] bool hasNoteCommand(NotesProject& project, const QString& node, std::uint32_t command);

/// Asks what the command needs and carries it out. False when the node does not have it or the user cancels.
/// Nothing is done when the project closes while a dialog is open.
[[nodiscard]] bool runNoteCommand(const std::shared_ptr<NotesProject>& project, const QString& node,
                                  std::uint32_t command);

/// Writes the notes to a file that the user chooses. False when that is cancelled or fails, which is told.
[[nodiscard]] bool exportNotes(const std::shared_ptr<NotesProject>& project, const QString& projectPath);

} // namespace dyeworks::plugins
