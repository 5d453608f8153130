#include "PaletteBarFixture.h"

namespace dyeworks {
namespace {

class EntryEditing : public PaletteBar {};

TEST_F(EntryEditing, EverySourceBringsAllMirrorsIntoStep) {
    constexpr int kCell = 37;
    const std::tuple<ColourType, std::uint16_t, ChannelValues, ColourRef, ColourRef> cases[] = {
        {ColourType::Rgba, 0x7FFF, {{15, 31, 31, 1}}, 0xF8F878, 0xFFFFFF},
        {ColourType::Rgba, 0xF804, {{31, 0, 2, 0}}, 0x1000F8, 0x000000},
        {ColourType::Ia, 0x7F03, {{127, 0, 0, 3}}, 0x7F7F7F, 0x030303},
    };
    for (const auto& [type, entry, channels, rgbView, alphaView] : cases) {
        open(256, type);
        for (const Source source :
             {Source::EntryText, Source::ChannelEdits, Source::Sliders, Source::Trackbars, Source::Palette}) {
            SCOPED_TRACE(testing::Message() << entry << ", source " << static_cast<int>(source));
            click(kCell);
            const std::uint16_t before = stored(kCell);
            if (source == Source::Palette) {
                palette().table.setEntry(kCell, entry);
                editor_.SyncControls(source);
            } else if (source == Source::EntryText) {
                editor_.EntryTyped(entry == 0x7FFF ? "7ffF" : entryText(entry));
            }
            for (const Channel channel : kChannels) {
                const std::int32_t value = channels[channel];
                if (source == Source::ChannelEdits)
                    EXPECT_TRUE(editor_.ChannelTyped(channel, std::to_string(value)));
                else if (source == Source::Sliders)
                    editor_.SliderMoved(channel, value);
                else if (source == Source::Trackbars)
                    for (const int code : {5, 0, 1, 4, 8})
                        editor_.TrackbarScrolled(channel, code, code == 5 ? value : 1 - value);
            }
            EXPECT_EQ(bar_.entry().channels(), channels);
            EXPECT_EQ(bar_.entry().ParseEntryText(), entry);
            EXPECT_EQ(editor_.colour(ViewMode::Rgb), rgbView);
            EXPECT_EQ(editor_.colour(ViewMode::Alpha), alphaView);
            EXPECT_EQ(seen(kCell), entry) << "previewed";
            EXPECT_FALSE(enabled(ID_PALETTE_UNDO)) << "a preview is no edit";
            ASSERT_EQ(editor_.CanApply(), source != Source::Palette);
            if (source == Source::Palette)
                continue;
            EXPECT_EQ(stored(kCell), before);
            bar_.Apply();
            EXPECT_EQ(stored(kCell), entry);
            EXPECT_EQ(grid_.value(kCell), cellValue(type, entry));
            EXPECT_FALSE(editor_.CanApply());
            ASSERT_TRUE(run(ID_PALETTE_UNDO) && run(ID_PALETTE_REDO));
            EXPECT_EQ(seen(kCell), entry);
            ASSERT_TRUE(run(ID_PALETTE_UNDO));
            EXPECT_EQ(seen(kCell), before);
            EXPECT_EQ(bar_.entry().ParseEntryText(), before);
        }
    }
}

TEST_F(EntryEditing, NothingIsWrittenWhileTheTextIsNoEntry) {
    open(16, ColourType::Rgba);
    click(4);
    editor_.EntryTyped("7FF");
    for (const char* wrong : {"", "7FFFF", "7FG", "0x7F", " 7F", "-1"}) {
        editor_.EntryTyped(wrong);
        EXPECT_TRUE(editor_.textIsWrong() && bar_.entry().text() == wrong) << wrong;
        bar_.Apply();
        bar_.TakeLeftEnd();
        EXPECT_EQ(stored(4), 0x001E) << wrong;
        EXPECT_EQ(strip_.value(0), 0U) << wrong;
        EXPECT_EQ(seen(4), 0x7FF) << "the mirrors and the images keep the last value that was one";
    }
    editor_.SliderMoved(Channel::Alpha, 0);
    EXPECT_EQ(bar_.entry().text(), "07FE");
}

TEST_F(EntryEditing, ChannelValuesOutOfRangeAreRefused) {
    open(16, ColourType::Rgba);
    const std::tuple<Channel, const char*, const char*> cases[] = {{Channel::Red, "32", "31"},
                                                                   {Channel::Blue, "-1", "31"},
                                                                   {Channel::Green, "4x", "31"},
                                                                   {Channel::Alpha, "2", "1"}};
    for (const auto& [channel, text, highest] : cases) {
        EXPECT_FALSE(editor_.ChannelTyped(channel, text));
        EXPECT_EQ(fake_.messages.lastText(),
                  std::string("Please enter an integer between 0 and ") + highest + ".");
    }
    EXPECT_TRUE(editor_.ChannelTyped(Channel::Red, "")) << "about to be filled";
    EXPECT_FALSE(bar_.entry().pending());
    EXPECT_EQ(fake_.messages.shown.size(), std::size(cases));
    editor_.SliderMoved(Channel::Red, 99);
    EXPECT_EQ(bar_.entry().channels()[Channel::Red], 31);
}

TEST_F(EntryEditing, APreviewNeverOutlivesItsCause) {
    open(16, ColourType::Ia);
    const std::string other = set_.currentKey;
    open(16, ColourType::Rgba);
    const std::string key = set_.currentKey;
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"another tab", [&] { choose(other); }},
        {"another palette", [this] { open(16, ColourType::Rgba); }},
        {"another document's palette", [&] { set_.setCurrent(other), bar_.RefreshFromPalette(); }},
        {"another document", [this] { bar_.RefreshFromPalette(); }},
        {"another cell", [this] { click(3); }},
        {"off", [this] { editor_.PreviewChecked(false), editor_.SliderMoved(Channel::Red, 9); }},
        {"undo", [this] { palette().beginEdit(), palette().commitEdit(), run(ID_PALETTE_UNDO); }},
        {"closing the bar", [this] { editor_.SetShown(false); }},
    };
    for (const auto& [cause, end] : cases) {
        SCOPED_TRACE(cause);
        set_.selectCurrent(key);
        editor_.SetShown(true);
        editor_.PreviewChecked(true);
        bar_.RefreshFromPalette();
        click(4);
        editor_.EntryTyped("ABCD");
        ASSERT_EQ(seen(4), 0xABCD);
        end();
        EXPECT_EQ(images_[key][4], 0x001E);
    }
    editor_.SetShown(true);
    EXPECT_EQ(seen(4), 0xABCD) << "the value still stands in the bar";
    editor_.PreviewChecked(false);
    EXPECT_EQ(seen(4), 0x001E);
    editor_.PreviewChecked(true);
    EXPECT_EQ(seen(4), 0xABCD);
}

} // namespace
} // namespace dyeworks
