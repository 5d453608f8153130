#include "core/UndoHistory.h"

#include "core/JointStep.h"
#include "core/StepList.h"
#include "platform/fake/FakePlatform.h"

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

/// A value with a history.
struct Counter : JointDocument {
    explicit Counter(std::string path)
        : name(std::move(path)) {}

    std::string jointName() const override { return name; }
    const EditHistory& jointHistory() const override { return history; }
    void settle() override {}
    bool moveAlone(StepWay way) override {
        const bool can = way == StepWay::Back ? history.canUndo() : history.canRedo();
        return (way == StepWay::Back ? history.undo(&value) : history.redo(&value)), can;
    }
    void take(std::unique_ptr<UndoRecord> record) override {
        record->redo(&value);
        history.add(std::move(record));
    }
    void showMoved() override { ++shown; }
    void showAlone() override { ++shown; }
    void set(int to) { take(std::make_unique<Assignment>(value, to)); }

    std::string name;
    EditHistory history{MessageIcon::Warning};
    int value = 0;
    int shown = 0;
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

TEST(JointStep, AsksWithTheDocumentsThatHaveToGoAlong) {
    FakePlatform fake;
    Counter a("c:\\a\\x.tmf"), b("c:\\b\\x.tmf");
    auto c = std::make_unique<Counter>("c:\\y.tlf");
    const auto values = [&] { return std::vector{a.value, b.value, c == nullptr ? -1 : c->value}; };
    const auto move = [&](Counter& document, StepWay way, MessageAnswer answer) {
        fake.messages.shown.clear();
        fake.messages.onShow = [&, answer] { fake.messages.answerWith(answer); };
        return JointStep::move(document, way);
    };
    const auto undo = [&](Counter& document, MessageAnswer answer = MessageAnswer::No) {
        return move(document, StepWay::Back, answer);
    };
    const auto redo = [&](Counter& document, MessageAnswer answer = MessageAnswer::No) {
        return move(document, StepWay::Forward, answer);
    };
    const auto asked = [&] { return fake.messages.lastText(); };
    c->set(5);
    std::vector<JointStep::Change> changes;
    for (Counter* each : {&a, &b, c.get()})
        changes.push_back({each, std::make_unique<Assignment>(each->value, 1)});
    ASSERT_TRUE(JointStep::carryOut(std::move(changes)));
    EXPECT_EQ(a.shown, 1);
    b.set(2);
    b.set(3);
    c->set(2);
    EXPECT_FALSE(redo(a));
    EXPECT_FALSE(undo(a));
    EXPECT_EQ(values(), (std::vector{1, 3, 2}));
    EXPECT_EQ(asked(), "This step changed several documents together.\n\nThere are later steps in:\n    "
                       "c:\\b\\x.tmf (2)\n    y.tlf (1)\n\nDo you want to take those back, too?");
    EXPECT_TRUE(undo(a, MessageAnswer::Yes));
    EXPECT_EQ(values(), (std::vector{0, 0, 5}));
    EXPECT_EQ(b.shown, 2);
    EXPECT_TRUE(undo(*c));
    EXPECT_FALSE(redo(b));
    EXPECT_EQ(asked(), "This step changes several documents together.\n\nEarlier steps have been taken back "
                       "in:\n    y.tlf (1)\n\nDo you want to do those again, too?");
    EXPECT_TRUE(redo(b, MessageAnswer::Yes));
    EXPECT_TRUE(redo(b));
    EXPECT_EQ(values(), (std::vector{1, 2, 1}));
    EXPECT_TRUE(undo(b));
    EXPECT_TRUE(undo(b));
    EXPECT_TRUE(redo(a));
    EXPECT_EQ(asked(), "") << "all stand at it";
    EXPECT_EQ(values(), (std::vector{1, 1, 1}));

    c.reset();
    a.set(4);
    const auto positionOf = [&](std::size_t row) { return stepsOf(a.history).at(row).position; };
    fake.messages.onShow = [&] { fake.messages.answerWith(MessageAnswer::No); };
    EXPECT_FALSE(JointStep::moveTo(a, positionOf(0)));
    EXPECT_EQ(a.shown, 6) << "what was done is seen before the question";
    EXPECT_EQ(values(), (std::vector{1, 1, -1}));
    EXPECT_EQ(asked(), "This step changed several documents together.\n\nNo longer part of it, and left as "
                       "they are, because they were closed or their history has dropped the step:\n    "
                       "y.tlf\n\nDo you want to take it back in the others?");
    fake.messages.onShow = [&] { fake.messages.answerWith(MessageAnswer::Yes); };
    EXPECT_TRUE(JointStep::moveTo(a, positionOf(0)));
    EXPECT_EQ(values(), (std::vector{0, 0, -1}));
    EXPECT_FALSE(redo(a));
    EXPECT_THAT(asked(), testing::EndsWith("Do you want to do it again in the others?"));
    EXPECT_FALSE(JointStep::moveTo(a, 99));
    fake.messages.onShow = [&] { fake.messages.answerWith(MessageAnswer::Yes); };
    EXPECT_TRUE(JointStep::moveTo(a, positionOf(2)));
    EXPECT_EQ(values(), (std::vector{4, 1, -1}));
    EXPECT_EQ(a.shown, 9);
}
