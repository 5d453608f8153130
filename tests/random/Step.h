#pragma once

#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// One thing that is done to the program. The numbers mean something in every state that the program can be
/// in, so that a script goes on when steps are taken out of it.
struct Step {
    std::string verb;
    std::vector<int> numbers;
};

/// "verb 1 2 3".
[[nodiscard]] std::string textOf(const Step& step);

/// A script has a step in each line, and remarks behind "#". Nothing when the file cannot be read or a line
/// is no step.
[[nodiscard]] std::optional<std::vector<Step>> readScript(const std::string& path);
/// With `remark`, lines of text, at its top. False when it cannot be written.
[[nodiscard]] bool writeScript(const std::string& path, const std::vector<Step>& steps,
                               const std::string& remark);

} // namespace dyeworks
