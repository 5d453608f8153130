#pragma once

#include "platform/Shell.h"

#include <QByteArray>
#include <QString>

namespace dyeworks {

/// The desktop entry (freedesktop.org, version 1.5) of a program that opens `types`. `program` is the path of
/// its file.
[[nodiscard]] QByteArray desktopEntry(const QString& program, const std::vector<FileTypeRegistration>& types);

/// The MIME package (freedesktop.org shared MIME database) that tells how files of `types` are known: by
/// their extension, and by their first bytes where there are such.
[[nodiscard]] QByteArray mimePackage(const std::vector<FileTypeRegistration>& types);

} // namespace dyeworks
