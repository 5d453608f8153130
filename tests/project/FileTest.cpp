#include "platform/fake/FakePlatform.h"
#include "project/CTPFFile.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

namespace dyeworks {
namespace {

using testing::ElementsAre;

constexpr const char* kFilePath = "c:\\p\\sea.tpf";

class ProjectFile : public testing::Test {
protected:
    ProjectFile() { fake_.files.createDirectory("c:\\p\\tex"); }

    void read(const std::string& bytes) {
        fake_.files.putFile(kFilePath, bytes);
        ASSERT_TRUE(file_.Read(kFilePath));
    }
    [[nodiscard]] std::string written(const std::string& path = kFilePath) {
        EXPECT_TRUE(file_.Write(path));
        return fake_.files.textOf(path).value_or("no file");
    }
    /// The pictures in their order, as they would be written.
    [[nodiscard]] std::vector<std::string> listed() const {
        std::vector<std::string> list;
        EXPECT_EQ(file_.order.size(), file_.pictures.size());
        for (const std::string& name : file_.order) {
            PictureEntry entry;
            EXPECT_TRUE(file_.GetPicture(name, entry)) << name;
            list.push_back(name + "," + entry.tmfFile + "," + entry.tlfFile + "," +
                           std::to_string(entry.paletteNo));
        }
        return list;
    }
    void set(const std::string& name) {
        PictureEntry entry{name + ".tmf", name + ".tlf", 1};
        EXPECT_TRUE(file_.SetPicture(name, entry, std::nullopt));
    }

