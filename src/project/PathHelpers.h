#pragma once

#include <cstdint>
#include <string>

namespace dyeworks {

// How projects treat the names of their folders and files. Paths have "\" between their parts; a folder list
// is folders separated by ";".

/// What a folder list begins with; empty for an empty one.
[[nodiscard]] std::string firstFolder(const std::string& directories);

/// Turns every "/" into "\".
void PathSwapSeparators(std::string& path);

/// Whether the path names an existing directory; it then becomes its normal form, with "\" only and without
/// one at the end, except behind a drive and for the root. Relative paths stay relative.
bool PathNormalizeDir(std::string& path);

/// The file's name without folder, extension and a leading "*". False when nothing is left of it.
bool PathTitle(std::string& title, const std::string& path);

/// Takes the absolute form of the path apart. The folder has no separator at its end unless it is the root.
/// False when there is no separator and the whole is no existing directory, either.
bool PathSplitFolder(const std::string& path, std::string& folder, std::string& name);

/// Takes the path apart into server ("\\server") or drive ("c:"), both perhaps empty, and the rest.
void PathSplitRoot(const std::string& path, std::string& server, std::string& drive, std::string& rest);

/// Makes the path absolute: against the base, if there is one and the path has no root, otherwise against the
/// current directory. False when that cannot be done.
bool PathAbsolute(std::string& path, const std::string& base = {});

/// Whether the path names something that is no directory.
[[nodiscard]] bool PathIsFile(const std::string& path);

/// Looks for the file in the folders of the list, a name with a root where that says. Without `mustExist` the
/// first folder that exists and has no folder of that name will do. False, leaving `fullPath` alone, when
/// there is no such place.
bool PathSearch(std::string& fullPath, const std::string& directories, const std::string& name,
                bool mustExist);

/// The path as it is found from the base directory: "..\x\y.tmf". A mere name stays; what has nothing in
/// common with the base becomes absolute. Always true.
bool PathRelativeTo(std::string& relative, const std::string& base, const std::string& path);

/// How many bytes of `a` are folders that `b` begins with as well, case and the kind of separator
/// disregarded. 0 when the two are equal or have `limit` bytes in common, -1 when they have no folder in
/// common.
[[nodiscard]] std::int32_t PathCommonLength(const std::string& a, const std::string& b, std::int32_t limit);

/// The path as a project keeps it: as it is found from the base directory, or its absolute form where that
/// would not lead back to it, as the name of a file that looks like a drive.
[[nodiscard]] std::string pathFrom(const std::string& base, const std::string& path);

/// The file's name as it is kept: relative to the folder, in which names without a root are. Of a list, to
/// the first folder that the file is in and that a search finds it in; otherwise its absolute path.
[[nodiscard]] std::string fileNameIn(const std::string& directories, const std::string& name);

} // namespace dyeworks
