#include "ViewTestWindow.h"
#include "paint/CanvasDepth.h"
#include "platform/StringId.h"

namespace dyeworks {
namespace {

class ImageWorkCommands : public ViewFixture {
protected:
    /// A palette of 256 different colours, attached, and an image of 8 bits in it.
    void SetUp() override {
        openPalette(256);
        TextureLookupTable* const palette = host.palettes.lookup("");
        for (std::int32_t entry = 0; entry < 256; ++entry) {
            palette->setRed(entry, entry % 32);
            palette->setGreen(entry, entry / 8);
            palette->setAlpha(entry, 1);
        }
        host.active = &document;
        document.canvas().Create(6, 4, 1, 8);
        view.SetZoom(1);
        document.Attach();
    }

    /// The palette bar shows the bank of the image.
    void run(CommandId id) {
        ASSERT_TRUE(stateOf(view, id).enabled) << id;
        view.runCommand(id);
        host.firstEntry = document.paletteValue();
        document.RefreshPalette();
    }

    std::vector<std::uint32_t> seen() const {
        std::vector<std::uint32_t> colours;
        const TextureCanvas& canvas = document.canvas();
        for (std::int32_t n = 0; n < canvas.width() * canvas.height(); ++n) {
            const std::size_t at = 4 * canvas.GetPixel(n % canvas.width(), n / canvas.width());
            const auto table = canvas.colourTable();
            colours.push_back(std::uint32_t{table[at]} << 16U | std::uint32_t{table[at + 1]} << 8U |
                              table[at + 2]);
        }
        return colours;
    }
};

TEST_F(ImageWorkCommands, ADepthShowsWhatTheEyeSawThereAndBack) {
    FakeProject project; // Whose picture of the image names bank 3.
    host.project = &project;
    document.setPathName("c:\\a.tmf");
    fill(0, 0, 0x35);
    pixel(1, 2, 0x3C);
    const auto before = seen();
    run(ID_IMAGE_TO_4_BITS);
    EXPECT_EQ(host.panes[0], "");
    EXPECT_EQ(host.questions, 0);
    EXPECT_EQ(document.canvas().bitsPerPixel(), 4);
    EXPECT_EQ(document.canvas().GetPixel(1, 2), 0xCU);
    EXPECT_EQ(countIndexes(document.canvas()), IndexCounts{}) << "of 8 bits alone";
    EXPECT_EQ(document.paletteValue(), 0x30);
    EXPECT_EQ(host.panes[2], "(6, 4) 4bit");
    EXPECT_EQ(seen(), before);
    run(ID_IMAGE_TO_8_BITS);
    EXPECT_EQ(host.panes[0], text(StringId::PicturesNameOtherNumber, {"2", "sky", "0"}));
    EXPECT_EQ(document.canvas().GetPixel(1, 2), 0x3CU);
    EXPECT_EQ(seen(), before);
    run(ID_EDIT_UNDO);
    EXPECT_EQ(seen(), before);
    run(ID_EDIT_UNDO);
    EXPECT_EQ(document.canvas().bitsPerPixel(), 8);
    EXPECT_EQ(document.paletteValue(), 0);
    EXPECT_EQ(seen(), before);
    run(ID_EDIT_REDO);
    EXPECT_EQ(document.paletteValue(), 0x30);
    EXPECT_EQ(seen(), before);
}

TEST_F(ImageWorkCommands, IndexesOutsideTheBankAreAskedAboutAndTakeItsNearestColour) {
    host.palettes.lookup("")->setAlpha(0x38, 0);
    fill(0, 0, 0x35);
    pixel(1, 2, 0x96);
    const auto before = pixels();
    run(ID_IMAGE_TO_4_BITS);
    EXPECT_EQ(host.questions, 1);
    EXPECT_EQ(pixels(), before);
    view.selection().setFloatingPiece(document.canvas().CopyRect(0, 0, 2, 2), StringId{});
    run(ID_IMAGE_TO_4_BITS);
    EXPECT_TRUE(view.selection().hasFloatingPiece());
    host.answer = ReduceDepth{3};
    run(ID_IMAGE_TO_4_BITS);
    EXPECT_EQ(document.canvas().GetPixel(0, 0), 5U);
    // Red 22 and green 18: entry 6 of the bank has 22 and 6; entry 8, 24 and 7, is transparent.
    EXPECT_EQ(document.canvas().GetPixel(1, 2), 6U);

    std::array<ShownColour, 256> colours{};
    colours[0x20] = {9, 9, 9, 0};
    colours[0x05] = {9, 9, 9, 255};
    colours[0x0A] = {200, 200, 200, 0};
    const IndexMap map = nearestInBank(colours, 0);
    EXPECT_EQ(map[0x20], 0x0A);
    EXPECT_EQ(map[0x30], 0);
}

TEST_F(ImageWorkCommands, ThePointersTexelIsToldAnewWhereTheImageGrows) {
    view.selection().select(Rect{0, 0, 1, 1}, false);
    run(ID_IMAGE_CROP);
    EXPECT_EQ(window.content, (Size{2, 2}));
    window.pointer = {5, 3};
    run(ID_EDIT_UNDO);
    EXPECT_TRUE(host.panes[1].starts_with("(5, 3)")) << host.panes[1];
}

TEST_F(ImageWorkCommands, TheSameTexelStaysInTheMiddleOfTheView) {
    view.SetZoom(16);
    window.scroll = {30, 20};
    host.answer = ResizeCanvas{{26, 44}, Anchor::Middle};
    run(ID_IMAGE_RESIZE);
    EXPECT_EQ(document.canvas().width(), 26);
    // Texel (3, 2) was under the middle (20, 15) and is (13, 22) now.
    EXPECT_EQ(window.scroll, (Point{13 * 16 - 20, 22 * 16 - 15}));
    run(ID_EDIT_UNDO);
    EXPECT_EQ(window.scroll, (Point{3 * 16 - 20, 2 * 16 - 15}));
}

} // namespace
} // namespace dyeworks
