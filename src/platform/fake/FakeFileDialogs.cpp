#include "platform/fake/FakeFileDialogs.h"

namespace dyeworks {

std::optional<std::string> FakeFileDialogs::open(const FileDialogRequest& request) {
    return answer(Kind::Open, request);
}

std::optional<std::string> FakeFileDialogs::save(const FileDialogRequest& request) {
    return answer(Kind::Save, request);
}

std::optional<std::string> FakeFileDialogs::answer(Kind kind, const FileDialogRequest& request) {
    shown.push_back({kind, request});
    if (answers_.empty())
        return std::nullopt;
    std::optional<std::string> path = std::move(answers_.front());
    answers_.pop_front();
    return path;
}

} // namespace dyeworks
