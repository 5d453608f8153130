#include "core/JointStep.h"

#include "core/StepList.h"
#include "platform/Platform.h"
#include "platform/ProgramPath.h"
#include "platform/StringId.h"

#include <algorithm>
#include <new>
#include <string_view>
#include <utility>

namespace dyeworks {

namespace {

const UndoRecord* atHand(const JointDocument& document, StepWay way) {
    const UndoHistory* const history = document.jointHistory().steps.get();
    if (history == nullptr)
        return nullptr;
    return way == StepWay::Back ? history->currentRecord() : history->redoRecord();
}

const UndoRecord* further(const UndoRecord& record, StepWay way) {
    return way == StepWay::Back ? record.previous : record.next;
}

std::string_view withoutFolders(std::string_view name) {
    const auto folders = std::ranges::find_if(name.rbegin(), name.rend(), isSeparator);
    return name.substr(static_cast<std::size_t>(name.rend() - folders));
}

/// Without its folders, unless another of all the names would be the same then.
std::string shortName(const std::string& name, const std::vector<std::string>& all) {
    const std::string_view itsShort = withoutFolders(name);
    const bool isAmbiguous = std::ranges::any_of(
        all, [&](const std::string& other) { return other != name && withoutFolders(other) == itsShort; });
    return isAmbiguous ? name : std::string(itsShort);
}

std::string listed(const std::vector<std::string>& names) {
    std::string lines;
    for (const std::string& name : names)
        lines += "\n    " + name;
    return lines;
}

} // namespace

/// What a record has of the step. The step forgets the document when the record goes.
class JointStep::Tie : public RecordTie {
public:
    Tie(std::shared_ptr<JointStep> step, std::size_t part)
        : step_(std::move(step))
        , part_(part) {}
    ~Tie() override {
        step_->parts_[part_].document = nullptr;
        step_->parts_[part_].record = nullptr;
    }
    Tie(const Tie&) = delete;
    Tie& operator=(const Tie&) = delete;

    [[nodiscard]] JointStep& step() const noexcept { return *step_; }

private:
    std::shared_ptr<JointStep> step_;
    std::size_t part_;
};

/// How far each document has to go, so that one of them gets through its step at hand.
class JointStep::Walk {
public:
    Walk(JointDocument& document, StepWay way)
        : way_(way)
        , first_(stepOf(*atHand(document, way))) {
        reach(document, *atHand(document, way));
    }

    /// The others that have further steps before it.
    [[nodiscard]] std::vector<std::string> others() const {
        const std::vector<std::string> all = names();
        std::vector<std::string> others;
        for (const Leg& leg : legs_) {
            const int before = leg.steps - (isOf(*first_, *leg.document) ? 1 : 0);
            if (before > 0)
                others.push_back(text(StringId::JointStepCount,
                                      {shortName(leg.document->jointName(), all), std::to_string(before)}));
        }
        return others;
    }
    /// The documents that are no longer part of it.
    [[nodiscard]] std::vector<std::string> gone() const {
        const std::vector<std::string> all = names();
        std::vector<std::string> gone;
        for (const std::string& name : gone_)
            gone.push_back(shortName(name, all));
        return gone;
    }
    [[nodiscard]] std::vector<JointDocument*> documents() const {
        std::vector<JointDocument*> all;
        for (const Leg& leg : legs_)
            all.push_back(leg.document);
        return all;
    }

    /// Joint steps stand in the same order in every history, so that there is always one that can be next.
    void go() {
        for (bool moved = true; moved;) {
            moved = false;
            for (Leg& leg : legs_)
                moved = (leg.steps > 0 && goOne(leg)) || moved;
        }
    }

private:
    struct Leg {
        JointDocument* document;
        int steps;
    };

    [[nodiscard]] static bool isOf(const JointStep& step, const JointDocument& document) {
        return std::ranges::find(step.parts_, &document, &Part::document) != step.parts_.end();
    }

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> all = gone_;
        for (const Leg& leg : legs_)
            all.push_back(leg.document->jointName());
        return all;
    }

    [[nodiscard]] Leg& legOf(JointDocument& document) {
        const auto known = std::ranges::find(legs_, &document, &Leg::document);
        return known == legs_.end() ? legs_.emplace_back(Leg{&document, 0}) : *known;
    }

    void missing(const std::string& name) {
        if (std::ranges::find(gone_, name) == gone_.end())
            gone_.push_back(name);
    }

    /// All joint steps on the way to the record are those of other documents, too.
    void reach(JointDocument& document, const UndoRecord& record) {
        int steps = 1;
        const UndoRecord* passed = atHand(document, way_);
        for (; passed != nullptr && passed != &record; passed = further(*passed, way_))
            ++steps;
        if (passed == nullptr) {
            missing(document.jointName());
            return;
        }
        const int known = std::exchange(legOf(document).steps, std::max(legOf(document).steps, steps));
        passed = atHand(document, way_);
        for (int n = 0; n < steps; ++n, passed = further(*passed, way_)) {
            if (n >= known)
                reachPartsOf(stepOf(*passed));
        }
    }

