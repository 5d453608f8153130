#include "platform/qt/QtFileDialogs.h"

#include "platform/Files.h"
#include "platform/Messages.h"
#include "platform/StringId.h"
#include "platform/Text.h"
#include "platform/qt/FileFilters.h"
#include "platform/qt/QtWaitCursor.h"

#include <algorithm>

namespace dyeworks {

namespace {

/// With its trailing separator, so that the root of a drive keeps it.
std::string folderOf(const std::string& fullPath) {
    return fullPath.substr(0, fullPath.rfind('\\') + 1);
}

std::string nameOf(const std::string& fullPath) {
    return fullPath.substr(fullPath.rfind('\\') + 1);
}

/// `path` with `extension` (with or without its full stop) when its name has none; a full stop at the end
/// of the name is none.
std::string withExtension(const std::string& path, const std::string& extension) {
    const std::string name = nameOf(path);
    const std::size_t stop = name.rfind('.');
    if (extension.empty() || (stop != std::string::npos && stop + 1 < name.size()))
        return path;
    const std::string bare = stop == std::string::npos ? path : path.substr(0, path.size() - 1);
    return bare + (extension.front() == '.' ? "" : ".") + extension;
}

} // namespace

std::optional<std::string> QtFileDialogs::open(const FileDialogRequest& request) {
    return run(request, QFileDialog::AcceptOpen);
}

std::optional<std::string> QtFileDialogs::save(const FileDialogRequest& request) {
    return run(request, QFileDialog::AcceptSave);
}

std::optional<std::string> QtFileDialogs::run(const FileDialogRequest& request,
                                              QFileDialog::AcceptMode mode) {
    if (!windows_.canAsk())
        return std::nullopt;

    const OrdinaryPointerScope pointer;
    QFileDialog dialog(windows_.owner());
    dialog.setObjectName(QStringLiteral("fileDialog"));
    dialog.setAcceptMode(mode);
    // Whether a file must exist is decided here, when the default extension has had its chance.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.overwritePrompt);
    if (!request.title.empty())
        dialog.setWindowTitle(QString::fromStdString(request.title));
    const QStringList filters = nameFilters(request.filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(
            filters[std::clamp<qsizetype>(request.filterIndex - 1, 0, filters.size() - 1)]);
    }
    startAt(dialog, request.initialName);

    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const std::string picked = files_.fromHostPath(dialog.selectedFiles().constFirst().toStdString());
        const std::string name = mode == QFileDialog::AcceptOpen
                                     ? openedName(request, picked)
                                     : withExtension(picked, request.defaultExtension);
        if (accepts(request, mode, picked, name)) {
            files_.setCurrentDirectory(folderOf(name));
            return name;
        }
    }
    return std::nullopt;
}

void QtFileDialogs::startAt(QFileDialog& dialog, const std::string& initialName) const {
    const std::string full = files_.fullPath(initialName);
    std::string folder = files_.currentDirectory();
    std::string name;
    if (!full.empty() && files_.isDirectory(full)) {
        folder = full;
    } else if (!full.empty()) {
        if (files_.isDirectory(folderOf(full)))
            folder = folderOf(full);
        if (nameOf(full).find_first_of("*?") == std::string::npos || files_.exists(full))
            name = nameOf(full);
    }
    dialog.setDirectory(QString::fromStdString(files_.hostPath(folder)));
    if (!name.empty())
        dialog.selectFile(QString::fromStdString(name));
}

std::string QtFileDialogs::openedName(const FileDialogRequest& request, const std::string& picked) const {
    return files_.exists(picked) ? picked : withExtension(picked, request.defaultExtension);
}

bool QtFileDialogs::accepts(const FileDialogRequest& request, QFileDialog::AcceptMode mode,
                            const std::string& picked, const std::string& name) {
    const bool exists = files_.exists(name);
    if (mode == QFileDialog::AcceptOpen) {
        if (exists || !request.fileMustExist)
            return true;
        messages_.show({.text = text(StringId::ChosenFileMissing, {displayPath(name)}),
                        .caption = {},
                        .buttons = MessageButtons::Ok,
                        .icon = MessageIcon::Warning,
                        .owner = MessageOwner::MainWindow});
        return false;
    }
    // The dialog itself asked about the name as it was typed.
    if (!exists || !request.overwritePrompt || name == picked)
        return true;
    return messages_.show({.text = text(StringId::ReplaceFileQuestion, {displayPath(name)}),
                           .caption = {},
                           .buttons = MessageButtons::YesNo,
                           .icon = MessageIcon::Warning,
                           .owner = MessageOwner::MainWindow}) == MessageAnswer::Yes;
}

} // namespace dyeworks
