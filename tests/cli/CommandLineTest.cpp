// What a script sees of every command: exit codes, messages, names and streams.

#include "cli/Program.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

namespace dyeworks {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

using Arguments = std::vector<std::string>;

std::string image(int side = 8) {
    return tmfFile(side, side, 4, std::vector<unsigned>(std::size_t(side) * std::size_t(side), 5));
}

std::string palette() {
    return tlfFile(std::vector<unsigned>(16, 0xf801), false);
}

struct CommandLine : testing::Test {
    CommandLine() {
        folder.write("a.tmf", image());
        folder.write("a.tlf", palette());
        // Each entry another colour; from entry 64 on they are transparent.
        std::vector<unsigned> wide;
        for (unsigned i = 0; i < 256; ++i)
            wide.push_back(i < 64 ? 0x8001 + 96 * i : 0x3000 + 18 * i);
        folder.write("wide.tlf", tlfFile(wide, false));
        folder.write("cut.tmf", image().substr(0, 40));
        folder.write("cut.tlf", palette().substr(0, 70));
        folder.write("text", "no texture");
        folder.write("p.tpf", "PICT.0=One,a.tmf,a.tlf,0\nPICT_NUM=1\n");
        folder.write("gone.tpf", "PICT.0=One,a.tmf,none.tlf,0\nPICT.1=Two,a.tmf,a.tlf,0\nPICT_NUM=2\n");
        std::filesystem::create_directory(folder.path() / "sub");
        folder.write("sub.tpf", "PICT.0=One,sub,a.tlf,0\nPICT_NUM=1\n");
        folder.write("cut.tpf", "PICT.0=One,cut.tmf,a.tlf,0\nPICT_NUM=1\n");
        folder.write("same.tpf", "PICT.0=a/b,a.tmf,a.tlf,0\nPICT.1=a_b,a.tmf,a.tlf,0\nPICT_NUM=2\n");
    }
    TestFolder folder;
};

struct Refused {
    Arguments arguments;
    int code;
    const char* message; ///< What the standard error stream begins with.
};

const std::vector<Refused> kRefused{
    {{}, 2, "dyeworks-cli: "},
    {{"draw"}, 2, "dyeworks-cli: "},
    {{"palette"}, 2, "dyeworks-cli palette: "},
    {{"palette", "draw"}, 2, "dyeworks-cli palette: "},
    {{"info"}, 2, "dyeworks-cli info: "},
    {{"info", "--colour", "a.tmf"}, 2, "dyeworks-cli info: "},
    {{"info", "--drive", "c:.", "a.tmf"}, 2, "dyeworks-cli info: "},
    {{"info", "none.tmf"}, 3, "none.tmf: "},
    {{"info", "."}, 3, ".: "},
    {{"info", "text"}, 3, "text: "},
    {{"info", "cut.tmf"}, 3, "cut.tmf: "},
    {{"info", "cut.tlf"}, 3, "cut.tlf: "},
    {{"convert", "a.tmf"}, 2, "dyeworks-cli convert: "},
    {{"convert", "a.tmf", "-o"}, 2, "dyeworks-cli convert: "},
    {{"convert", "a.tmf", "-o", "a"}, 2, "dyeworks-cli convert: "},
    {{"convert", "a.tmf", "-o", "."}, 2, "dyeworks-cli convert: "},
    {{"convert", "a.tmf", "-o", "b.png", "--crop", "1,2"}, 2, "dyeworks-cli convert: "},
    {{"convert", "a.tmf", "-o", "b.png", "--bank", "16"}, 2, "dyeworks-cli convert: "},
    {{"convert", "a.tmf", "-o", "b.png", "--turn", "up"}, 2, "dyeworks-cli convert: "},
    {{"convert", "a.tmf", "a.tlf", "-o", "-", "-f", "png"}, 2, "dyeworks-cli convert: "},
    {{"convert", "a.tmf", "-o", "b.png", "--crop", "4,4,8x8"}, 3, "a.tmf: "},
    {{"convert", "a.tmf", "-o", "b.png", "-p", "cut.tlf"}, 3, "cut.tlf: "},
    {{"convert", "a.tmf", "-o", "b.png", "-p", "a.tlf", "-b", "1"}, 3, "a.tlf: "},
    {{"convert", "a.tmf", "-o", "none/b.png"}, 3, "none/b.png: "},
    {{"convert", "a.tmf", "-o", "b.gpl"}, 3, "a.tmf: "},
    {{"convert", "a.tlf", "-o", "b.tmf"}, 3, "a.tlf: "},
    {{"build", "none.tpf", "-o", "out"}, 3, "none.tpf: "},
    {{"build", "p.tpf", "-o", "text"}, 3, "text: "},
    {{"build", "same.tpf", "-o", "out"}, 3, "a_b: "},
    {{"build", "sub.tpf", "-o", "out", "--dry-run"}, 3, "/"},
    {{"build", "cut.tpf", "-o", "out"}, 3, "/"},
    {{"palette", "move", "a.tlf"}, 2, "dyeworks-cli palette move: "},
    {{"palette", "move", "a.tlf", "--to", "16"}, 3, "a.tlf: "},
    {{"palette", "sort", "a.tlf", "--range", "9-4"}, 2, "dyeworks-cli palette sort: "},
    {{"palette", "sort", "a.tlf", "cut.tmf"}, 3, "cut.tmf: "},
    {{"check", "cut.tmf", "--rules", "none.tpf"}, 3, "none.tpf: "},
    {{"check", "cut.tmf", "-p", "cut.tlf"}, 3, "cut.tlf: "},
    {{"render", "a.tmf"}, 2, "dyeworks-cli render: "},
    {{"render", "a.tmf", "-o", "b.png", "--zoom", "17"}, 2, "dyeworks-cli render: "},
    {{"render", "a.tmf", "-o", "b.png", "-p", "none.tlf"}, 3, "none.tlf: "},
};

TEST_F(CommandLine, SaysWhatIsWrongInTheUsersLanguage) {
    for (const Refused& refused : kRefused) {
        SCOPED_TRACE(testing::PrintToString(refused.arguments));
        const ProgramRun english = folder.run(refused.arguments);
        EXPECT_EQ(english.code, refused.code);
        EXPECT_THAT(english.err, StartsWith(refused.message));
        EXPECT_THAT(english.err, Not(HasSubstr("\r"))); // Progress is for terminals.
        EXPECT_THAT(english.out, IsEmpty());
        const ProgramRun japanese = folder.run(refused.arguments, {.language = "ja_JP.UTF-8"});
        EXPECT_EQ(japanese.code, refused.code);
        EXPECT_THAT(japanese.err, StartsWith(refused.message));
        const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 128; };
        EXPECT_FALSE(std::ranges::all_of(japanese.err, isAscii)) << japanese.err;
        EXPECT_FALSE(std::filesystem::exists(folder.path() / "b.png"));
    }
}

