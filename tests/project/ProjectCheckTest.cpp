#include "project/ProjectCheck.h"

#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "framework/PathText.h"
#include "platform/fake/FakePlatform.h"
#include "project/CTPFFile.h"
#include "project/FindingTexts.h"
#include "project/ProjectCheckRun.h"
#include "project/TextureFolders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <random>
#include <set>
#include <span>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace dyeworks {
namespace {

using P = ProjectProblem;

const Numeral kPlain = [](std::int64_t number) { return std::to_string(number); };
const std::string kTex = "c:\\p\\tex\\";
const std::string kPal = "c:\\p\\pal\\";

/// A project in a scratch folder that is damaged piece by piece, and notes what a check has to find.
class DamagedProject {
public:
    explicit DamagedProject(unsigned seed)
        : random_(seed) {
        for (const char* folder : {"c:\\p\\tex", "c:\\p\\pal", "c:\\p\\old", "c:\\q", "c:\\far"})
            fake.files.createDirectory(folder);
        EXPECT_TRUE(file.Create("c:\\p\\sea.tpf", "c:\\p", "c:\\p\\tex", "c:\\p\\pal"));
        for (int i = 0; i < 60; ++i)
            addOne(std::to_string(i));
    }

    [[nodiscard]] static std::string words(const ProjectFinding& found) {
        return std::to_string(static_cast<int>(found.problem)) + " " + found.picture + " " + found.file +
               " " + found.other + (found.rule ? " rule" : "") + " " + std::to_string(found.first) + " " +
               std::to_string(found.second);
    }

    FakePlatform fake;
    CTPFFile file;
    std::multiset<std::string> expected;

private:
    void expect(const ProjectFinding& found) { expected.insert(words(found)); }
    int upTo(int most) { return std::uniform_int_distribution(0, most)(random_); }

    /// Past the flushing, and past the search for a name in another case.
    void put(const std::string& path, std::initializer_list<std::span<const std::byte>> pieces) {
        std::string host = fake.files.hostFolder() + "/drive-c" + path.substr(2);
        std::ranges::replace(host, '\\', '/');
        std::filesystem::create_directories(std::filesystem::path(host).parent_path());
        std::ofstream out(host, std::ios::binary);
        for (const auto piece : pieces)
            out.write(reinterpret_cast<const char*>(piece.data()),
                      static_cast<std::streamsize>(piece.size()));
    }
    /// Each image differs from all others, whatever its size.
    void putImage(const std::string& path, int width, int bits, std::uint8_t highest) {
        TmfImage image;
        ASSERT_TRUE(image.create(width, 16, bits));
        for (int x = 0; x < 8; ++x)
            image.setTexel(x % width, 1 + x, static_cast<std::uint32_t>(images_ >> x & 1));
        image.setTexel(0, 0, highest);
        ++images_;
        const auto laidOut = layOutTmf(image);
        put(path, {laidOut->header, laidOut->body});
    }
    void putPalette(const std::string& path, int count) {
        TlutData table;
        ASSERT_TRUE(table.create(count, ColourType::Rgba) &&
                    table.setEntry(1, static_cast<std::uint16_t>(++palettes_)));
        put(path, {serialiseTlf(table)->bytes()});
    }
    void copy(const std::string& from, const std::string& to) { put(to, {*fake.files.bytesOf(from)}); }
    void picture(const std::string& name, const std::string& image, const std::string& palette, int number) {
        file.pictures[name] = {image, palette, number};
        file.order.push_back(name);
    }
    void move(const std::string& from, const std::string& to) {
        copy(from, to);
        fake.files.remove(from);
    }

    void addOne(const std::string& i) {
        const std::string image = "i" + i + ".tmf";
        const std::string palette = "l" + i + ".tlf";
        const std::string at = kTex + image;
        const int fate = upTo(14);
        const int bits = upTo(1) == 0 ? 4 : 8;
        putImage(at, fate == 13 ? 3 : 4, fate == 8 ? 8 : bits, fate == 8 ? 200 : 15);
        putPalette(kPal + palette, fate == 7 || fate == 8 ? 16 : 256);
        std::string imageName = image;
        std::string paletteName = palette;
        int number = upTo(15);
        switch (fate) {
        case 0:
            fake.files.remove(at);
            expect({P::MissingFile, "P" + i, at});
            break;
        case 1:
            move(at, "c:\\p\\old\\" + image);
            expect({P::MovedFile, "P" + i, at, false, "c:\\p\\old\\" + image});
            break;
        case 2: // Beside the project.
            move(kPal + palette, "c:\\q\\sub\\" + palette);
            expect({P::MovedFile, "P" + i, kPal + palette, true, "c:\\q\\sub\\" + palette});
            break;
        case 3:
            copy(at, kTex + "sub\\copy" + image);
            expect({P::EqualFile, "", kTex + "sub\\copy" + image, false, at});
            expect({P::UnusedFile, "", kTex + "sub\\copy" + image});
            break;
        case 4:
            picture("O" + i, image, palette, number);
            expect({P::SamePicture, "P" + i, at, false, "O" + i});
            break;
        case 5:
            imageName = "I" + i + ".TMF";
            expect({P::CaseOfName, "P" + i, kTex + imageName, false, image});
            break;
        case 6:
            number = upTo(1) == 0 ? -1 : 16;
            expect({P::PaletteNumber, "P" + i, kPal + palette, true, "", number, 16});
            break;
        case 7:
            if (bits == 4 && number > 0)
                expect({P::PaletteNumber, "P" + i, kPal + palette, true, "", number, 1});
            break;
        case 8:
            expect({P::TooFewEntries, "P" + i, at, false, "", 200, 16});
            break;
        case 9:
            put(at, {std::as_bytes(std::span(image))});
            expect({P::UnreadableFile, "P" + i, at});
            break;
        case 10:
            imageName = "c:\\far\\" + image;
            move(at, imageName);
            expect({P::FileOutside, "P" + i, imageName});
            break;
        case 11:
            picture("p" + i, image, "", 0);
            expect({P::NoFile, "p" + i, "", true});
            expect({P::PictureTwins, "P" + i, at, false, "p" + i});
            break;
        case 12: // The capital letter comes first.
            putImage(kTex + "I" + i + ".tmf", 4, 4, 15);
            expect({P::UnusedFile, "", kTex + "I" + i + ".tmf"});
            expect({P::FileTwins, "", at, false, kTex + "I" + i + ".tmf"});
            break;
        case 13: {
            ProjectFinding broken{P::BrokenRule, "P" + i, at, false, "", 1};
            broken.rule.emplace();
            expect(broken);
            break;
        }
        default:
            break;
        }
        picture("P" + i, imageName, paletteName, number);
    }

