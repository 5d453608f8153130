#include "FakePlugIns.h"
#include "paint/TextureCanvas.h"

#include <gmock/gmock.h>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PlugInCalls : public testing::Test {
protected:
    PlugInCalls() {
        calls.clear();
        answers = {{'v', 1}}; // Whether the program is accepted.
        EXPECT_TRUE(image_.create(2, 1, 4) && palette_.create(256, ColourType::Ia));
    }
    void add(const std::string& file, FakeLibrary::Symbols symbols, void* getType) {
        symbols.emplace("DWPI_isAvail", entry<'v', ' ', Word>());
        symbols.emplace("DWPI_getType", getType);
        fake_.files.putFile(folder_ + file, "");
        fake_.library.define(folder_ + file, std::move(symbols));
        fake_.versionInfo.records[folder_ + file].strings["040904E4"]["InternalName"] = file.substr(0, 1);
    }
    void load(int locale = kLocaleEnglish) {
        catalogue_.FreePlugIns();
        EXPECT_TRUE(catalogue_.LoadPlugIns("c:\\program\\", locale));
    }

    const std::string folder_ = "c:\\program\\PlugIns\\";
    FakePlatform fake_;
    FakePlugInHost host_;
    PlugInCatalogue catalogue_;
    ImagePlugInCalls images_{catalogue_, host_};
    ProjectPlugInCalls projects_{catalogue_, host_};
    TmfImage image_;
    TlutData palette_;
};

TEST_F(PlugInCalls, CatalogueListsWhatAcceptsTheProgramByItsRoles) {
    fake_.versionInfo.programRecord.fileVersion = {1, 0x102, 3, 4};
    add("B.so", {}, always<0x47>());
    add("a.so", {}, always<0x3F>());
    add("c.so", {}, nullptr);
    add("d.so", {}, always<kThrows>());
    add("e.so", {{"DWPI_isAvail", always<0>()}}, entry<'t', ' '>());
    add("f.so", {{"DWPI_isAvail", always<kThrows>()}}, always<1>());
    add("g.so", {{"DWPI_isAvail", nullptr}}, always<1>());
    for (const char* none : {"h.so", "i.txt", "j.so\\x"})
        fake_.files.putFile(folder_ + none, "");
    load();
    EXPECT_EQ(calls, Lines(4, "v  16909060"));
    EXPECT_EQ(catalogue_.all()[1].type, 0x47U);
    EXPECT_THAT(menuNames(catalogue_.all()), ElementsAre("a", "B", "c", "d"));
    for (const auto* list : {&catalogue_.importers(), &catalogue_.exporters(), &catalogue_.previews()})
        EXPECT_THAT(menuNames(*list), ElementsAre("a", "B"));
    for (const auto* list : {&catalogue_.projectExporters(), &catalogue_.nodeHandlers()})
        EXPECT_THAT(menuNames(*list), ElementsAre("a"));
    EXPECT_THAT(catalogue_.failed(), ElementsAre("d.so", "f.so"));
    EXPECT_EQ(fake_.library.loadedCount(), 4);
    catalogue_.FreePlugIns();
    EXPECT_EQ(fake_.library.loadedCount(), 0);
}

TEST_F(PlugInCalls, StringsAreOfTheProgramsLanguageThenEnglish) {
    add("a.so", {{"DWPI_onLanguage", entry<'l', ' ', Word>()}}, nullptr);
    add("b.so", {}, nullptr);
    fake_.versionInfo.records.erase(folder_ + "b.so");
    fake_.locale.locale = kLocaleJapanese;
    fake_.versionInfo.records[folder_ + "a.so"] = {
        {1, 2, 3, 4},
        {{"040904E4", {{"InternalName", "Sky"}, {"ProductName", "Sky tool"}}},
         {"041104B0", {{"InternalName", "\xE7\xA9\xBA"}, {"Comments", "jc"}, {"CompanyName", "jn"}}}}};
    const Lines english{"Sky", "Sky tool", "", ""};
    const Lines japanese{"\xE7\xA9\xBA", "Sky tool", "jc", "jn"};
    for (const auto& [locale, strings] : {std::pair(kLocaleEnglish, english), {kLocaleJapanese, japanese}}) {
        load(locale);
        const PlugInInfo& info = catalogue_.all().front();
        EXPECT_EQ(Lines({info.internalName, info.productName, info.comments, info.companyName}), strings);
        EXPECT_THAT(info.version, ElementsAre(4, 3, 2, 1));
        EXPECT_THAT(catalogue_.all()[1].version, ElementsAre(0, 0, 0, 0));
        EXPECT_THAT(std::exchange(calls, {}),
                    ElementsAre(testing::_, "l  " + std::to_string(locale), testing::_));
    }
}

