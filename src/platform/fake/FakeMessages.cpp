#include "platform/fake/FakeMessages.h"

namespace dyeworks {

namespace {

MessageAnswer harmlessAnswer(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel:
    case MessageButtons::YesNoCancel:
        return MessageAnswer::Cancel;
    case MessageButtons::YesNo:
        return MessageAnswer::No;
    case MessageButtons::Ok:
        break;
    }
    return MessageAnswer::Ok;
}

} // namespace

void FakeMessages::answerWith(std::initializer_list<MessageAnswer> answers) {
    answers_.insert(answers_.end(), answers);
}

MessageAnswer FakeMessages::show(const Message& message) {
    shown.push_back(message);
    if (onShow)
        onShow();
    if (answers_.empty())
        return harmlessAnswer(message.buttons);
    const MessageAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

} // namespace dyeworks
