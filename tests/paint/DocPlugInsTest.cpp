#include "DocTestHost.h"

#include <gmock/gmock.h>

#include <functional>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DocPlugIns : public DocFixture {
protected:
    DocPlugIns() { host.active = &document; }
    std::vector<std::string> calls() { return host.plugIns.take(); }
};

TEST_F(DocPlugIns, PreviewsThatAreOnFollowImageAndPalette) {
    const std::vector<std::pair<const char*, std::function<void()>>> occasions{
        {"edit", [&] { pixel(1, 1, 5); }},
        {"undo", [&] { document.Undo(); }},
        {"redo", [&] { document.Redo(); }},
        {"palette refreshed", [&] { document.RefreshPalette(); }},
        {"palette edited", [&] { document.PaletteChanged("*other", host.palettes.lookup("")); }},
        {"attached", [&] { document.Attach(); }}};
    openPalette(256);
    document.Attach();
    for (const auto& [name, happens] : occasions) {
        happens();
        EXPECT_THAT(calls(), IsEmpty()) << name;
    }
    document.setPaletteValue(48);
    document.runCommand(ID_PREVIEW2);
    const std::string shown = "preview 1 texel 0 of 256 from 48";
    EXPECT_THAT(calls(), ElementsAre(shown));
    document.Undo();
    calls();
    for (const auto& [name, happens] : occasions) {
        happens();
        EXPECT_THAT(calls(), ElementsAre(shown)) << name;
    }
    ASSERT_NE(document.BeginEdit(nullptr), nullptr);
    document.ShowEdit();
    EXPECT_THAT(calls(), IsEmpty());
    document.canvas().PutPixel(2, 2, 5);
    document.ShowEdit();
    document.DropEdit();
    EXPECT_THAT(calls(), ElementsAre(shown, shown));
    host.active = nullptr;
    pixel(3, 3, 5);
    document.runCommand(ID_PREVIEW1);
    EXPECT_THAT(calls(), IsEmpty());
    host.active = &document;
    fill(0, 0, 7);
    EXPECT_THAT(calls(), ElementsAre("preview 0 texel 7 of 256 from 48", "preview 1 texel 7 of 256 from 48"));
}

TEST_F(DocPlugIns, CommandsStandForThePlugInsOfTheirNumbers) {
    const auto states = [&](CommandId first) {
        std::vector<std::string> texts;
        for (CommandId id = first; id < first + 16; ++id) {
            const CommandUi ui = stateOf(document, id);
            EXPECT_EQ(ui.enabled, ui.text.has_value());
            EXPECT_EQ(ui.visible, ui.enabled);
            texts.push_back(ui.text.value_or(""));
        }
        return texts;
    };
    EXPECT_EQ(states(ID_IMPORT_FIRST), std::vector<std::string>(16));
    host.plugIns.names = {"Grab"};
    EXPECT_EQ(states(ID_EXPORT_FIRST)[0], "&0 Grab");
    EXPECT_EQ(states(ID_EXPORT_FIRST)[1], "");
    host.plugIns.names.assign(20, "x");
    EXPECT_EQ(states(ID_IMPORT_FIRST)[9], "&9 x");
    EXPECT_EQ(states(ID_IMPORT_FIRST)[15], "&5 x");

    fill(0, 0, 9);
    document.runCommand(ID_IMPORT_LAST);
    document.runCommand(ID_EXPORT_FIRST + 2);
    EXPECT_THAT(calls(), ElementsAre("import 15 texel 9 of 0 from 0", "export 2 texel 9 of 0 from 0"));
}

TEST_F(DocPlugIns, BankCountsOnlyForSmallImagesInPalettesThatHaveBanks) {
    document.setPaletteValue(48);
    for (const auto& [entries, bits, from] :
         {std::tuple(0, 4, "0"), {16, 4, "0"}, {256, 4, "48"}, {256, 8, "0"}}) {
        if (entries != 0)
            openPalette(entries);
        document.canvas().Create(2, 2, 1, static_cast<std::uint16_t>(bits));
        document.Attach();
        document.runCommand(ID_EXPORT_FIRST);
        document.runCommand(ID_PREVIEW1);
        document.runCommand(ID_PREVIEW1);
        document.runCommand(ID_IMPORT_FIRST);
        for (const std::string& call : calls())
            EXPECT_TRUE(call == "off 0" || call.ends_with(std::string(" from ") + from)) << call << bits;
    }
}

TEST_F(DocPlugIns, ImportKeepsWhatThePlugInChangedWithoutAStep) {
    document.setPaletteValue(48);
    host.plugIns.onImport = [this] { openPalette(256); };
    document.runCommand(ID_IMPORT_FIRST);
    EXPECT_FALSE(document.hasUnsavedChanges());
    EXPECT_TRUE(document.IsAttached());
    EXPECT_EQ(document.paletteValue(), 0) << "as the plug-in was told";

    host.plugIns.texelOnImport = 6;
    document.runCommand(ID_IMPORT_FIRST);
    EXPECT_EQ(document.canvas().GetPixel(0, 0), 6U);
    EXPECT_FALSE(document.edits().canUndo());
    EXPECT_TRUE(document.hasUnsavedChanges());
    pixel(3, 3, 1);
    document.Undo();
    EXPECT_EQ(document.canvas().GetPixel(0, 0), 6U);
}

} // namespace
} // namespace dyeworks