    std::mt19937 random_;
    int images_ = 0;
    int palettes_ = 0;
};

TEST(ProjectCheck, FindsExactlyWhatWasDamaged) {
    for (unsigned seed = 0; seed < 8; ++seed) {
        DamagedProject project(seed);
        TextureRules rules;
        rules.powersOfTwo = true;
        std::vector<int> thousandths{0};
        const auto found = checkProject(project.file, rules, [&](int now) {
            thousandths.push_back(now);
            return true;
        });
        ASSERT_TRUE(found);
        EXPECT_TRUE(std::ranges::is_sorted(thousandths));
        EXPECT_EQ(thousandths.back(), 1000);
        EXPECT_GT(std::set(thousandths.begin(), thousandths.end()).size(), 60U);
        std::multiset<std::string> words;
        for (const ProjectFinding& each : *found)
            words.insert(DamagedProject::words(each));
        for (const ProjectFinding& each : *found) {
            const FindingWords said = wordsOf(each, project.file, kPlain);
            PictureEntry entry;
            const bool ofPicture = project.file.GetPicture(each.picture, entry);
            EXPECT_EQ(said.source, fileNameOf(ofPicture ? entry.tmfFile : each.file));
            EXPECT_THAT(said.place, testing::HasSubstr(ofPicture ? each.picture : displayPath("c:\\p\\tex")));
            EXPECT_EQ(said.place.find(".t"), std::string::npos);
        }
        std::vector<std::string> differ;
        std::ranges::set_symmetric_difference(words, project.expected, std::back_inserter(differ));
        EXPECT_EQ(differ, std::vector<std::string>()) << seed;
    }
}

TEST(ProjectCheck, TellsOfFoldersAndFollowsNoLinkInCircles) {
    FakePlatform fake;
    fake.files.createDirectory("c:\\p\\Tex");
    fake.files.createDirectory("c:\\out");
    ASSERT_EQ(::symlink((fake.files.hostFolder() + "/drive-c/p").c_str(),
                        (fake.files.hostFolder() + "/drive-c/p/Tex/up").c_str()),
              0);
    CTPFFile file;
    file.tpfDir = "c:\\p";
    file.tmfDir = "c:\\p\\tex;c:\\gone";
    file.tlfDir = "c:\\out";
    const auto found = checkProject(file, {});
    ASSERT_TRUE(found);
    EXPECT_EQ(*found, (std::vector<ProjectFinding>{{P::CaseOfName, "", "c:\\p\\tex", false, "c:\\p\\Tex"},
                                                   {P::FolderMissing, "", "c:\\gone"},
                                                   {P::FolderOutside, "", "c:\\gone"},
                                                   {P::FolderOutside, "", "c:\\out", true}}));
    for (const ProjectFinding& each : *found)
        EXPECT_EQ(wordsOf(each, file, kPlain).place, displayPath(each.file));
    ProjectCheckRun run(file, {});
    while (!run.isDone())
        std::this_thread::yield();
    EXPECT_EQ(run.takeFindings(), *found);
    EXPECT_EQ(run.thousandths(), 1000);
}

TEST(RuleTexts, OneTexelHasAnIndexAndSeveralAreCounted) {
    const FakePlatform fake;
    const auto said = [](std::int64_t texels) {
        return reasonText({Rule::IndexesInPalette, {}, {}, {7, texels, 4}}, kPlain);
    };
    EXPECT_EQ(said(1), "Has index 7, the palette has 4 entries");
    EXPECT_EQ(said(2), "2 texels have index 7, the palette has 4 entries");
}

TEST(TextureFolders, AreSearchedAsDeepAsToldWhileTheyHoldFew) {
    FakePlatform fake;
    fake.files.putFile("c:\\p\\a.tmf", "");
    fake.files.putFile("c:\\p\\q\\B.TLF", "");
    fake.files.putFile("c:\\p\\q\\r\\c.tmf", "");
    fake.files.putFile("c:\\p\\q\\.git\\c.tmf", "");
    const auto found = [](int depth, std::size_t most) {
        TextureFolders folders;
        folders.setMostEntries(most);
        folders.add("c:\\p", depth);
        while (folders.step()) {
        }
        return folders.files().size();
    };
    EXPECT_EQ(found(0, 99), 1U);
    EXPECT_EQ(found(1, 99), 2U);
    EXPECT_EQ(found(9, 99), 3U);
    EXPECT_EQ(found(9, 4), 2U) << "two entries in each of the first two folders";
    EXPECT_EQ(found(9, 1), 1U);
}

} // namespace
} // namespace dyeworks
