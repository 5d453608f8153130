#pragma once

#include "project/ProjectFinding.h"

#include <memory>
#include <vector>

namespace dyeworks {

class CTPFFile;
struct TextureRules;

/// A `ProjectCheck` on a thread of its own, so that folders which do not answer hold up nobody. Its end lets
/// go of what is not done: that stops at its next step, or hangs in the host for as long as it takes.
class ProjectCheckRun {
public:
    /// Begins. `project` and `rules` are looked at here alone.
    ProjectCheckRun(const CTPFFile& project, const TextureRules& rules);
    ~ProjectCheckRun();
    ProjectCheckRun(const ProjectCheckRun&) = delete;
    ProjectCheckRun& operator=(const ProjectCheckRun&) = delete;

    [[nodiscard]] bool isDone() const;
    /// How far it is, 0 to 1000.
    [[nodiscard]] int thousandths() const;
    /// Once it is done, the findings as `ProjectCheck` has them. Throws std::bad_alloc where the check has
    /// been refused memory.
    [[nodiscard]] std::vector<ProjectFinding> takeFindings();

private:
    struct Work;

    std::shared_ptr<Work> work_;
};

} // namespace dyeworks
