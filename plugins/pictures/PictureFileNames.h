#pragma once

#include <QSet>
#include <QString>

namespace dyeworks::plugins {

/// Gives pictures file names that every host takes, no two of them the same.
class PictureFileNames {
public:
    /// "<name>.png", with "_" in place of characters and beginnings that some host refuses; a name that was
    /// given before, small and capital letters being the same, gets a number: "<name> (2).png".
    [[nodiscard]] QString fileFor(const QString& name);

private:
    QSet<QString> given_; ///< Case folded.
};

} // namespace dyeworks::plugins
