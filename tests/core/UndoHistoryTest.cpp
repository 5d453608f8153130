#include "core/UndoHistory.h"

#include <gmock/gmock.h>

#include <map>
#include <random>
#include <vector>

using namespace dyeworks;

namespace {

int alive = 0;

/// Sets an int to one value or the other.
struct Assignment : UndoRecord {
    Assignment(int undone, int done)
        : before(undone)
        , after(done) {
        ++alive;
    }
    ~Assignment() override { --alive; }

    bool undo(void* target) override { return *static_cast<int*>(target) = before, false; }
    bool redo(void* target) override { return *static_cast<int*>(target) = after, false; }
    std::unique_ptr<UndoRecord> inverse() const override { return nullptr; }
    std::uint64_t bytes() const override { return 10; }

    int before, after;
};

} // namespace

// Every state has a value of its own; the model is the list of values and the place in it.
TEST(UndoHistory, AgreesWithAListOfStatesOverRandomSteps) {
    struct Limits {
        std::int32_t capacity;
        std::uint64_t budget;
        std::size_t kept; ///< Records, the newest one always.
    };
    for (const Limits& limits : {Limits{1, 1000, 1}, {2, 1000, 2}, {5, 1000, 5}, {100, 39, 3}, {100, 0, 1}}) {
        const std::size_t capacity = limits.kept;
        std::mt19937 random(static_cast<unsigned>(capacity));
        UndoHistory history(limits.capacity, limits.budget);
        std::vector<int> states{0};
        std::size_t at = 0;
        int value = 0, newest = 0;
        std::map<std::int32_t, int> valueAtPosition{{0, 0}};
        for (int step = 0; step < 3000; ++step) {
            if (const auto choice = random() % 3; choice == 0) {
                states.resize(at + 1);
                states.push_back(++newest);
                ASSERT_TRUE(history.add(std::make_unique<Assignment>(value, newest), -1));
                value = newest;
                if (states.size() > capacity + 1)
                    states.erase(states.begin());
                at = states.size() - 1;
            } else if (choice == 1) {
                ASSERT_EQ(history.undo(&value), at > 0);
                at -= at > 0 ? 1 : 0;
            } else {
                ASSERT_EQ(history.redo(&value), at + 1 < states.size());
                at += at + 1 < states.size() ? 1 : 0;
            }
            ASSERT_EQ(value, states[at]);
            ASSERT_EQ(history.count() + 1, static_cast<std::int32_t>(states.size()));
            ASSERT_EQ(alive, history.count());
            ASSERT_EQ(history.currentRecord() != nullptr, at > 0);
            ASSERT_EQ(history.redoRecord() != nullptr, at + 1 < states.size());
            ASSERT_EQ(valueAtPosition.try_emplace(history.position(), value).first->second, value);
        }
    }
}