    FakePlatform fake_;
    CTPFFile file_;
};

TEST_F(ProjectFile, KeepsWhatOthersWroteAndWhereItStands) {
    read("# mine\nPICT.0\nPICT.0 = A,a.tmf\nPICT_NUM = 3\n\nNote.1 = x\nPICT.2 = B,,b.tlf,0x1F,more\nPICT.7 "
         "= Z,z\n");
    EXPECT_THAT(listed(), ElementsAre("A,a.tmf,,0", "B,,b.tlf,31"));
    EXPECT_EQ(written(), "# mine\r\nPICT.0\r\nPICT_NUM\t=\t2\r\n\r\nNote.1\t=\tx\r\nPICT.7\t=\tZ,z\r\n"
                         "TPF_DIR\t=\tc:\\p\r\nTMF_DIR\t=\t\r\nTLF_DIR\t=\t\r\n"
                         "PICT.0\t=\tA,a.tmf,,0\r\nPICT.1\t=\tB,,b.tlf,31\r\n");
}

TEST_F(ProjectFile, ReadsAsManyEntriesAsItTells) {
    const struct {
        const char* lines;
        std::vector<std::string> pictures;
    } kCases[] = {
        {"PICT.0 = A,a\n", {}},
        {"PICT_NUM = 2147483647\nPICT.0 = A,a\nPICT.2147483646 = B,b\nPICT.01 = C,c\n", {"A,a,,0", "B,b,,0"}},
        {"PICT_NUM = 99999999999\nPICT.0 = A,a\n", {"A,a,,0"}},
        {"PICT_NUM = -1\nPICT.0 = A,a\n", {}},
        {"N = 0x2\nPICT_NUM = $(N)\nPICT.1 = A,a\nPICT.2 = B,b\n", {"A,a,,0"}},
        {"PICT_NUM = 2\nPICT.0 = A\nPICT.1 = B,b\n", {"B,b,,0"}},
        {"PICT_NUM = 11\nPICT.10 = C,c\nPICT.9 = B,b\nPICT.0 = A,a\n", {"A,a,,0", "B,b,,0", "C,c,,0"}},
        // The later one's values at the place of the first.
        {"PICT_NUM = 3\nPICT.0 = A,a,x,1\nPICT.1 = B,b\nPICT.2 = A,c,,2\n", {"A,c,,2", "B,b,,0"}},
        {"D = d\nPICT_NUM = 2\nPICT.0 = A,$(D).tmf\nPICT.1 = B,$(E)\n", {"A,d.tmf,,0", "B,$(E),,0"}},
        // An entry is no longer there once it is a picture.
        {"PICT_NUM = 3\nPICT.0 = A,$(PICT.2)\nPICT.1 = B,$(PICT.0)\nPICT.2 = c\n",
         {"A,c,,0", "B,$(PICT.0),,0"}},
    };
    for (const auto& c : kCases) {
        file_.Clear();
        read(c.lines);
        EXPECT_EQ(listed(), c.pictures) << c.lines;
    }
}

TEST_F(ProjectFile, FoldersAreRelativeToItsOwn) {
    fake_.files.createDirectory("c:\\tex");
    const struct {
        const char* folder;
        const char* directory;
        const char* kept;
    } kCases[] = {
        {"", "c:\\p", ""},
        {"tex", "c:\\p\\tex", "tex"},
        {"$(TPF_DIR)\\tex", "c:\\p\\tex", "tex"},
        {"..", "c:\\p\\..", "..\\"},
        {"d:\\tex", "d:\\tex", "d:\\tex"},
        {"$(NOPE)", "c:\\p\\$(NOPE)", "$(NOPE)"},
        {"tex;c:\\tex;$(TPF_DIR)", "c:\\p\\tex;c:\\tex;c:\\p", "tex;..\\tex;."},
        {"tex;.", "c:\\p\\tex;c:\\p\\.", "tex;."},
    };
    for (const auto& c : kCases) {
        file_ = {};
        read(std::string("TPF_DIR = x:\\moved\nTMF_DIR = ") + c.folder);
        EXPECT_EQ(file_.tmfDir, c.directory);
        EXPECT_EQ(file_.tlfDir, "c:\\p");
        static_cast<void>(written());
        std::string kept;
        EXPECT_TRUE(file_.store->GetValue("TMF_DIR", kept));
        EXPECT_EQ(kept, c.kept) << c.folder;
    }
    EXPECT_THAT(written("c:\\tex\\sea.tpf"), testing::HasSubstr("TMF_DIR\t=\t..\\p\\tex;..\\p\r\n"));
}

TEST_F(ProjectFile, FoldersThatDifferInCaseOnlyAreOneUnlessTheHostHasBoth) {
    fake_.files.createDirectory("c:\\Proj\\tex");
    const auto kept = [this] {
        EXPECT_TRUE(file_.Create("C:\\Proj\\x.tpf", "C:\\Proj", "c:\\proj\\tex", "c:\\PROJ"));
        PictureEntry entry{"C:\\Proj\\tex\\a.tmf", "C:\\Proj\\a.tlf", 0};
        EXPECT_TRUE(file_.SetPicture("A", entry, std::nullopt));
        const std::string all = written("C:\\Proj\\x.tpf");
        return all.substr(all.find("TMF_DIR"));
    };
    EXPECT_EQ(kept(), "TMF_DIR\t=\ttex\r\nTLF_DIR\t=\t\r\nPICT.0\t=\tA,a.tmf,a.tlf,0\r\nPICT_NUM\t=\t1\r\n");
    for (const char* other : {"/proj/tex", "/PROJ"})
        std::filesystem::create_directories(fake_.files.hostPath("c:\\") + other);
    EXPECT_EQ(kept(), "TMF_DIR\t=\tc:\\proj\\tex\r\nTLF_DIR\t=\tc:\\PROJ\r\n"
                      "PICT.0\t=\tA,C:\\Proj\\tex\\a.tmf,C:\\Proj\\a.tlf,0\r\nPICT_NUM\t=\t1\r\n");
}

TEST_F(ProjectFile, MayStandInARoot) {
    ASSERT_TRUE(file_.Create("c:\\sea.tpf", "c:\\", "", "c:\\p"));
    PictureEntry entry{"c:\\a.tmf", "c:\\p\\tex\\a.tlf", 0};
    file_.SetPicture("A", entry, std::nullopt);
    const std::string lines = "TPF_DIR\t=\tc:\r\nTMF_DIR\t=\t\r\nTLF_DIR\t=\tp\r\n"
                              "PICT.0\t=\tA,a.tmf,tex\\a.tlf,0\r\nPICT_NUM\t=\t1\r\n";
    EXPECT_EQ(written("c:\\sea.tpf"), lines);
    CTPFFile again;
    ASSERT_TRUE(again.Read("c:\\sea.tpf"));
    EXPECT_EQ(again.tlfDir, "c:\\p");
    entry = {"c:\\p\\b.tmf", "", 0};
    again.SetPicture("A", entry, std::nullopt);
    EXPECT_EQ(entry.tmfFile, "p\\b.tmf");
}

TEST_F(ProjectFile, TellsOfFoldersThatAreMissing) {
    EXPECT_FALSE(file_.Create(kFilePath, "c:\\p", "x", "y"));
    EXPECT_EQ(file_.tpfDir, "c:\\p") << "what exists stays set";
    EXPECT_FALSE(file_.IsModified());
    EXPECT_EQ(file_.store, nullptr);
    EXPECT_FALSE(file_.SetDirectories("c:\\none", "", "c:\\p\\tex\\"));
    EXPECT_EQ(file_.tpfDir, "c:\\p");
    EXPECT_EQ(file_.tlfDir, "c:\\p\\tex");
    EXPECT_TRUE(file_.IsModified());
    ASSERT_EQ(fake_.messages.shown.size(), 2U);
    EXPECT_EQ(fake_.messages.shown[0].text, "TMF_DIR = \"x\"and,\nTLF_DIR = \"y\"is\nnot exist directory.");
    EXPECT_EQ(fake_.messages.shown[1].text, "TMF_DIR = \"c:\\none\"is\nnot exist directory.");
    file_.SetModified(false);
    EXPECT_TRUE(file_.SetDirectories("c:\\p", "c:\\p", "c:\\p\\tex"));
    EXPECT_TRUE(file_.SetDirectories("", "c:\\p", "c:\\p\\tex")) << "the current directory";
    file_.SetModified(false);
    EXPECT_TRUE(file_.SetDirectories(".", "c:\\p\\", "c:/p/tex"));
    EXPECT_FALSE(file_.IsModified()) << "the same folders";
}

TEST_F(ProjectFile, UnsavedChangesAreNotOverwritten) {
    read("PICT_NUM = 1\nPICT.0 = A,a\n");
    set("B");
    const std::string folder = file_.tpfDir;
    fake_.files.failNextWrite(FileError::NoSpace);
    EXPECT_FALSE(file_.Write("c:\\elsewhere\\q.tpf"));
    EXPECT_TRUE(file_.IsModified());
    EXPECT_EQ(file_.pathName + file_.tpfDir, kFilePath + folder);
    EXPECT_FALSE(file_.Read(kFilePath));
    EXPECT_THAT(file_.order, ElementsAre("B", "A"));
    EXPECT_TRUE(file_.Write(kFilePath));
    file_.Clear();
    EXPECT_FALSE(file_.Write(kFilePath));
    std::optional<FileError> why;
    EXPECT_FALSE(file_.Read("", &why) || why);
    EXPECT_FALSE(file_.Read("c:\\p\\none.tpf", &why));
    EXPECT_EQ(why, FileError::NotFound);
}

TEST_F(ProjectFile, WritesNothingThatWouldBeReadOtherwise) {
    const std::string lines = "PICT_NUM = 1\nPICT.0 = A,a\n";
    read(lines);
    set("a#b");
    EXPECT_FALSE(file_.Write(kFilePath));
    EXPECT_TRUE(file_.IsModified());
    EXPECT_EQ(fake_.files.textOf(kFilePath), lines);
    for (const char* field : {"a,b", "$(X)"}) {
        EXPECT_FALSE(CTPFFile::holdsPicture(field, {}) || CTPFFile::holdsPicture("A", {field, "", 0}) ||
                     CTPFFile::holdsPicture("A", {"", field, 0}))
            << field;
    }
    EXPECT_TRUE(CTPFFile::holdsPicture("A \xE8\xA1\xA8", {"sub\\a=b.tmf", "", 15}));
}

} // namespace
} // namespace dyeworks
