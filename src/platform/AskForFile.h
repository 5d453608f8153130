#pragma once

#include "platform/FileDialogs.h"

#include <optional>
#include <string>

namespace dyeworks {

/// The application's own file dialogs, without a box for "read only"; that for saving asks before a file is
/// replaced. Both answer as `FileDialogs` does.
std::optional<std::string> askForFileToOpen(FileDialogRequest request);
std::optional<std::string> askForFileToSave(FileDialogRequest request);

} // namespace dyeworks
