#include "paint/ViewGeometry.h"

#include <gtest/gtest.h>

#include <vector>

namespace dyeworks {
namespace {

TEST(ViewGeometry, ZoomStepsThroughItsFactorsAndBack) {
    std::vector<std::int32_t> in{1};
    while (ViewGeometry::zoomedIn(in.back()) != in.back())
        in.push_back(ViewGeometry::zoomedIn(in.back()));
    std::vector<std::int32_t> out{16};
    while (ViewGeometry::zoomedOut(out.back()) != out.back())
        out.push_back(ViewGeometry::zoomedOut(out.back()));
    const std::vector<std::int32_t> factors(ViewGeometry::kZoomFactors.begin(),
                                            ViewGeometry::kZoomFactors.end());
    EXPECT_EQ(in, factors);
    EXPECT_EQ(std::vector(out.rbegin(), out.rend()), factors);
}

TEST(ViewGeometry, ZoomsBetweenTheFactorsStayInRange) {
    struct Case {
        std::int32_t zoom, in, out;
    };
    for (const Case& c : {Case{5, 7, 3}, Case{7, 9, 5}, Case{9, 13, 5}, Case{13, 16, 9}, Case{15, 16, 11}}) {
        EXPECT_EQ(ViewGeometry::zoomedIn(c.zoom), c.in) << c.zoom;
        EXPECT_EQ(ViewGeometry::zoomedOut(c.zoom), c.out) << c.zoom;
    }
    EXPECT_EQ(ViewGeometry::holdZoom(0), 1);
    EXPECT_EQ(ViewGeometry::holdZoom(17), 16);
}

TEST(ViewGeometry, MapsClientPointsToTexels) {
    struct Case {
        std::int32_t zoom;
        Point scroll, client, texel;
    };
    for (const Case& c : {Case{3, {5, 0}, {10, 2}, {5, 0}}, Case{1, {0, 0}, {7, 9}, {7, 9}},
                          Case{4, {0, 0}, {-3, -4}, {0, -1}}, Case{4, {8, 4}, {3, 4}, {2, 2}}}) {
        const ViewGeometry geometry(c.zoom, {100, 100}, {50, 50}, c.scroll);
        EXPECT_EQ(geometry.texelAt(c.client), c.texel) << c.client.x << ' ' << c.zoom;
    }
}

TEST(ViewGeometry, ScrollStaysInTheContent) {
    struct Case {
        std::int32_t zoom;
        Point wanted, allowed;
    };
    // The content is 40 by 20 at zoom 2 and 80 by 40 at zoom 4, the client area 30 by 25.
    for (const Case& c : {Case{2, {99, 99}, {10, 0}}, Case{2, {-1, -1}, {0, 0}}, Case{4, {50, 15}, {50, 15}},
                          Case{4, {51, 16}, {50, 15}}, Case{1, {5, 5}, {0, 0}}})
        EXPECT_EQ(ViewGeometry(c.zoom, {20, 10}, {30, 25}, {}).clampedScroll(c.wanted), c.allowed);
}

TEST(ViewGeometry, DirectionThatFitsExactlyKeepsItsPositionWhenZoomed) {
    const ViewGeometry geometry(2, {20, 50}, {40, 30}, {3, 0});
    EXPECT_EQ(geometry.scrollToKeep({10, 20}, {4, 5}), (Point{3, 35}));
}

} // namespace
} // namespace dyeworks
