#include "platform/Messages.h"

#include "platform/Platform.h"
#include "platform/StringId.h"

namespace dyeworks {

MessageAnswer applicationMessage(const std::string& message, MessageButtons buttons) {
    return applicationMessage(
        message, buttons == MessageButtons::Ok ? MessageIcon::Warning : MessageIcon::Question, buttons);
}

MessageAnswer applicationMessage(const std::string& message, MessageIcon icon, MessageButtons buttons) {
    return platform().messages().show(
        {message, text(StringId::ApplicationTitle), buttons, icon, MessageOwner::MainWindow});
}

void applicationWarning(const std::string& message, const std::string& details) {
    platform().messages().show({.text = message,
                                .caption = text(StringId::ApplicationTitle),
                                .icon = MessageIcon::Warning,
                                .details = details});
}

} // namespace dyeworks
