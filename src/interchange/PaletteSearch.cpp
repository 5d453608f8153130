#include "interchange/PaletteSearch.h"

#include "interchange/ColourCut.h"
#include "interchange/NearestEntry.h"
#include "interchange/WorkProgress.h"

#include <algorithm>
#include <array>
#include <limits>

namespace dyeworks {

namespace {

/// Of centres that may lie anywhere, then of those that are entries. More of them gain nearly nothing.
constexpr int kFreeSteps = 5;
constexpr int kRoundedSteps = 4;

struct Channel {
    unsigned shift;
    unsigned most;
};
constexpr std::array<Channel, 3> kRgba{{{11, 31}, {6, 31}, {1, 31}}};
constexpr std::array<Channel, 3> kIa{{{8, 255}, {0, 255}, {0, 0}}};

/// The entry that is nearest to a point: down the slope from `entry`, at most a step of each channel at a
/// time.
std::uint16_t descend(ColourType type, ColourPoint point, std::uint16_t entry) {
    const std::array<Channel, 3>& channels = type == ColourType::Ia ? kIa : kRgba;
    const std::vector<ColourPoint>& points = entryPoints(type);
    float least = squared(points[entry] - point);
    for (unsigned centre = entry;; centre = entry) {
        for (int neighbour = 0; neighbour < 27; ++neighbour) {
            unsigned other = centre;
            bool inside = true;
            int rest = neighbour;
            for (const Channel& channel : channels) {
                const int value = static_cast<int>(centre >> channel.shift & channel.most) + rest % 3 - 1;
                inside = inside && value >= 0 && value <= static_cast<int>(channel.most);
                other = (other & ~(channel.most << channel.shift)) | static_cast<unsigned>(value)
                                                                         << channel.shift;
                rest /= 3;
            }
            if (!inside)
                continue;
            if (const float distance = squared(points[other] - point); distance < least) {
                least = distance;
                entry = static_cast<std::uint16_t>(other);
            }
        }
        if (centre == entry)
            return entry;
    }
}

/// The cells and the centres that serve them, those of fixed entries first. Centres move to the mean of the
/// cells that they are nearest to (k-means, Lloyd 1982).
class Clusters {
public:
    Clusters(ColourType type, std::span<const ColourCell> cells, std::span<const std::uint16_t> fixed)
        : type_(type)
        , cells_(cells)
        , fixed_(fixed.begin(), fixed.end())
        , services_(cells.size()) {}

    void setCentres(std::span<const ColourPoint> centres) {
        centres_.clear();
        for (const std::uint16_t entry : fixed_)
            centres_.push_back(entryPoints(type_)[entry]);
        centres_.insert(centres_.end(), centres.begin(), centres.end());
        serve();
    }

    void setEntries(std::span<const std::uint16_t> entries) {
        std::vector<ColourPoint> centres;
        for (const std::uint16_t entry : entries)
            centres.push_back(entryPoints(type_)[entry]);
        setCentres(centres);
    }

    /// The means of the cells of each centre that is not fixed and has some, with the entry of one of them.
    struct Mean {
        ColourPoint point;
        std::uint16_t near = 0;
    };
    [[nodiscard]] std::vector<Mean> means() const {
        struct Sum {
            std::array<double, 3> point{};
            double weight = 0;
            std::uint16_t near = 0;
        };
        std::vector<Sum> sums(centres_.size());
        for (std::size_t i = 0; i < cells_.size(); ++i) {
            Sum& sum = sums[services_[i].index];
            const double weight = static_cast<double>(cells_[i].weight);
            sum.point[0] += weight * cells_[i].point.x;
            sum.point[1] += weight * cells_[i].point.y;
            sum.point[2] += weight * cells_[i].point.z;
            sum.weight += weight;
            sum.near = cells_[i].entry;
        }
        std::vector<Mean> means;
        for (std::size_t i = fixed_.size(); i < sums.size(); ++i) {
            const auto mean = [&sum = sums[i]](std::size_t channel) {
                return static_cast<float>(sum.point[channel] / sum.weight);
            };
            if (sums[i].weight > 0)
                means.push_back({{mean(0), mean(1), mean(2)}, sums[i].near});
        }
        return means;
    }