TEST_F(PlugInCalls, TellOfWhatIsNotInstalledAndOfEntriesThatAreMissing) {
    for (int run = 0; run < 2; ++run) {
        EXPECT_EQ(images_.ImportImage(0, &image_, nullptr, 0), nullptr);
        EXPECT_FALSE(images_.ExportImage(0, &image_, nullptr, 0));
        EXPECT_EQ(images_.PreviewImage(&image_, &palette_, 0, 0), 0U);
        EXPECT_EQ(projects_.TPF_Export({}, 0, ""), 0U);
        add("a.so", {}, always<0x3F>());
        load();
    }
    Lines texts;
    for (const Message& message : fake_.messages.shown)
        texts.push_back(message.text);
    EXPECT_THAT(texts,
                ElementsAre("TMF Import Plug-In not installed.\n", "TMF Export Plug-In not installed.\n",
                            "TMF Preview Plug-In not installed.\n", "TPF Export Plug-In not installed.\n",
                            "TMF import entry not found", "TMF export entry not found.",
                            "TMF preview entry not found", "TPF export entry not found."));
    EXPECT_EQ(fake_.waitCursor.shownCount, 3);
    EXPECT_EQ(fake_.waitCursor.depth, 0);
}

TEST_F(PlugInCalls, ImportTakesOnlyWhatIsNewAndRight) {
    const auto blue = [](std::int32_t count) {
        ::TlutData* const palette = DW_newPalette(DW_COLOUR_RGBA, count);
        std::fill_n(palette->entries, count, std::uint16_t{0x3F});
        return palette;
    };
    const auto changes = []<typename Record, typename Value>(Value Record::*member,
                                                             std::type_identity_t<Value> to) {
        return [=](PictureIn in, auto) {
            if constexpr (std::is_same_v<Record, ::TmfImage>)
                in->image->*member = to;
            else
                in->palette->*member = to;
        };
    };
    struct Outcome {
        int texel = 0;
        int canvas = -1;   ///< Blue of its second colour.
        int entry = 0x300; ///< Number 3 of the palette that there was.
        int count = 256;
        std::size_t opened = 0;
        bool failed = false;
        bool operator==(const Outcome&) const = default;
    };
    add("a.so", everything<'a'>(), always<1>());
    load();
    answers['a'] = 1;
    const struct {
        const char* what;
        decltype(import) act;
        Outcome outcome;
        bool withPalette = true;
    } cases[] = {
        {"record",
         [&](PictureIn in, auto* out) {
             EXPECT_EQ(Noted::text(in) + Noted::text(out), "160160");
             EXPECT_EQ(fake_.waitCursor.depth, 1);
         },
         {}},
        {"in place", [](PictureIn in, auto) { DW_setTexel(in->image, 1, 0, 9); }, {.texel = 9}},
        {"same pointers", [](PictureIn in, auto* out) { *out = *in; }, {}},
        {"image", [](PictureIn, auto* out) { out->image = DW_newImage(3, 2, 4); }, {.canvas = 17}},
        {"both",
         [&](PictureIn, auto* out) {
             *out = {DW_newImage(3, 2, 4), blue(256), 0, 0};
         },
         {.canvas = 248, .entry = 0x3F}},
        {"palette", [&](PictureIn, auto* out) { out->palette = blue(16); }, {.entry = 0x3F, .count = 16}},
        {"new palette", [&](PictureIn, auto* out) { out->palette = blue(16); }, {.opened = 1}, false},
        {"count",
         [&](PictureIn, auto* out) { out->palette = blue(16), out->palette->count = 15; },
         {.failed = true}},
        {"width",
         [](PictureIn, auto* out) { out->image = DW_newImage(3, 2, 4), out->image->width = -3; },
         {.failed = true}},
        {"height",
         [](PictureIn, auto* out) { out->image = DW_newImage(3, 2, 4), out->image->height = 65537; },
         {.failed = true}},
        {"depth",
         [](PictureIn, auto* out) { out->image = DW_newImage(3, 2, 4), out->image->bits = 5; },
         {.failed = true}},
        {"no texels",
         [](PictureIn, auto* out) {
             out->image = DW_newImage(3, 2, 4), std::free(std::exchange(out->image->texels, nullptr));
         },
         {.failed = true}},
        {"type",
         [&](PictureIn, auto* out) { out->palette = blue(16), out->palette->colourType = 2; },
         {.failed = true}},
        {"no entries",
         [&](PictureIn, auto* out) {
             out->palette = blue(16), std::free(std::exchange(out->palette->entries, nullptr));
         },
         {.failed = true}},
        {"input's texels",
         [](PictureIn in, auto* out) {
             out->image = DW_newImage(2, 1, 4);
             std::free(std::exchange(out->image->texels, in->image->texels));
         },
         {.failed = true}},
        {"changed width", changes(&::TmfImage::width, 9), {.failed = true}},
        {"changed height", changes(&::TmfImage::height, 9), {.failed = true}},
        {"changed depth", changes(&::TmfImage::bits, 8), {.failed = true}},
        {"changed texels", changes(&::TmfImage::texels, nullptr), {.failed = true}},
        {"changed type", changes(&::TlutData::colourType, 0), {.failed = true}},
        {"changed count", changes(&::TlutData::count, 16), {.failed = true}},
        {"changed entries", changes(&::TlutData::entries, nullptr), {.failed = true}},
        {"throw",
         [](PictureIn in, auto) { DW_setTexel(in->image, 1, 0, 9), throw kThrows; },
         {.texel = 9, .failed = true}},
        {"refusal",
         [](PictureIn in, auto* out) {
             *out = {in->image + 1, in->palette + 1, 0, 0}, answers['a'] = 0;
         },
         {}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        import = c.act;
        host_.palettes.palettes.clear();
        host_.refreshes = 0;
        host_.failures.clear();
        ASSERT_TRUE(image_.create(2, 1, 4) && palette_.create(256, ColourType::Ia));
        const auto canvas = images_.ImportImage(0, &image_, c.withPalette ? &palette_ : nullptr, 16);
        EXPECT_EQ(c.outcome,
                  (Outcome{static_cast<int>(image_.getTexel(1, 0)),
                           canvas == nullptr ? -1 : canvas->colourTable()[4], palette_.getEntry(3),
                           palette_.count, host_.palettes.palettes.size(), !host_.failures.empty()}));
        EXPECT_EQ(host_.refreshes == 1, c.outcome.entry == 0x3F || c.outcome.opened == 1);
        EXPECT_EQ(image_.height, 1);
    }
    EXPECT_EQ(fake_.waitCursor.shownCount, static_cast<int>(std::size(cases)));
    EXPECT_EQ(fake_.waitCursor.depth, 0);
}

TEST_F(PlugInCalls, ImportIsOneStepOfTheOpenPaletteAndToBeSaved) {
    const auto brings = [](std::int32_t count) {
        return [count](PictureIn, auto* out) { out->palette = DW_newPalette(DW_COLOUR_RGBA, count); };
    };
    add("a.so", everything<'a'>(), always<1>());
    load();
    answers['a'] = 1;
    const std::pair<const char*, decltype(import)> ways[] = {
        {"same kind", brings(256)}, {"another kind", brings(16)}, {"in place", [](PictureIn in, auto) {
                                                                       in->palette->entries[3] = 7;
                                                                   }}};
    for (const auto& [name, way] : ways) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(host_.palettes.newPalette(256, ColourType::Ia, 0));
        TextureLookupTable& palette = *host_.palettes.lookup("");
        const TlutData before = palette.table;
        import = way;
        EXPECT_EQ(images_.ImportImage(0, &image_, &palette.table, 0), nullptr);
        const TlutData after = palette.table;
        EXPECT_FALSE(after == before);
        EXPECT_TRUE(palette.hasUnsavedChanges() && palette.undo());
        EXPECT_TRUE(palette.table == before);
        EXPECT_FALSE(palette.canUndo() || palette.hasUnsavedChanges());
        EXPECT_TRUE(palette.redo() && palette.table == after && palette.hasUnsavedChanges());
    }
    import = brings(16);
    EXPECT_EQ(images_.ImportImage(0, &image_, nullptr, 0), nullptr);
    TextureLookupTable& opened = *host_.palettes.lookup("");
    opened.beginEdit();
    opened.setEntry(0, 7);
    opened.commitEdit();
    EXPECT_TRUE(opened.undo() && opened.hasUnsavedChanges());
}

