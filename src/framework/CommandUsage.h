#pragma once

#include "framework/CommandIds.h"

#include <cstddef>
#include <vector>

namespace dyeworks {

/// Which commands the user has run from the search, kept in the settings. Of commands in lists nothing is
/// kept, because what they are changes.
class CommandUsage {
public:
    static constexpr std::size_t kMost = 32;  ///< Commands that are kept, those that ran last.
    static constexpr unsigned kHighest = 100; ///< A count that comes to this is halved, and all others are.

    /// What the settings say; whatever is no command there is passed over.
    void load();
    /// The command has run. Written to the settings at once.
    void add(CommandId id);
    /// 0 for a command that has not run; of two others, the one that ran more often has more, and with equal
    /// counts the one that ran last.
    [[nodiscard]] std::size_t rank(CommandId id) const;

private:
    struct Used {
        CommandId id;
        unsigned count;
    };
    void save() const;

    std::vector<Used> used_; ///< The last one first.
};

} // namespace dyeworks
