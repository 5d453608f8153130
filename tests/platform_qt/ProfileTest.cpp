#include "Desktop.h"

#include <QDir>
#include <gmock/gmock.h>

namespace dyeworks {

namespace {

using ProfileTest = Desktop;

} // namespace

TEST_F(ProfileTest, KeepsEveryNameApartAcrossTwoRuns) {
    const std::pair<std::string, std::string> names[] = {
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
    std::map<std::string, std::vector<std::string>> entriesOf;
    const std::string file = host("names.ini").toStdString();
    {
        QtProfile profile(file);
        int number = 0;
        for (const auto& [section, entry] : names) {
            profile.setInteger(section, entry, ++number);
            entriesOf[section].push_back(entry);
        }
    }
    const QtProfile profile(file);
    int number = 0;
    for (const auto& [section, entry] : names)
        EXPECT_EQ(profile.integer(section, entry, 0), ++number) << section << " | " << entry;
    for (auto& [section, entries] : entriesOf) {
        std::sort(entries.begin(), entries.end());
        EXPECT_EQ(profile.entries(section), entries) << section;
    }
}

TEST_F(ProfileTest, KeepsEveryValueAcrossTwoRuns) {
    const std::string values[] = {
        "",           "plain",         " blanks ",         "a, b; c", "a\\b\\x41", "\"quoted\"",
        "two\nlines", "@ByteArray(x)", "@Invalid()",       "%41=1",   "空",        "\xFF\xFE not UTF-8",
        "@",          "true",          "0:1:-1:-1:0:0:640"};
    const std::string file = host("values.ini").toStdString();
    {
        QtProfile profile(file);
        for (const std::string& value : values)
            profile.setText("a", value, value);
    }
    const QtProfile profile(file);
    for (const std::string& value : values)
        EXPECT_EQ(profile.text("a", value), value);
}

TEST_F(ProfileTest, ReadsWhatIsWholeInADamagedFileAndWritesItAnew) {
    write("damaged.ini",
          QByteArray("\0\xFF garbage [\n]broken\n[Settings]\nlist=a, b\nkept=7\nodd=@Rect(0 0 1 1)\n", 68));
    const std::string file = host("damaged.ini").toStdString();
    {
        QtProfile profile(file);
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