TEST_F(PlugInCalls, GoInOrderWithTheHandleOfEachPlugIn) {
    FakeLibrary::Symbols symbols = everything<'a'>();
    symbols.erase("DWPI_TPF_onNew");
    add("a.so", symbols, always<0x26>());
    symbols = everything<'b'>();
    add("b.so", symbols, always<0x36>());
    add("c.so", everything<'c'>(), always<0x20>());
    add("d.so", everything<'d'>(), always<0x11>());
    add("e.so", everything<'e'>(), always<0x01>());
    load();
    calls.clear();
    PlugInHandles handles;
    EXPECT_EQ(projects_.TPF_OnNew(handles), 3U);
    const auto exports = [&](std::initializer_list<std::int32_t> indices) {
        std::string results;
        for (const std::int32_t index : indices)
            results += std::to_string(images_.ExportImage(index, &image_, nullptr, 16));
        return results;
    };
    const auto imports = [&](std::int32_t index) {
        ::TmfImage* made = nullptr;
        dyeworks::import = [&made](PictureIn, auto* out) { made = out->image = DW_newImage(3, 2, 4); };
        const bool taken = images_.ImportImage(index, &image_, nullptr, 0) != nullptr;
        // What a plug-in that refuses leaves behind stays its own.
        if (!taken)
            DW_freeImage(made);
        return std::string(taken ? "image" : "none");
    };
    const auto preview = [&](TlutData* palette) {
        return std::to_string(images_.PreviewImage(&image_, palette, 16, 1));
    };
    const auto query = [&] {
        return std::to_string(projects_.TPF_QueryCommand(handles, "n", NodeCommand::Edit));
    };
    const auto drag = [&] {
        std::string text = "old";
        return std::to_string(projects_.TPF_ToString(handles, "n", text)) + text;
    };
    const auto effect = [&] { return std::to_string(projects_.TPF_IsDroppable(handles, "t", "k", 8)); };
    const auto drop = [&] { return std::to_string(projects_.TPF_OnDrop(handles, "t", "k", "v", 1)); };
    const auto project = [&](std::int32_t index) {
        return std::to_string(projects_.TPF_Export(handles, index, "p"));
    };
    const struct {
        std::map<char, Word> answers;
        std::function<std::string()> ask;
        const char* result;
        Lines calls;
    } cases[] = {
        {{{'b', 1}}, [&] { return projects_.TPF_OnUpdate(handles), ""; }, "", {"au -", "bu b", "cu c"}},
        {{{'b', 1}}, [&] { return projects_.TPF_OnUpdateNodes(handles), ""; }, "", {"an -", "bn b", "cn c"}},
        {{{'b', kThrows}}, [&] { return projects_.TPF_OnDelete(handles), ""; }, "", {"ad -", "bd b", "cd c"}},
        {{{'b', 1}},
         [&] { return projects_.TPF_OnCommand(handles, "n", NodeCommand::Property), ""; },
         "",
         {"ac - n 3 0", "bc b n 3 0", "cc c n 3 0"}},
        {{{'b', 1}}, query, "1", {"ac - n 1 1", "bc b n 1 1"}},
        {{{'b', kThrows}}, query, "0", {"ac - n 1 1", "bc b n 1 1", "cc c n 1 1"}},
        {{{'b', 1}}, drag, "1once", {"as - n once 65536", "bs b n again 65536"}},
        {{}, drag, "0old", {"as - n once 65536", "bs b n again 65536", "cs c n again 65536"}},
        {{{'b', 1}}, effect, "2", {"a? - t k 8 2", "b? b t k 8 2"}},
        {{}, effect, "0", {"a? - t k 8 2", "b? b t k 8 2", "c? c t k 8 2"}},
        {{{'b', 1}}, drop, "1", {"a! - t k v 1", "b! b t k v 1"}},
        {{}, drop, "0", {"a! - t k v 1", "b! b t k v 1", "c! c t k v 1"}},
        {{{'b', 5}}, [&] { return project(0); }, "5", {"be b p"}},
        {{{'d', kThrows}}, [&] { return project(1); }, "0", {"de - p"}},
        {{}, [&] { return project(2) + project(-1); }, "00", {}},
        {{}, [&] { return handles.pop_back(), projects_.TPF_OnUpdate(handles), ""; }, "", {"au -", "bu b"}},
        {{{'e', 1}}, [&] { return imports(0) + imports(1) + imports(2); }, "noneimagenone", {}},
        {{{'a', 5}},
         [&] {
             return exports({0, 1});
         },
         "10",
         {"ax 160", "bx 160"}},
        {{{'a', kThrows}},
         [&] {
             return exports({0, 2, -1});
         },
         "000",
         {"ax 160"}},
        {{{'a', 5}}, [&] { return preview(&palette_) + preview(nullptr); }, "50", {"a2 160 1"}},
        {{{'a', kThrows}}, [&] { return preview(&palette_); }, "0", {"a2 160 1"}},
        {{{'v', 1}, {'a', 6}},
         [&] {
             symbols = everything<'a'>();
             symbols.erase("DWPI_preview2");
             add("a.so", symbols, always<4>());
             load();
             calls.clear();
             return preview(&palette_);
         },
         "6",
         {"a1 160"}},
        {{},
         [&] {
             host_.hasPalettes = false;
             return preview(&palette_) + exports({0});
         },
         "00",
         {}}};
    for (const auto& c : cases) {
        answers = c.answers;
        EXPECT_EQ(c.ask(), c.result);
        EXPECT_EQ(std::exchange(calls, {}), c.calls);
    }
    EXPECT_THAT(host_.failures, ElementsAre("b.so", "b.so", "d.so", "a.so", "a.so"));
    EXPECT_THAT(fake_.messages.shown, IsEmpty());
}

} // namespace
} // namespace dyeworks
