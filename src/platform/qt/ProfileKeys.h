#pragma once

#include <QString>

#include <optional>
#include <string>

namespace dyeworks {

// Keys under which sections and entries stand in a QSettings store, whose own separator "/" nests groups.
// Every section and entry name gets a key of its own, whatever bytes it is made of: the parts of a section
// become nested groups, and what a part cannot hold is written as "~" and two hexadecimal digits.

/// "Settings/Images" from "Settings\Images"; empty for the empty section.
[[nodiscard]] QString sectionKey(const std::string& section);

/// The last part of an entry's key.
[[nodiscard]] QString entryKey(const std::string& entry);

/// The whole key of an entry.
[[nodiscard]] QString profileKey(const std::string& section, const std::string& entry);

/// The entry whose last part is `key`, or nothing when no entry has it.
[[nodiscard]] std::optional<std::string> entryOfKey(const QString& key);

} // namespace dyeworks
