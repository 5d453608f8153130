#pragma once

#include "platform/FileDialogs.h"
#include "platform/qt/WindowContext.h"

#include <QFileDialog>

namespace dyeworks {

class Files;
class Messages;

/// The desktop's file dialogs. They start in the folder of the initial name, or in the current directory
/// when it names none, and make the folder of the chosen file the current directory. An initial name with
/// wildcards ("\tex\*.tmf") gives the folder alone. When nobody can answer, nothing is chosen.
class QtFileDialogs : public FileDialogs {
public:
    /// All three must outlive this object.
    QtFileDialogs(const WindowContext& windows, Files& files, Messages& messages)
        : windows_(windows)
        , files_(files)
        , messages_(messages) {}

    std::optional<std::string> open(const FileDialogRequest& request) override;
    std::optional<std::string> save(const FileDialogRequest& request) override;

private:
    std::optional<std::string> run(const FileDialogRequest& request, QFileDialog::AcceptMode mode);
    void startAt(QFileDialog& dialog, const std::string& initialName) const;
    [[nodiscard]] std::string openedName(const FileDialogRequest& request, const std::string& picked) const;
    /// Whether the dialog may end with `name`; otherwise the user has been told or asked.
    bool accepts(const FileDialogRequest& request, QFileDialog::AcceptMode mode, const std::string& picked,
                 const std::string& name);

    const WindowContext& windows_;
    Files& files_;
    Messages& messages_;
};

} // namespace dyeworks
