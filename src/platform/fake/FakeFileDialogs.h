#pragma once

#include "platform/FileDialogs.h"

#include <deque>
#include <string>
#include <vector>

namespace dyeworks {

/// File dialogs that answer by themselves and remember what they were asked for.
class FakeFileDialogs final : public FileDialogs {
public:
    enum class Kind { Open, Save };
    struct Shown {
        Kind kind;
        FileDialogRequest request;
    };

    /// Every dialog shown, oldest first.
    std::vector<Shown> shown;

    /// Answers the next dialog with this path, after the answers still waiting. The path is handed out as it
    /// is. A dialog for which no answer is left is cancelled.
    void answerWith(std::string path) { answers_.emplace_back(std::move(path)); }
    [[nodiscard]] std::size_t unusedAnswers() const noexcept { return answers_.size(); }

    std::optional<std::string> open(const FileDialogRequest& request) override;
    std::optional<std::string> save(const FileDialogRequest& request) override;

private:
    std::optional<std::string> answer(Kind kind, const FileDialogRequest& request);

    std::deque<std::string> answers_;
};

} // namespace dyeworks
