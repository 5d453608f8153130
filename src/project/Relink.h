#pragma once

#include "project/ProjectRepair.h"

#include <string>
#include <vector>

namespace dyeworks {

class CTPFFile;

/// A missing file, and where it is now.
struct RelinkedFile {
    std::string picture;
    bool palette = false;
    std::string from; ///< Full path of where it was looked for.
    std::string to;
    bool accepted = true;
};

/// Takes the chosen file for the missing one of that picture, and finds all other missing files that the same
/// move leads to: what is equal at the end of the old and the new path stays, what stands before it changes.
/// The chosen one comes first; the others follow in the order of the pictures. Empty when it is not missing.
[[nodiscard]] std::vector<RelinkedFile> filesOfMove(const CTPFFile& project, const std::string& picture,
                                                    bool palette, const std::string& chosen);

/// The missing files that were in a folder which is now `chosen`, as far as they are there. In the order of
/// the pictures. Both are full paths.
[[nodiscard]] std::vector<RelinkedFile> filesOfFolder(const CTPFFile& project, const std::string& folder,
                                                      const std::string& chosen);

struct RelinkRepair {
    ProjectRepair repair;
    std::vector<std::string> refused; ///< Files whose names the project cannot hold.
};

/// What gives the accepted files their new places. Where a whole folder of the project has moved and none of
/// its files was left out, the folder changes and the names stay.
[[nodiscard]] RelinkRepair relink(const CTPFFile& project, const std::vector<RelinkedFile>& files);

/// What puts `chosen` in the place of a folder of the project; names stay. Nothing of it where the project
/// cannot hold it.
[[nodiscard]] ProjectRepair relinkFolder(const CTPFFile& project, const std::string& folder,
                                         const std::string& chosen);

} // namespace dyeworks
