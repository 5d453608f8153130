#pragma once

#include "platform/Shell.h"

#include <QByteArray>
#include <QString>

#include <vector>

class QIcon;

namespace dyeworks {

/// One of the files by which a desktop knows the program, and what belongs in it.
struct DesktopFile {
    QString path; ///< Below a data folder: "mime/packages/orrery-dyeworks.xml".
    QByteArray bytes;
};

constexpr int kLargestProgramIcon = 256;

/// The program's icon, in those of the sizes that the desktop gets whose side, in device pixels, is `largest`
/// at most. Every one of them is decoded.
[[nodiscard]] QIcon programIcon(int largest = kLargestProgramIcon);

/// Where the desktop entry stands below a data folder.
[[nodiscard]] QString desktopEntryPath();

/// The desktop entry of this version of a program that opens `types`. `program` is the host path of its file.
[[nodiscard]] QByteArray desktopEntry(const QString& program, const std::vector<FileTypeRegistration>& types);

/// The MIME package, the icons and, as the last, the desktop entry: whoever meets the entry then finds
/// what it speaks of.
[[nodiscard]] std::vector<DesktopFile> desktopFiles(const QString& program,
                                                    const std::vector<FileTypeRegistration>& types);

} // namespace dyeworks
