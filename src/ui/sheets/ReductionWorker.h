#pragma once

#include "interchange/ReductionState.h"

#include <QObject>

#include <cstdint>
#include <memory>
#include <optional>
#include <thread>

namespace dyeworks {

/// A picture that has been reduced, and how well that went.
struct ReductionOutcome {
    ReducedPicture reduced;
    ColourType colourType = ColourType::Rgba; ///< Of the entries.
    std::int32_t usedColours = 0;             ///< Different ones that pixels have.
    double meanError = 0; ///< Of a channel of a pixel, 0 to 255; where both are transparent, 0.
};

/// Reduces a picture on a thread of its own. The newest wish counts: it stops what is under way.
class ReductionWorker : public QObject {
    Q_OBJECT

public:
    /// The picture must outlive the worker.
    explicit ReductionWorker(const Picture& picture);
    /// Stops, and waits for the thread.
    ~ReductionWorker() override;

    /// Begins with what the state says, whose list of kept entries must be valid.
    void start(const ReductionState& state);
    [[nodiscard]] bool isBusy() const noexcept { return busy_; }
    /// What was finished last; nothing before that, and after a failure.
    [[nodiscard]] std::shared_ptr<const ReductionOutcome> outcome() const noexcept { return outcome_; }

Q_SIGNALS:
    void progressed(int thousandths);
    /// What was wished last is done, or has failed for want of memory.
    void finished();

private:
    struct Wish {
        ReductionOptions options;
        std::vector<std::uint16_t> given;
    };
    void run(Wish wish);
    void take(std::shared_ptr<const ReductionOutcome> outcome);

    const Picture& picture_;
    std::shared_ptr<const ReductionOutcome> outcome_;
    std::optional<Wish> next_;
    bool busy_ = false;
    std::jthread thread_;
};

} // namespace dyeworks
