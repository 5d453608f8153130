#pragma once

#include "dyeworks/plugin.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <vector>

namespace dyeworks::plugins {

/// A picture of the open project, and the file that it goes to.
struct ProjectPicture {
    QString name;
    QString file;    ///< Without folder.
    QString image;   ///< As the project has it.
    QString palette; ///< As the project has it; empty when it has none.
    std::uint32_t bank = 0;
};

/// In the project's order.
[[nodiscard]] std::vector<ProjectPicture> projectPictures();

constexpr const char* kIndexFile = "index.json";

struct PicturesExport {
    qsizetype written = 0; ///< Pictures.
    QStringList failures;  ///< A line for each file that is not there, in the user's language.
};

/// Writes the pictures into the folder, which is there, and the list of those that it wrote. Files of these
/// names are replaced. `step` hears how many pictures are done; false from it stops the export, and the list
/// then names the pictures up to there.
[[nodiscard]] PicturesExport exportPictures(const QString& folder,
                                            const std::vector<ProjectPicture>& pictures,
                                            const std::function<bool(std::size_t done)>& step);

} // namespace dyeworks::plugins
