#include "ProjectTestHost.h"
#include "project/FolderPictures.h"
#include "project/PathHelpers.h"
#include "project/Relink.h"

#include <algorithm>
#include <filesystem>
#include <random>

namespace dyeworks {
namespace {

/// Pictures whose files lie in random folders below "c:\p\tex" and "c:\p\pal", or in one of them by full
/// path. Files are found by their names, so they need hold nothing.
class Repairs : public ProjectFixture {
protected:
    void openRandom(unsigned seed) {
        random_.seed(seed);
        std::string lines = "# note\nTMF_DIR = tex\nTLF_DIR = pal\nPICT_NUM = 40\nTheirs = 1\n";
        for (int i = 0; i < 40; ++i) {
            const std::string image = folder() + "i" + std::to_string(i) + ".tmf";
            const std::string palette = (i % 5 == 0 ? "c:\\p\\pal\\" : "") + folder() + "l.tlf";
            put("c:\\p\\tex\\" + image);
            put(i % 5 == 0 ? palette : "c:\\p\\pal\\" + palette);
            lines += "PICT." + std::to_string(i) + " = P" + std::to_string(i) + "," + image + "," + palette +
                     ",3\n";
        }
        open(lines);
    }
    void put(const std::string& path) {
        if (!fake_.files.exists(path))
            fake_.files.putFile(path, "");
    }
    void rename(const std::string& from, const std::string& to) {
        fake_.files.createDirectory(to + "\\..");
        std::filesystem::rename(fake_.files.hostPath(from), fake_.files.hostPath(to));
    }
    [[nodiscard]] std::vector<std::string> missing() const {
        std::vector<std::string> names;
        for (const std::string& name : document_.pictureNames()) {
            const CTPFDocument::PictureFiles files = document_.FilesOf(name);
            if (files.image.empty() || files.palette.empty())
                names.push_back(name);
        }
        return names;
    }
    std::string folder() {
        return std::array{"", "a\\", "a\\b\\", "c d\\"}.at(std::uniform_int_distribution(0, 3)(random_));
    }

