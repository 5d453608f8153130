#pragma once

#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace dyeworks {

/// An application with a palette bar and a status line that only remember.
class FakeImageHost : public ImageHost {
public:
    PaletteSet* paletteSet() override { return &palettes; }
    std::int32_t paletteBarFirstEntry() const override { return firstEntry; }
    std::int32_t paletteBarCell() const override { return cell; }
    void selectPaletteBarCell(std::int32_t which) override { cell = which; }
    void refreshPaletteBar() override { ++barRefreshes; }
    void setStatusText(const std::string& text, int pane) override { panes[pane] = text; }
    bool isActiveImage(const CDyeworksDoc& document) const override { return active == &document; }

    PaletteSet palettes;
    std::int32_t firstEntry = 0;
    std::int32_t cell = -1;
    int barRefreshes = 0;
    std::map<int, std::string> panes;
    const CDyeworksDoc* active = nullptr;
};

/// What `target` says of a command that it takes.
inline CommandUi stateOf(CommandTarget& target, CommandId id) {
    CommandUi ui;
    ui.id = id;
    EXPECT_TRUE(target.updateCommand(ui)) << id;
    return ui;
}

/// A document with an image of 16 by 12 texels at 4 bits, all 0.
class DocFixture : public testing::Test {
protected:
    DocFixture() { document.canvas().Create(16, 12, 1, 4); }

    std::vector<std::uint8_t> pixels() const {
        const auto rows = document.canvas().pixelRows();
        return {rows.begin(), rows.end()};
    }

    void openPalette(std::int32_t count = 16) {
        ASSERT_TRUE(host.palettes.newPalette(count, ColourType::Rgba, 1));
    }

    FakePlatform platform;
    FakeImageHost host;
    CDyeworksDoc document{host};
};

} // namespace dyeworks
