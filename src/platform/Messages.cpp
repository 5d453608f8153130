#include "platform/Messages.h"

#include "platform/Platform.h"

namespace dyeworks {

MessageAnswer applicationMessage(const std::string& message, MessageButtons buttons) {
    const MessageIcon icon = buttons == MessageButtons::Ok ? MessageIcon::Warning : MessageIcon::Question;
    return platform().messages().show(
        {message, text(StringId::ApplicationTitle), buttons, icon, MessageOwner::MainWindow});
}

} // namespace dyeworks
