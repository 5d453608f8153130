#pragma once

#include "core/EditHistory.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

/// The way in which a history is walked.
enum class StepWay { Back, Forward };

/// A document, image or palette, as the steps know it that it shares with others.
class JointDocument {
public:
    JointDocument() = default;
    virtual ~JointDocument() = default;
    JointDocument(const JointDocument&) = delete;
    JointDocument& operator=(const JointDocument&) = delete;

    /// What the user knows it by: the path of its file, or what it is called while it has none.
    [[nodiscard]] virtual std::string jointName() const = 0;
    [[nodiscard]] virtual const EditHistory& jointHistory() const = 0;
    /// Ends what is under way and belongs to no step yet.
    virtual void settle() = 0;
    /// Takes the step at hand back, or does it again, in this document alone and without showing it. False
    /// when there is none.
    virtual bool moveAlone(StepWay way) = 0;
    /// Carries out a new step, by the record's `redo`, and adds it to the history, without showing it.
    virtual void take(std::unique_ptr<UndoRecord> record) = 0;
    /// Shows what `moveAlone` and `take` have done, once all documents of a joint step are where they belong.
    virtual void showMoved() = 0;
    /// Shows what `moveAlone` has done in a step of this document alone, if nobody else does.
    virtual void showAlone() {}

    /// Lives as long as the document.
    [[nodiscard]] std::weak_ptr<JointDocument*> handle() const { return self_; }

private:
    std::shared_ptr<JointDocument*> self_ = std::make_shared<JointDocument*>(this);
};

/// One step in the histories of several documents, which go through it together.
///
/// It is kept alive by the records that belong to it, one in each history. Where a record goes, because its
/// document was closed, started its history anew, dropped its oldest step or was edited after the step had
/// been taken back, that document is no longer part of the step.
class JointStep {
public:
    struct Change {
        JointDocument* document = nullptr;
        std::unique_ptr<UndoRecord> record;
    };

    /// Carries out the changes, each of another document, as one step, and shows them. False, changing
    /// nothing, without memory for it.
    [[nodiscard]] static bool carryOut(std::vector<Change> changes);

    /// Undo and redo of a document whose steps may be joint. A joint one is taken back, or done again, in all
    /// of its documents. When others have further steps before it, and when documents are no longer part of
    /// it, the user is told which, and asked whether to take those steps, too. False when there is no step or
    /// the user left it; nothing has changed then.
    static bool move(JointDocument& document, StepWay way);
    /// Takes steps of the document back, or does them again, one after another as `move` does, until its
    /// history stands at `position`; what belongs to it alone is shown once. False when there is no such
    /// position, and when it ended before because the user left a step.
    static bool moveTo(JointDocument& document, std::int32_t position);

private:
    class Tie;
    class Walk;
    struct Part {
        JointDocument* document = nullptr; ///< Null: no longer part of the step.
        const UndoRecord* record = nullptr;
        std::string name;
    };

    [[nodiscard]] static JointStep* stepOf(const UndoRecord& record);

    std::vector<Part> parts_;
};

} // namespace dyeworks