    std::mt19937 random_;
};

class MovedFolders : public Repairs, public testing::WithParamInterface<unsigned> {};

TEST_P(MovedFolders, AreFoundFromOneOfTheirFilesAndGoBackByteByByte) {
    const std::vector<std::pair<std::string, std::string>> moves{
        {"c:\\p\\tex", "c:\\p\\textures"},     // A folder of the project,
        {"c:\\p\\pal", "c:\\far\\a\\pal"},     // also out of it,
        {"c:\\p\\tex\\a", "c:\\p\\tex\\z\\a"}, // one below it,
        {"c:\\p\\pal\\c d", "c:\\p\\C"},       // and one that is called otherwise now.
    };
    const unsigned seed = GetParam();
    openRandom(seed);
    const auto& [from, to] = moves.at(seed);
    const std::string before = *document_.projectFile().fileText();
    rename(from, to);
    const std::vector<std::string> gone = missing();
    ASSERT_FALSE(gone.empty());
    document_.BeginCheck();
    // Whichever of them is chosen.
    const std::string& one = gone.at(std::uniform_int_distribution<std::size_t>(0, gone.size() - 1)(random_));
    const bool palette = document_.FilesOf(one).palette.empty();
    PictureEntry entry;
    ASSERT_TRUE(document_.GetPicture(one, entry));
    std::string place = palette ? entry.tlfFile : entry.tmfFile;
    PathAbsolute(place, palette ? "c:\\p\\pal" : "c:\\p\\tex");
    const auto files = filesOfMove(document_.projectFile(), one, palette, to + place.substr(from.size()));
    const RelinkRepair repair = relink(document_.projectFile(), files);
    EXPECT_TRUE(repair.refused.empty());
    document_.Repair(repair.repair);
    EXPECT_EQ(missing(), std::vector<std::string>());
    ASSERT_TRUE(document_.save());
    const std::string after = *document_.projectFile().fileText();
    EXPECT_NE(after, before);
    document_.RevertCheck();
    EXPECT_TRUE(document_.isModified());
    EXPECT_EQ(document_.projectFile().fileText(), before);
    document_.RevertCheck();
    EXPECT_EQ(document_.projectFile().fileText(), after);
    // Further repairs go back together with it, those of the next check alone.
    document_.Repair({});
    document_.RevertCheck();
    EXPECT_EQ(document_.projectFile().fileText(), before);
    document_.RevertCheck();
    document_.BeginCheck();
    document_.Repair({});
    document_.RevertCheck();
    EXPECT_EQ(document_.projectFile().fileText(), after);
}

INSTANTIATE_TEST_SUITE_P(Moves, MovedFolders, testing::Range(0U, 4U));

TEST_F(Repairs, LeaveTheFolderWhereNotAllOfItsFilesAreAccepted) {
    openRandom(7);
    rename("c:\\p\\tex", "c:\\p\\new");
    PictureEntry entry;
    ASSERT_TRUE(document_.GetPicture("P1", entry));
    auto files = filesOfMove(document_.projectFile(), "P1", false, "c:\\p\\new\\" + entry.tmfFile);
    ASSERT_EQ(files.size(), 40U);
    std::ranges::find(files, "P7", &RelinkedFile::picture)->accepted = false;
    rename("c:\\p\\pal", "c:\\p\\away");
    auto palettes = filesOfMove(document_.projectFile(), "P1", true, "c:\\p\\away\\" + entry.tlfFile);
    std::ranges::find(palettes, "P8", &RelinkedFile::picture)->accepted = false;
    files.insert(files.end(), palettes.begin(), palettes.end());
    document_.Repair(relink(document_.projectFile(), files).repair);
    EXPECT_EQ(missing(), (std::vector<std::string>{"P7", "P8"}));
    EXPECT_EQ(document_.projectFile().tmfDir, "c:\\p\\tex");
}

TEST_F(Repairs, PutAFolderInThePlaceOfAMissingOne) {
    openRandom(3);
    rename("c:\\p\\pal", "c:\\q");
    auto files = filesOfFolder(document_.projectFile(), "c:\\p\\pal", "c:\\q");
    EXPECT_EQ(files.size(), 40U);
    // One that lay elsewhere does not hold it up.
    files.push_back(files.back());
    files.back().from = "c:\\elsewhere\\x.tlf";
    document_.Repair(relink(document_.projectFile(), files).repair);
    EXPECT_EQ(missing(), std::vector<std::string>());
    EXPECT_EQ(document_.projectFile().tlfDir, "c:\\q");
    // With nothing in it that is missed.
    document_.Repair(relinkFolder(document_.projectFile(), "c:\\q", "c:\\r"));
    EXPECT_EQ(document_.projectFile().tlfDir, "c:\\r");
    EXPECT_EQ(document_.projectFile().tmfDir, "c:\\p\\tex");
}

TEST_F(Repairs, AddTheImagesOfAFolderThatHaveAPaletteOfTheirNameAndAreNew) {
    openPictures({"sky"});
    for (const char* file : {"sky.tmf", "sky.tlf", "tex\\SEA.tmf", "tex\\sea.TLF", "tex\\Sky.tmf",
                             "tex\\lone.tmf", "tex\\a,b.tmf", "tex\\a,b.tlf", "tex\\note.txt"})
        fake_.files.putFile(std::string("c:\\p\\") + file, "");
    const FolderPictures found = picturesOfFolder(document_.projectFile(), "c:\\p\\tex");
    EXPECT_EQ(found.known + 10 * found.withoutPalette + 100 * found.notHeld, 110U);
    EXPECT_EQ(picturesOfFolder(document_.projectFile(), "c:\\p").known, 1U);
    const std::string before = *document_.projectFile().fileText();
    document_.Repair(additionOf(document_.projectFile(), found.pairs));
    EXPECT_EQ(document_.pictureNames(), (std::vector<std::string>{"sky", "SEA", "Sky0"}));
    PictureEntry entry;
    ASSERT_TRUE(document_.GetPicture("SEA", entry));
    EXPECT_EQ(entry, (PictureEntry{"tex\\SEA.tmf", "tex\\sea.TLF", 0}));
    // Its palette is found in the project's folder.
    EXPECT_EQ(document_.FilesOf("Sky0").palette, "c:\\p\\sky.tlf");
    ASSERT_TRUE(document_.save());
    document_.RevertCheck();
    EXPECT_EQ(document_.projectFile().fileText(), before);
}

} // namespace
} // namespace dyeworks
