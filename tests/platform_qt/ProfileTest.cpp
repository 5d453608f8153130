#include "Desktop.h"
#include "cli/thumbnailer/EditorSettings.h"

#include <QDir>
#include <gmock/gmock.h>

#include <array>
#include <map>
#include <set>

namespace dyeworks {

namespace {

using ProfileTest = Desktop;

} // namespace

TEST_F(ProfileTest, KeepsEveryNameApartAndEveryValueAcrossTwoRuns) {
    std::vector<std::array<std::string, 3>> all{
        {"", "a"},
        {"a", "b"},
        {"a", "B"},
        {"a\\b", "c"},
        {"a", "b\\c"},
        {"a", "b/c"},
        {"a/b", "c"},
        {"a", "b~2Fc"},
        {"a", "b=c;d#e[f]"},
        {"a", "\"b\", c"},
        {"a", "空の色\\テクスチャ"},
        {"Settings\\Images\\\\home\\kei\\tex 100%\\sky.tmf", "WindowPos"},
        {"Settings\\Images", "c:\\tex\\sky.tmf"},
    };
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i][2] = std::to_string(i);
    for (const char* value :
         {"", "plain", " blanks ", "a, b; c", "a\\b\\x41", "\"quoted\"", "two\nlines", "@ByteArray(x)",
          "@Invalid()", "%41=1", "空", "\xFF\xFE not UTF-8", "@", "true", "0:1:-1:-1:0:0:640"})
        all.push_back({"values", value, value});
    const std::string file = host("names.ini").toStdString();
    std::map<std::string, std::set<std::string>> entriesOf;
    {
        QtProfile profile(file);
        for (const auto& [section, entry, value] : all) {
            profile.setText(section, entry, value);
            entriesOf[section].insert(entry);
        }
    }
    const QtProfile profile(file);
    for (const auto& [section, entry, value] : all)
        EXPECT_EQ(profile.text(section, entry), value) << section << " | " << entry;
    for (const auto& [section, entries] : entriesOf)
        EXPECT_EQ(profile.entries(section), std::vector(entries.begin(), entries.end())) << section;
}

TEST_F(ProfileTest, TellsTheThumbnailerWhichPaletteAnImageHas) {
    const std::vector<std::string> paths{"\\home\\kei\\sky.tmf", "\\tex 100%~\\a_b-c.d\\[1]=;,+\"q\".tmf",
                                         "c:\\空の色\\é \xF0\x9F\x8E\xA8.tmf", "\\not UTF-8 \xFF\xFE\\s.tmf",
                                         "*palette"};
    const std::string file = host("attached.ini").toStdString();
    {
        QtProfile profile(file);
        profile.setText(kDriveSection, "c:", "/mnt/old, disk");
        for (std::size_t i = 0; i < paths.size(); ++i)
            profile.setText("Settings\\Images\\" + paths[i], "Attach", paths[paths.size() - 1 - i]);
    }
    const EditorSettings settings(read(host("attached.ini")).toStdString());
    for (std::size_t i = 0; i < paths.size(); ++i)
        EXPECT_EQ(settings.attachedPalette(paths[i]), paths[paths.size() - 1 - i]) << paths[i];
    EXPECT_EQ(settings.attachedPalette("\\home\\kei\\SKY.tmf"), std::nullopt);
    EXPECT_EQ(settings.drives(), (std::map<char, std::string>{{'c', "/mnt/old, disk"}}));
}

TEST_F(ProfileTest, ReadsWhatIsWholeInADamagedFileAndWritesItAnew) {
    write("damaged.ini",
          QByteArray("\0\xFF garbage [\n]broken\n[Settings]\nlist=a, b\nkept=7\nodd=@Rect(0 0 1 1)\n", 68));
    const std::string file = host("damaged.ini").toStdString();
    {
        QtProfile profile(file);
        const auto trouble = profile.takeTrouble();
        ASSERT_TRUE(trouble && trouble->kind == ProfileTrouble::Kind::Damaged);
        EXPECT_FALSE(profile.takeTrouble());
        QFile copy(QString::fromStdString(trouble->copy));
        ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
        EXPECT_EQ(copy.readAll().size(), 68) << "as it was";
        EXPECT_EQ(profile.integer("Settings", "kept", 0), 7);
        EXPECT_EQ(profile.text("Settings", "list"), "a, b");
        EXPECT_EQ(profile.text("Settings", "odd"), std::nullopt);
        profile.setText("Settings", "new", "8");
        profile.sync();
    }
    const QtProfile again(file);
    EXPECT_EQ(again.integer("Settings", "kept", 0), 7);
    EXPECT_EQ(again.integer("Settings", "new", 0), 8);
}

TEST_F(ProfileTest, MapsADriveInEitherCase) {
    QDir(scratch_.path()).mkdir(QStringLiteral("tex"));
    write("tex/sky.tlf", "x");
    EXPECT_FALSE(platform_.files().exists("c:\\sky.tlf"));
    platform_.profile().setText("Drives", "C:", host("tex").toStdString());
    EXPECT_TRUE(platform_.files().exists("c:\\sky.tlf"));
    platform_.profile().setText("Drives", "d:", host("tex").toStdString());
    EXPECT_TRUE(platform_.files().exists("D:\\sky.tlf"));
}

} // namespace dyeworks
