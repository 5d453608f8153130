#pragma once

#include <QString>

namespace dyeworks::plugins {

/// The text in the program's language, which is Japanese or English. Both are UTF-8.
[[nodiscard]] QString say(const char* english, const char* japanese);

} // namespace dyeworks::plugins
