#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace dyeworks {

/// Finds out which files can be looked at without waiting for a file system that does not answer.
class AnsweringFiles {
public:
    AnsweringFiles();
    ~AnsweringFiles();
    AnsweringFiles(const AnsweringFiles&) = delete;
    AnsweringFiles& operator=(const AnsweringFiles&) = delete;

    /// Asks for these, on another thread; but for those that have not answered since an earlier time.
    void ask(const std::vector<std::string>& paths);
    /// All that were asked for the last time have answered.
    [[nodiscard]] bool isDone() const;
    /// Those that have, whether they exist or not.
    [[nodiscard]] std::set<std::string> answered() const;

private:
    struct Round;

    std::vector<std::shared_ptr<Round>> rounds_; ///< The last one is the latest; those before it still hang.
};

} // namespace dyeworks
