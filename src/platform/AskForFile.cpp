#include "platform/AskForFile.h"

#include "platform/Platform.h"

namespace dyeworks {

std::optional<std::string> askForFileToOpen(FileDialogRequest request) {
    request.hideReadOnly = true;
    return platform().fileDialogs().open(request);
}

std::optional<std::string> askForFileToSave(FileDialogRequest request) {
    request.hideReadOnly = true;
    request.overwritePrompt = true;
    return platform().fileDialogs().save(request);
}

} // namespace dyeworks
