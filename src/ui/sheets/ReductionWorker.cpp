#include "ui/sheets/ReductionWorker.h"

#include "interchange/EntryColour.h"

#include <array>
#include <cstdlib>
#include <new>
#include <utility>

namespace dyeworks {

namespace {

std::int64_t difference(const Colour& one, const Colour& other) {
    if (one.alpha == 0 && other.alpha == 0)
        return 0;
    return std::abs(one.red - other.red) + std::abs(one.green - other.green) +
           std::abs(one.blue - other.blue) + std::abs(one.alpha - other.alpha);
}

void measure(const Picture& picture, ReductionOutcome& outcome) {
    const std::vector<std::uint16_t>& entries = outcome.reduced.entries;
    std::array<Colour, 256> shown{};
    for (std::size_t i = 0; i < entries.size() && i < shown.size(); ++i)
        shown[i] = colourOf(outcome.colourType, entries[i]);
    std::array<bool, 256> used{};
    std::int64_t sum = 0;
    const std::vector<std::uint8_t>& indices = outcome.reduced.indices;
    for (std::size_t i = 0; i < indices.size(); ++i) {
        const Colour& before = picture.isIndexed() ? picture.colours[picture.indices[i]] : picture.pixels[i];
        sum += difference(before, shown[indices[i]]);
        used[indices[i]] = true;
    }
    for (const bool is : used)
        outcome.usedColours += is ? 1 : 0;
    if (!indices.empty())
        outcome.meanError = static_cast<double>(sum) / (4.0 * static_cast<double>(indices.size()));
}

} // namespace

ReductionWorker::ReductionWorker(const Picture& picture)
    : picture_(picture) {}

ReductionWorker::~ReductionWorker() = default;

void ReductionWorker::start(const ReductionState& state) {
    Wish wish{state.options(), state.givenEntries()};
    if (busy_) {
        thread_.request_stop();
        next_ = std::move(wish);
        return;
    }
    busy_ = true;
    run(std::move(wish));
}

void ReductionWorker::run(Wish wish) {
    // The thread before, if any, has told its last.
    thread_ = std::jthread([this, wish = std::move(wish)](const std::stop_token& stop) {
        const Progress progress = [&](int thousandths) {
            QMetaObject::invokeMethod(this, [this, thousandths] { Q_EMIT progressed(thousandths); });
            return !stop.stop_requested();
        };
        std::shared_ptr<ReductionOutcome> outcome;
        try {
            auto reduced = wish.given.empty() ? reduceColours(picture_, wish.options, progress)
                                              : matchColours(picture_, wish.given, wish.options, progress);
            if (reduced) {
                outcome = std::make_shared<ReductionOutcome>();
                outcome->reduced = std::move(reduced).value();
                if (!wish.given.empty())
                    outcome->reduced.entries = wish.given;
                outcome->colourType = wish.options.colourType;
                measure(picture_, *outcome);
            }
        } catch (const std::bad_alloc&) {
            outcome.reset();
        }
        QMetaObject::invokeMethod(
            this, [this, outcome = std::move(outcome)] { take(outcome); }, Qt::QueuedConnection);
    });
}

void ReductionWorker::take(std::shared_ptr<const ReductionOutcome> outcome) {
    if (next_) {
        run(*std::exchange(next_, std::nullopt));
        return;
    }
    outcome_ = std::move(outcome);
    busy_ = false;
    Q_EMIT finished();
}

} // namespace dyeworks
