#pragma once

#include "platform/Files.h"

#include <string>

namespace dyeworks {

/// Tells in a message box that the file could not be written (read), why not, and what can be done about it.
void tellNotSaved(const std::string& path, FileError why);
void tellNotOpened(const std::string& path, FileError why);

} // namespace dyeworks
