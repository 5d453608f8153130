#pragma once

#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

// Where the names in a project lead. A folder list is folders separated by ";".

/// The full paths at which a search of the list looks for the file, in its order; folders that do not exist
/// count too.
[[nodiscard]] std::vector<std::string> placesOf(const std::string& directories, const std::string& name);

/// The first of them whose folder exists, or else the first. Empty for an empty list.
[[nodiscard]] std::string placeOf(const std::string& directories, const std::string& name);

/// The name as the disk spells the parts of it, if that is another spelling. `path` is the full path that it
/// was found at.
[[nodiscard]] std::optional<std::string> otherSpelling(const std::string& name, const std::string& path);

/// Whether the path is the folder or inside it, case disregarded. Both are full paths.
[[nodiscard]] bool isInside(const std::string& folder, const std::string& path);

/// The same of any of the folders.
[[nodiscard]] bool isInsideAny(const std::vector<std::string>& folders, const std::string& path);

} // namespace dyeworks