TEST_F(CommandLine, HelpHasNoEnglishHeadingsInJapanese) {
    for (const Arguments& command : std::vector<Arguments>{
             {}, {"info"}, {"convert"}, {"build"}, {"render"}, {"palette"}, {"palette", "sort"}}) {
        Arguments arguments = command;
        arguments.push_back("--help");
        EXPECT_THAT(folder.run(arguments).out, HasSubstr("Usage: dyeworks-cli"));
        const ProgramRun japanese = folder.run(arguments, {.language = "ja_JP.UTF-8"});
        EXPECT_EQ(japanese.code, 0);
        for (const char* const english : {"Usage", "Options", "OPTIONS", "REQUIRED", "Print", "Arguments"})
            EXPECT_THAT(japanese.out, Not(HasSubstr(english)));
        // 30 columns, and 70 in which a letter of three bytes takes two.
        std::istringstream lines(japanese.out);
        for (std::string line; std::getline(lines, line);)
            EXPECT_TRUE(line.size() <= 140 || !line.starts_with("  ")) << line;
    }
    EXPECT_THAT(
        folder.run({"convert", "--help"}).out,
        HasSubstr("\n  -b, --bank NUMBER           Bank of a palette of 256 entries that an image of 4 bits "
                  "shows, 0 to\n                              15\n"));
}

TEST_F(CommandLine, SpeaksTheFirstLanguageThatItKnows) {
    for (const auto& [wished, locale, isJapanese] : {std::tuple{"fr:ja", "de_DE.UTF-8", true},
                                                     {"en:ja", "ja_JP.UTF-8", false},
                                                     {"ja", "C", false},
                                                     {"fr:de", "japanese", true}})
        EXPECT_EQ(folder
                      .run({std::string("LANGUAGE=") + wished, DYEWORKS_CLI, "--help"},
                           {.language = locale, .program = "env"})
                      .out,
                  folder.run({"--help"}, {.language = isJapanese ? "ja_JP" : "C"}).out)
            << wished << locale;
}

