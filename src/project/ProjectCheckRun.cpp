#include "project/ProjectCheckRun.h"

#include "platform/LooseThread.h"
#include "project/ProjectCheck.h"

#include <atomic>
#include <new>
#include <utility>

namespace dyeworks {

/// Outlives whoever asked for it.
struct ProjectCheckRun::Work {
    Work(const CTPFFile& project, const TextureRules& rules)
        : check(project, rules) {}

    void run() noexcept {
        try {
            while (!stopped && check.step())
                thousandths = check.thousandths();
        } catch (const std::bad_alloc&) {
            refused = true;
        }
        done = true;
    }

    ProjectCheck check;
    bool refused = false; ///< Memory.
    std::atomic<int> thousandths = 0;
    std::atomic<bool> stopped = false;
    std::atomic<bool> done = false;
};

ProjectCheckRun::ProjectCheckRun(const CTPFFile& project, const TextureRules& rules)
    : work_(std::make_shared<Work>(project, rules)) {
    // Without a thread there is nothing left but to wait for it.
    if (!runLoosely([work = work_] { work->run(); }))
        work_->run();
}

ProjectCheckRun::~ProjectCheckRun() {
    work_->stopped = true;
}

bool ProjectCheckRun::isDone() const {
    return work_->done;
}

int ProjectCheckRun::thousandths() const {
    return work_->thousandths;
}

std::vector<ProjectFinding> ProjectCheckRun::takeFindings() {
    if (work_->refused)
        throw std::bad_alloc();
    return work_->check.findings();
}

} // namespace dyeworks
