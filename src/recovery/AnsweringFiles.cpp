#include "recovery/AnsweringFiles.h"

#include "platform/LooseThread.h"
#include "platform/Platform.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <new>
#include <utility>

namespace dyeworks {

/// Outlives whoever asked for it.
struct AnsweringFiles::Round {
    void run() noexcept {
        try {
            for (const std::string& path : asked) {
                begin(path);
                static_cast<void>(platform().files().exists(path));
                end(path);
            }
        } catch (const std::bad_alloc&) {
            // The rest is asked for the next time.
        }
        const std::lock_guard lock(mutex);
        done = true;
    }

    void begin(const std::string& path) {
        const std::lock_guard lock(mutex);
        waited = path;
    }

    void end(const std::string& path) {
        const std::lock_guard lock(mutex);
        answered.insert(path);
    }

    std::vector<std::string> asked; ///< Does not change any more.
    std::mutex mutex;
    std::string waited; ///< For this one, unless it is done.
    std::set<std::string> answered;
    bool done = false;
};

AnsweringFiles::AnsweringFiles() = default;
AnsweringFiles::~AnsweringFiles() = default;

void AnsweringFiles::ask(const std::vector<std::string>& paths) {
    std::set<std::string> hanging;
    std::erase_if(rounds_, [&](const std::shared_ptr<Round>& round) {
        const std::lock_guard lock(round->mutex);
        if (!round->done)
            hanging.insert(round->waited);
        return round->done;
    });
    const auto round = std::make_shared<Round>();
    std::ranges::remove_copy_if(paths, std::back_inserter(round->asked),
                                [&](const std::string& path) { return hanging.contains(path); });
    rounds_.push_back(round);
    // Without a thread there is nothing left but to wait for them.
    if (!runLoosely([round] { round->run(); }))
        round->run();
}

bool AnsweringFiles::isDone() const {
    if (rounds_.empty())
        return true;
    const std::lock_guard lock(rounds_.back()->mutex);
    return rounds_.back()->done;
}

std::set<std::string> AnsweringFiles::answered() const {
    if (rounds_.empty())
        return {};
    const std::lock_guard lock(rounds_.back()->mutex);
    return rounds_.back()->answered;
}

} // namespace dyeworks
