#include "ui/controls/folderpick/FolderPickControl.h"

#include "ui/controls/dispatch/EntryPoints.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QWidget>

#include <algorithm>
#include <memory>

namespace dyeworks {

namespace {

/// `path`, or the nearest folder above it that exists, or else the current directory.
QString existingFolder(const QString& path) {
    QString folder = QDir::cleanPath(path);
    while (!folder.isEmpty() && !QDir(folder).exists()) {
        const qsizetype separator = folder.lastIndexOf(QLatin1Char('/'));
        folder.truncate(std::max(separator, qsizetype{0}));
    }
    return folder.isEmpty() ? QDir::currentPath() : folder;
}

QWidget* windowOnTop() {
    QWidget* const dialog = QApplication::activeModalWidget();
    return dialog != nullptr ? dialog : QApplication::activeWindow();
}

} // namespace

FolderPickControl::FolderPickControl() {
    members_.set(2, [this](const std::string& folder) { folder_ = QString::fromStdString(folder); });
    members_.method(4, [this](std::int32_t reserved, std::string* result) -> OrBadParameter<bool> {
        if (reserved != 0 || result == nullptr)
            return BadParameter{};
        return choose(*result);
    });
}

DispatchResult FolderPickControl::invoke(DispatchId member, DispatchKind kind, DispatchArguments arguments) {
    return members_.invoke(member, kind, arguments);
}

bool FolderPickControl::choose(std::string& result) const {
    const QString chosen = QFileDialog::getExistingDirectory(
        windowOnTop(), QCoreApplication::translate("FolderPick", "Choose Folder"), existingFolder(folder_));
    if (chosen.isEmpty())
        return false;
    result = QDir::cleanPath(chosen).toStdString();
    return true;
}

} // namespace dyeworks

DYEWORKS_CONTROL_ENTRY_POINTS("FolderPick", dyeworks::FolderPickControl)