    /// The entries nearest to the means, each once and none of the fixed.
    [[nodiscard]] std::vector<std::uint16_t> roundedMeans() const {
        std::vector<std::uint16_t> entries;
        for (const Mean& mean : means()) {
            const std::uint16_t entry = descend(type_, mean.point, mean.near);
            if (std::ranges::find(entries, entry) == entries.end() &&
                std::ranges::find(fixed_, entry) == fixed_.end())
                entries.push_back(entry);
        }
        return entries;
    }

    /// The own entries of at most `count` cells, those that gain the most by having them.
    [[nodiscard]] std::vector<std::uint16_t> worstServed(std::size_t count) const {
        std::vector<std::pair<float, std::uint16_t>> gains;
        for (std::size_t i = 0; i < cells_.size() && count > 0; ++i) {
            const float own = squared(entryPoints(type_)[cells_[i].entry] - cells_[i].point);
            if (const float gain = cells_[i].weight * (services_[i].distance - own); gain > 0)
                gains.emplace_back(-gain, cells_[i].entry);
        }
        count = std::min(count, gains.size());
        std::ranges::partial_sort(gains, gains.begin() + static_cast<std::ptrdiff_t>(count));
        std::vector<std::uint16_t> entries(count);
        std::ranges::transform(gains.begin(), gains.begin() + static_cast<std::ptrdiff_t>(count),
                               entries.begin(), [](const auto& gain) { return gain.second; });
        return entries;
    }

    [[nodiscard]] double error() const noexcept { return error_; }

private:
    void serve() {
        const NearestEntry nearest(centres_);
        error_ = 0;
        for (std::size_t i = 0; i < cells_.size(); ++i) {
            const std::size_t guess = services_[i].index < centres_.size() ? services_[i].index : 0;
            services_[i] = nearest.find(cells_[i].point, guess);
            error_ += static_cast<double>(cells_[i].weight * services_[i].distance);
        }
    }

    ColourType type_;
    std::span<const ColourCell> cells_;
    std::vector<std::uint16_t> fixed_;
    std::vector<ColourPoint> centres_;
    std::vector<NearestEntry::Found> services_; ///< Of each cell: by which centre.
    double error_ = 0;
};

} // namespace

std::vector<std::uint16_t> searchPalette(ColourType type, std::span<const ColourCell> cells,
                                         std::size_t count, std::span<const std::uint16_t> fixed,
                                         WorkProgress& progress) {
    if (count == 0 || cells.empty())
        return {};
    constexpr int kSteps = kFreeSteps + kRoundedSteps;
    Clusters clusters(type, cells, fixed);
    std::vector<ColourCell> order(cells.begin(), cells.end());
    clusters.setCentres(cutColours(order, count));
    for (int step = 0; step < kFreeSteps && progress.reach(step, kSteps); ++step) {
        std::vector<ColourPoint> centres;
        std::ranges::transform(clusters.means(), std::back_inserter(centres), &Clusters::Mean::point);
        clusters.setCentres(centres);
    }
    std::vector<std::uint16_t> best;
    double least = std::numeric_limits<double>::max();
    for (int step = kFreeSteps; step < kSteps && progress.reach(step, kSteps); ++step) {
        std::vector<std::uint16_t> entries = clusters.roundedMeans();
        clusters.setEntries(entries);
        // Means that fell together, or that none was nearest to, leave room for cells that are badly off.
        const std::vector<std::uint16_t> more = clusters.worstServed(count - entries.size());
        if (!more.empty()) {
            entries.insert(entries.end(), more.begin(), more.end());
            clusters.setEntries(entries);
        }
        if (clusters.error() < least) {
            least = clusters.error();
            best = entries;
        }
    }
    return best;
}

} // namespace dyeworks
