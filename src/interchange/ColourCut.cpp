#include "interchange/ColourCut.h"

#include <queue>

#include <algorithm>
#include <array>

namespace dyeworks {

namespace {

/// Weighted sums over cells, from which their mean and the squared error to it follow.
struct Sums {
    double weight = 0;
    std::array<double, 3> point{};
    double squares = 0;

    void add(const ColourCell& cell, double sign = 1) noexcept {
        const double factor = sign * static_cast<double>(cell.weight);
        weight += factor;
        point[0] += factor * cell.point.x;
        point[1] += factor * cell.point.y;
        point[2] += factor * cell.point.z;
        squares += factor * squared(cell.point);
    }

    [[nodiscard]] double error() const noexcept {
        if (weight <= 0)
            return 0;
        return std::max(0.0,
                        squares - (point[0] * point[0] + point[1] * point[1] + point[2] * point[2]) / weight);
    }

    [[nodiscard]] ColourPoint mean() const noexcept {
        return {static_cast<float>(point[0] / weight), static_cast<float>(point[1] / weight),
                static_cast<float>(point[2] / weight)};
    }
};

struct Group {
    std::span<ColourCell> cells;
    Sums sums;
    double error = 0;

    explicit Group(std::span<ColourCell> of)
        : cells(of) {
        for (const ColourCell& cell : cells)
            sums.add(cell);
        error = cells.size() > 1 ? sums.error() : 0;
    }

    bool operator<(const Group& other) const noexcept { return error < other.error; }
};

float dot(ColourPoint a, ColourPoint b) noexcept {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

/// Along which the cells differ most: the first eigenvector of their covariance, by power iteration.
ColourPoint longestAxis(const Group& group) noexcept {
    const ColourPoint mean = group.sums.mean();
    std::array<ColourPoint, 3> covariance{};
    for (const ColourCell& cell : group.cells) {
        const ColourPoint d = cell.point - mean;
        covariance[0] = covariance[0] + d * (d.x * cell.weight);
        covariance[1] = covariance[1] + d * (d.y * cell.weight);
        covariance[2] = covariance[2] + d * (d.z * cell.weight);
    }
    // The row of the widest channel is no eigenvector's normal, and already near the first.
    const std::array<float, 3> spread{covariance[0].x, covariance[1].y, covariance[2].z};
    ColourPoint axis =
        covariance[static_cast<std::size_t>(std::ranges::max_element(spread) - spread.begin())];
    for (int i = 0; i < 8; ++i) {
        const ColourPoint next{dot(covariance[0], axis), dot(covariance[1], axis), dot(covariance[2], axis)};
        const float length = std::sqrt(squared(next));
        if (!(length > 0))
            break;
        axis = next * (1 / length);
    }
    return axis;
}

/// Where the two parts have the least error. The cells are sorted by then.
std::size_t bestCut(const Group& group) noexcept {
    Sums below;
    Sums above = group.sums;
    std::size_t best = group.cells.size() / 2;
    double least = group.error;
    for (std::size_t i = 0; i + 1 < group.cells.size(); ++i) {
        below.add(group.cells[i]);
        above.add(group.cells[i], -1);
        if (const double error = below.error() + above.error(); error < least) {
            least = error;
            best = i + 1;
        }
    }
    return best;
}

} // namespace

std::vector<ColourPoint> cutColours(std::span<ColourCell> cells, std::size_t count) {
    std::vector<ColourPoint> means;
    if (cells.empty() || count == 0)
        return means;
    std::priority_queue<Group> groups;
    groups.emplace(cells);
    while (groups.size() < count && groups.top().error > 0) {
        const Group group = groups.top();
        groups.pop();
        const ColourPoint axis = longestAxis(group);
        std::ranges::sort(group.cells, {}, [axis](const ColourCell& cell) { return dot(cell.point, axis); });
        const std::size_t cut = bestCut(group);
        groups.emplace(group.cells.first(cut));
        groups.emplace(group.cells.subspan(cut));
    }
    for (; !groups.empty(); groups.pop())
        means.push_back(groups.top().sums.mean());
    return means;
}

} // namespace dyeworks