    void reachPartsOf(const JointStep* step) {
        if (step == nullptr)
            return;
        for (const Part& part : step->parts_) {
            if (part.document == nullptr)
                missing(part.name);
            else
                reach(*part.document, *part.record);
        }
    }

    bool goOne(Leg& leg) {
        const UndoRecord* const record = atHand(*leg.document, way_);
        if (record == nullptr)
            return false;
        const JointStep* const step = stepOf(*record);
        if (step == nullptr)
            return leg.document->moveAlone(way_) && leg.steps-- > 0;
        const bool allStandAtIt = std::ranges::all_of(step->parts_, [this](const Part& part) {
            return part.document == nullptr || atHand(*part.document, way_) == part.record;
        });
        if (!allStandAtIt)
            return false;
        for (const Part& part : step->parts_) {
            if (part.document != nullptr && part.document->moveAlone(way_))
                --legOf(*part.document).steps;
        }
        return true;
    }

    StepWay way_;
    const JointStep* first_;
    std::vector<Leg> legs_;
    std::vector<std::string> gone_;
};

JointStep* JointStep::stepOf(const UndoRecord& record) {
    const auto* const tie = dynamic_cast<const Tie*>(record.tie.get());
    return tie == nullptr ? nullptr : &tie->step();
}

bool JointStep::carryOut(std::vector<Change> changes) {
    try {
        const auto step = std::make_shared<JointStep>();
        step->parts_.reserve(changes.size());
        for (Change& change : changes) {
            step->parts_.push_back({change.document, change.record.get(), change.document->jointName()});
            change.record->tie = std::make_unique<Tie>(step, step->parts_.size() - 1);
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
    for (Change& change : changes)
        change.document->take(std::move(change.record));
    for (const Change& change : changes)
        change.document->showMoved();
    return true;
}

bool JointStep::move(JointDocument& document, StepWay way) {
    document.settle();
    const UndoRecord* const record = atHand(document, way);
    if (record == nullptr)
        return false;
    if (stepOf(*record) == nullptr) {
        if (!document.moveAlone(way))
            return false;
        document.showAlone();
        return true;
    }
    Walk walk(document, way);
    for (JointDocument* other : walk.documents())
        other->settle();
    // What was dragged there may have been a step, which is none any more.
    walk = Walk(document, way);
    const std::weak_ptr<JointDocument*> self = document.handle();

    const std::vector<std::string> others = walk.others();
    const std::vector<std::string> gone = walk.gone();
    if (!others.empty() || !gone.empty()) {
        const bool back = way == StepWay::Back;
        std::string question = text(back ? StringId::JointUndo : StringId::JointRedo);
        if (!gone.empty())
            question += "\n\n" + text(StringId::JointGone, {listed(gone)});
        if (!others.empty())
            question += "\n\n" + text(back ? StringId::JointLaterSteps : StringId::JointEarlierSteps,
                                      {listed(others)});
        question += "\n\n" + text(others.empty() ? (back ? StringId::JointUndoRest : StringId::JointRedoRest)
                                                 : (back ? StringId::JointUndoAll : StringId::JointRedoAll));
        if (applicationMessage(question, MessageButtons::YesNo) != MessageAnswer::Yes)
            return false;
        // Files may have been handed to the program meanwhile.
        if (self.expired() || atHand(document, way) != record)
            return false;
        walk = Walk(document, way);
    }

    // Showing an image may let a plug-in close another.
    std::vector<std::weak_ptr<JointDocument*>> moved;
    for (const JointDocument* each : walk.documents())
        moved.push_back(each->handle());
    walk.go();
    for (const auto& each : moved) {
        if (const auto alive = each.lock())
            (*alive)->showMoved();
    }
    return true;
}

bool JointStep::moveTo(JointDocument& document, std::int32_t position) {
    document.settle();
    const std::weak_ptr<JointDocument*> self = document.handle();
    const auto standsAt = [&] { return document.jointHistory().position(); };
    const std::vector<StepRow> rows = stepsOf(document.jointHistory());
    if (std::ranges::find(rows, position, &StepRow::position) == rows.end())
        return false;
    // Positions grow from each step to the next.
    const StepWay way = position < standsAt() ? StepWay::Back : StepWay::Forward;
    const auto isOnTheWay = [&] {
        return way == StepWay::Back ? position < standsAt() : position > standsAt();
    };
    bool unshown = false;
    while (isOnTheWay()) {
        const UndoRecord* const record = atHand(document, way);
        if (record == nullptr)
            break;
        if (stepOf(*record) == nullptr) {
            if (!document.moveAlone(way))
                break;
            unshown = true;
            continue;
        }
        // The user may be asked, and sees what has been done so far.
        if (std::exchange(unshown, false))
            document.showAlone();
        if (self.expired() || !move(document, way) || self.expired())
            return false;
    }
    const bool arrived = standsAt() == position;
    if (unshown)
        document.showAlone();
    return arrived;
}

} // namespace dyeworks
