#pragma once

#include <string>

namespace dyeworks {

enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageIcon { None, Stop, Question, Warning, Information };
enum class MessageOwner { None, MainWindow };
enum class MessageAnswer { Ok, Cancel, Yes, No };

/// One message box. `text` is shown as plain text, line breaks included.
struct Message {
    std::string text;
    std::string caption; ///< Empty: the application's title.
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
    MessageOwner owner = MessageOwner::MainWindow;
    bool cancelIsDefault = false; ///< The button that Enter presses; otherwise the first one.
    std::string details{};        ///< Below the text: why, and what can be done about it. May be empty.
};

class Messages {
public:
    virtual ~Messages() = default;

    /// Shows the box and waits for the answer. Closing the box answers Cancel where there is a Cancel
    /// button, No where there are only Yes and No, and Ok otherwise.
    virtual MessageAnswer show(const Message& message) = 0;
};

/// The application's own message box: its title as caption, owned by the main window.
MessageAnswer applicationMessage(const std::string& text, MessageIcon icon,
                                 MessageButtons buttons = MessageButtons::Ok);
/// A warning with what stands below its text.
void applicationWarning(const std::string& text, const std::string& details);
/// The icon is the question mark when there is something to answer, the exclamation mark otherwise.
MessageAnswer applicationMessage(const std::string& text, MessageButtons buttons = MessageButtons::Ok);

} // namespace dyeworks