TEST_F(CommandLine, TakesFilesOfAnyName) {
    const std::vector<std::string> names{"a b", "\n",       "-x",   "--help", "[a,b]", "b]",
                                         "%%",  "\xff\xfe", "a\\b", "=",      "#",     "日本"};
    for (const std::string& stem : names) {
        SCOPED_TRACE(testing::PrintToString(stem));
        const std::string name = stem + ".tmf]";
        folder.write(name, image());
        EXPECT_EQ(folder.run({"info", "--", name}).out.substr(0, name.size() + 2), name + ": ");
        EXPECT_EQ(folder.run({"convert", "-o", "./" + stem + ".png]", "-f", "png", "--", name}).code, 0);
        EXPECT_THAT(folder.read(stem + ".png]"), StartsWith("\x89PNG"));
        const ProgramRun missing = folder.run({"info", "--", stem + ".none"});
        EXPECT_EQ(missing.code, 3);
        EXPECT_THAT(missing.err, StartsWith(stem + ".none: "));
    }
}

TEST_F(CommandLine, ReadsAndWritesStreams) {
    const ProgramRun png =
        folder.run({"convert", "-", "-o", "-", "-f", "png", "-p", "a.tlf"}, {.input = image()});
    EXPECT_EQ(png.code, 0);
    folder.write("b.png", png.out);
    EXPECT_EQ(folder.run({"convert", "b.png", "-o", "-", "-f", "tmf"}).out, image());
    EXPECT_THAT(folder.run({"info", "-"}, {.input = png.out}).out, StartsWith("-: PNG, 8 x 8, 4 bits"));
    EXPECT_EQ(folder.run({"convert", "wide.tlf", "-o", "-", "-f", "tlf"}).out, folder.read("wide.tlf"));
}

TEST_F(CommandLine, LeavesTheOldFileWhenTheDiskIsFull) {
    folder.write("large.tmf", image(256));
    folder.write("b.bmp", "before");
    const ProgramRun run = folder.run({"convert", "large.tmf", "-o", "b.bmp"}, {.tinyFiles = true});
    EXPECT_EQ(run.code, 3);
    EXPECT_THAT(run.err, StartsWith("b.bmp: "));
    EXPECT_EQ(folder.read("b.bmp"), "before");
    EXPECT_EQ(folder.run({"info", "a.tmf"}, {.output = "/dev/full"}).code, 3);
}

TEST_F(CommandLine, GoesOnAfterAFileThatFails) {
    const ProgramRun run = folder.run({"convert", "cut.tmf", "a.tmf", "-f", "png", "-o", "out"});
    EXPECT_EQ(run.code, 3);
    EXPECT_THAT(folder.read("out/a.png"), StartsWith("\x89PNG"));
    EXPECT_EQ(folder.run({"build", "gone.tpf", "-o", "built", "-q"}).code, 3);
    EXPECT_THAT(folder.read("built/Two.png"), StartsWith("\x89PNG"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "built/One.png"));
    folder.write("list.tpf", "TMF_DIR=sub;.\nPICT.0=One,a.tmf,a.tlf,0\nPICT_NUM=1\n");
    EXPECT_EQ(folder.run({"build", "list.tpf", "-o", "built", "--dry-run"}).code, 0);
    folder.write("drive.tpf", "PICT.0=One,d:\\a.tmf,D:\\a.tlf,0\nPICT_NUM=1\n");
    EXPECT_EQ(folder.run({"build", "drive.tpf", "-o", "built", "--drive", "c=."}).code, 3);
    EXPECT_EQ(folder.run({"build", "drive.tpf", "-o", "built", "--drive", "c=/", "--drive", "d=."}).code, 0);
    EXPECT_EQ(folder.read("built/index.json"),
              "{\n  \"pictures\": [\n    {\n      \"name\": \"One\",\n      \"files\": [\n"
              "        \"One.png\"\n      ],\n      \"width\": 8,\n      \"height\": 8,\n      \"bits\": 4,\n"
              "      \"bank\": 0\n    }\n  ]\n}\n");
}

