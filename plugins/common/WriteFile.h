#pragma once

#include <QByteArray>
#include <QString>

namespace dyeworks::plugins {

/// Replaces the file in one step, by the writer that the program saves with. Empty when the file is there;
/// otherwise why not, in the user's language, and a file that was there is as it was.
[[nodiscard]] QString writeFile(const QString& path, const QByteArray& bytes);

} // namespace dyeworks::plugins
