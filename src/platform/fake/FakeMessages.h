#pragma once

#include "platform/Messages.h"

#include <deque>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// Message boxes that answer by themselves and remember what they showed.
class FakeMessages final : public Messages {
public:
    /// Every box shown, oldest first, exactly as it was asked for.
    std::vector<Message> shown;

    /// Answers the next boxes with these, after those still waiting. A box for which none is left gets the
    /// answer that changes least: Cancel, else No, else Ok.
    void answerWith(std::initializer_list<MessageAnswer> answers);
    void answerWith(MessageAnswer answer) { answerWith({answer}); }
    [[nodiscard]] std::size_t unusedAnswers() const noexcept { return answers_.size(); }

    /// Text of the newest box; empty when there was none.
    [[nodiscard]] std::string lastText() const { return shown.empty() ? std::string() : shown.back().text; }

    /// What happens while a box waits for its answer.
    std::function<void()> onShow;

    MessageAnswer show(const Message& message) override;

private:
    std::deque<MessageAnswer> answers_;
};

} // namespace dyeworks