TEST_F(CommandLine, InfoTellsWhatFilesHold) {
    for (const Arguments& words :
         std::vector<Arguments>{{"convert", "a.tmf", "-p", "wide.tlf", "-b", "3", "-o", "a.png"},
                                {"convert", "a.png", "-o", "a.bmp"},
                                {"convert", "wide.tlf", "-o", "w.gpl"},
                                {"convert", "wide.tlf", "-o", "w.hex"},
                                {"render", "a.tmf", "-p", "wide.tlf", "-o", "r.png"}})
        EXPECT_EQ(folder.run(words).code, 0);
    const ProgramRun run =
        folder.run({"info", "a.tmf", "a.tlf", "wide.tlf", "p.tpf", "a.bmp", "w.gpl", "w.hex"});
    EXPECT_EQ(run.out, "a.tmf: TMF, 8 x 8, 4 bits, 1 colours used, 96 bytes\n"
                       "a.tlf: TLF, 16 entries (1 different), 16bit RGBA, 96 bytes\n"
                       "wide.tlf: TLF, 256 entries (256 different), 16bit RGBA, 576 bytes\n"
                       "p.tpf: TPF, 1 pictures, 36 bytes\n"
                       "a.bmp: BMP, 8 x 8, 4 bits, 1 colours used, 16 entries (16 different), 150 bytes\n"
                       "w.gpl: GPL, 256 entries (256 different), " +
                           std::to_string(folder.read("w.gpl").size()) + " bytes\n" +
                           "w.hex: HEX, 256 entries (256 different), 2304 bytes\n");
    EXPECT_THAT(
        folder.run({"info", "a.png"}).out,
        StartsWith("a.png: PNG, 8 x 8, 4 bits, 1 colours used, 256 entries (256 different), 16bit RGBA, "
                   "bank 3, "));
    EXPECT_THAT(folder.run({"info", "r.png"}).out, StartsWith("r.png: PNG, 8 x 8, 1 colours used, "));
    EXPECT_THAT(
        folder.run({"info", "--json", "a.png", "p.tpf"}).out,
        HasSubstr("    \"width\": 8,\n    \"height\": 8,\n    \"bits\": 4,\n    \"coloursUsed\": 1,\n"
                  "    \"entries\": 256,\n    \"differentEntries\": 256,\n    \"colourType\": \"rgba\",\n"
                  "    \"bank\": 3\n  },\n  {\n    \"file\": \"p.tpf\",\n    \"format\": \"tpf\",\n"
                  "    \"bytes\": 36,\n    \"pictures\": 1\n  }\n]\n"));
}

TEST_F(CommandLine, SheetShowsEachPictureInItsBank) {
    const auto colour = [&](const Arguments& drawn) {
        EXPECT_EQ(folder.run(drawn).code, 0);
        return folder
            .run({"b.png", "-gravity", "center", "-crop", "1x1+0+0", "-depth", "8", "rgb:-"},
                 {.program = "convert"})
            .out;
    };
    for (const char* const bank : {"0", "3", "15"}) {
        folder.write("sheet.tpf", std::string("PICT.0=One,a.tmf,wide.tlf,") + bank + "\nPICT_NUM=1\n");
        EXPECT_EQ(colour({"render", "sheet.tpf", "-o", "b.png", "--side", "8", "--columns", "1"}),
                  colour({"render", "a.tmf", "-p", "wide.tlf", "-b", bank, "-o", "b.png"}))
            << bank;
    }
    EXPECT_EQ(colour({"render", "a.tmf", "-p", "wide.tlf", "-b", "4", "--checkerboard", "-o", "b.png"}),
              "\xcc\xcc\xcc");
    EXPECT_EQ(colour({"render", "a.tmf", "-p", "wide.tlf", "-b", "3", "--alpha", "-o", "b.png"}),
              "\xff\xff\xff");
    folder.write("rules.tpf", "Rules.FirstEntryTransparent=1\n");
    EXPECT_NE(folder.run({"check", "--rules", "rules.tpf", "-p", "wide.tlf", "-b", "3", "a.tmf"}).out, "");
    EXPECT_EQ(folder.run({"check", "--rules", "rules.tpf", "-p", "wide.tlf", "-b", "4", "a.tmf"}).out, "");
}

TEST_F(CommandLine, CheckNamesTheFileThePlaceAndWhatIsWrong) {
    folder.write("rules.tpf", "Rules.LargestSize=4 4\n");
    const std::string here = folder.path().string() + '/';
    EXPECT_EQ(folder.run({"check", "a.tmf", "a.tlf", "-p", "a.tlf"}).code, 0);
    const ProgramRun project = folder.run({"check", "--least", "error", "gone.tpf"});
    EXPECT_EQ(project.code, 1);
    EXPECT_THAT(project.out, StartsWith(here + "none.tlf:Picture One: "));
    EXPECT_EQ(std::ranges::count(project.out, '\n'), 1);
    EXPECT_THAT(folder.run({"check", "--json", "--rules", "rules.tpf", "a.tmf"}).out,
                HasSubstr("\"severity\": \"warning\""));
    const ProgramRun bad = folder.run({"check", "none.tmf", "cut.tmf", "text"});
    EXPECT_EQ(bad.code, 3);
    EXPECT_THAT(bad.out, HasSubstr("cut.tmf:"));
    EXPECT_THAT(bad.out, HasSubstr("\ntext:"));
    EXPECT_THAT(bad.err, StartsWith("none.tmf: "));
}

} // namespace
} // namespace dyeworks
