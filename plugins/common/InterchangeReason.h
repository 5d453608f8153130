#pragma once

#include "interchange/InterchangeError.h"

#include <QString>

namespace dyeworks::plugins {

/// What the error says, in the language and the words of the program that the plug-in runs in.
[[nodiscard]] QString reasonOf(const InterchangeError& error);

} // namespace dyeworks::plugins
