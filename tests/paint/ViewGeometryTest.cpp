#include "paint/ViewGeometry.h"

#include <gtest/gtest.h>

namespace dyeworks {
namespace {

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

TEST(ViewGeometry, DirectionThatFitsExactlyKeepsItsPositionWhenZoomed) {
    const ViewGeometry geometry(2, {20, 50}, {40, 30}, {3, 0});
    EXPECT_EQ(geometry.scrollToKeep({10, 20}, {4, 5}), (Point{3, 35}));
}

} // namespace
} // namespace dyeworks
