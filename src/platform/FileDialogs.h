#pragma once

#include <optional>
#include <string>

namespace dyeworks {

/// What a file dialog is asked for.
struct FileDialogRequest {
    std::string title{};            ///< Empty: the desktop's own title.
    std::string filter{};           ///< Pairs of label and pattern: "A (*.a)|*.a|All Files (*.*)|*.*||".
    int filterIndex = 1;            ///< The filter shown first, counted from 1.
    std::string defaultExtension{}; ///< With its full stop (".tlf"); added to a name typed without extension.
    std::string initialName{};      ///< Name or path that the dialog starts with.
    bool hideReadOnly = false;
    bool overwritePrompt = false;
    bool fileMustExist = false;
};

class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    /// Both return the full path that was chosen, in the program's form ("\" between its parts), or
    /// nothing when the user cancelled.
    virtual std::optional<std::string> open(const FileDialogRequest& request) = 0;
    virtual std::optional<std::string> save(const FileDialogRequest& request) = 0;
};

} // namespace dyeworks
