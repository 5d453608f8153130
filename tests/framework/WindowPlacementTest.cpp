#include "framework/WindowPlacement.h"

#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

using namespace dyeworks;

TEST(WindowPlacement, FieldsStandInTheirOrder) {
    FakePlatform fake;
    const WindowPlacement placement{2, 3, -32000, -31999, -8, -7, 10, 20, 810, 620};
    writeWindowPlacement("WindowPos", placement);
    EXPECT_EQ(fake.profile.sections["Settings"]["WindowPos"], "2:3:-32000:-31999:-8:-7:10:20:810:620");
    EXPECT_EQ(readWindowPlacement("WindowPos"), placement);
    EXPECT_EQ(readWindowPlacement("windowpos"), std::nullopt);
}
