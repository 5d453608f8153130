// Which pictures a build makes, against a model that remembers what it saw, and what it makes of them,
// against a build from nothing.

#include "cli/Program.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <map>
#include <random>
#include <set>
#include <sys/stat.h>

namespace dyeworks {
namespace {

/// A project that is changed at random.
class Model {
public:
    explicit Model(unsigned seed)
        : engine_(seed) {
        for (int i = 0; i < kFiles; ++i) {
            change("i" + std::to_string(i) + ".tmf");
            change("p" + std::to_string(i) + ".tlf");
        }
        for (int i = 0; i < 5; ++i)
            addPicture();
    }

    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }

    /// Writes another content, a second later than any before: nobody waits for the clock.
    void change(const std::string& name) {
        std::vector<unsigned> numbers(256);
        for (unsigned& number : numbers)
            number = unsigned(below(256));
        folder.write(name, name.ends_with(".tmf") ? tmfFile(16, 16, 8, numbers) : tlfFile(numbers, false));
        stamp(name);
    }

    void addPicture() {
        pictures_["pic " + std::to_string(next_++)] = {anyImage(), anyPalette(), below(3)};
        writeProject();
    }

    void changeAnything() {
        const auto any = std::next(pictures_.begin(), below(int(pictures_.size())));
        switch (below(9)) {
        case 0:
            return change(anyImage());
        case 1:
            return change(anyPalette());
        case 2:
            return addPicture();
        case 3:
            if (pictures_.size() > 2)
                pictures_.erase(any);
            return writeProject();
        case 4:
            any->second.bank = below(3);
            return writeProject();
        case 5:
            any->second.image = anyImage();
            return writeProject();
        case 6:
            spoilt_.erase(any->first + "." + format_);
            std::filesystem::remove(folder.path() / "out" / (any->first + "." + format_));
            return;
        case 7:
            spoilt_.insert(any->first + "." + format_);
            folder.write("out/" + any->first + "." + format_, "spoilt");
            return stamp("out/" + any->first + "." + format_);
        default:
            format_ = format_ == "png" ? "raw" : "png";
        }
    }

    /// What a build has to make now: the outputs that are not there as they were made, and those of which
    /// something is different.
    std::set<std::string> outOfDate() const {
        std::set<std::string> names;
        for (const auto& [name, picture] : pictures_) {
            const std::string output = name + "." + format_;
            const auto made = made_.find(output);
            if (made == made_.end() || made->second != key(output, picture))
                names.insert(output);
        }
        return names;
    }

    /// Everything is as it should be. What somebody else wrote stays when its picture is gone.
    void remember() {
        made_.clear();
        for (const auto& [name, picture] : pictures_) {
            const std::string output = name + "." + format_;
            made_[output] = key(output, picture);
            spoilt_.erase(output);
        }
    }

    /// Takes the files away that somebody else wrote and that are no outputs.
    void removeSpoilt() {
        for (const std::string& name : spoilt_)
            EXPECT_TRUE(std::filesystem::remove(folder.path() / "out" / name)) << name;
        spoilt_.clear();
    }

    std::vector<std::string> arguments(const std::string& out) const {
        return {"build", "p.tpf", "-o", out, "-f", format_};
    }

    TestFolder folder;

private:
    static constexpr int kFiles = 4;

    struct Picture {
        std::string image;
        std::string palette;
        int bank;
    };

    std::string anyImage() { return "i" + std::to_string(below(kFiles)) + ".tmf"; }
    std::string anyPalette() { return "p" + std::to_string(below(kFiles)) + ".tlf"; }

    void stamp(const std::string& name) {
        const timespec times[2]{{++clock_, 0}, {clock_, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, (folder.path() / name).c_str(), times, 0), 0);
    }

    void writeProject() {
        std::string text;
        int index = 0;
        for (const auto& [name, picture] : pictures_)
            text += "PICT." + std::to_string(index++) + "=" + name + "," + picture.image + "," +
                    picture.palette + "," + std::to_string(picture.bank) + "\n";
        folder.write("p.tpf", text + "PICT_NUM=" + std::to_string(index) + "\n");
        stamp("p.tpf");
    }

    /// Of all that the output hangs on.
    std::string key(const std::string& output, const Picture& picture) const {
        return folder.read(picture.image) + folder.read(picture.palette) + picture.image + picture.palette +
               std::to_string(picture.bank) + "/" + folder.read("out/" + output);
    }

    std::mt19937 engine_;
    std::map<std::string, Picture> pictures_;
    std::map<std::string, std::string> made_;
    std::set<std::string> spoilt_;
    std::string format_ = "png";
    int next_ = 0;
    long clock_ = 1'000'000'000;
};

/// What is in it, and whether it was written: a file that is replaced is another one.
std::map<std::string, std::pair<ino_t, std::string>> filesIn(const TestFolder& all,
                                                             const std::string& folder) {
    std::map<std::string, std::pair<ino_t, std::string>> files;
    for (const auto& entry : std::filesystem::directory_iterator(all.path() / folder)) {
        struct stat status {};
        ::stat(entry.path().c_str(), &status);
        const std::string name = entry.path().filename();
        if (name != ".dyeworks-build" && name != "index.json")
            files[name] = {status.st_ino, all.read(folder + "/" + name)};
    }
    return files;
}

TEST(Build, MakesJustWhatHasChanged) {
    Model model(7);
    ASSERT_EQ(model.folder.run(model.arguments("out")).code, 0);
    model.remember();
    for (int round = 0; round < 40; ++round) {
        for (int changes = model.below(3); changes >= 0; --changes)
            model.changeAnything();
        const std::set<std::string> expected = model.outOfDate();
        const auto before = filesIn(model.folder, "out");
        std::vector<std::string> dryRun = model.arguments("out");
        dryRun.push_back("--dry-run");
        std::string listed;
        for (const std::string& name : expected)
            listed += "out/" + name + "\n";
        // In the order of the project, which is that of the names here.
        ASSERT_EQ(model.folder.run(dryRun).out, listed) << "round " << round;
        ASSERT_EQ(model.folder.run(model.arguments("out")).code, 0);
        // What comes out as it is stays.
        for (const auto& [name, file] : filesIn(model.folder, "out")) {
            const auto old = before.find(name);
            const bool isAnother = old == before.end() || old->second.second != file.second;
            ASSERT_EQ(old == before.end() || old->second.first != file.first, isAnother)
                << name << " in round " << round;
            ASSERT_TRUE(!isAnother || expected.contains(name)) << name << " in round " << round;
        }
        model.remember();
        model.removeSpoilt();
        std::vector<std::string> fresh = model.arguments("fresh");
        fresh.insert(fresh.end(), {"--jobs", std::to_string(1 + round % 3)});
        ASSERT_EQ(model.folder.run(fresh).code, 0);
        ASSERT_EQ(model.folder.run({"-r", "-x", ".dyeworks-build", "out", "fresh"}, {.program = "diff"}).out,
                  "");
        std::filesystem::remove_all(model.folder.path() / "fresh");
    }
    // What it remembers is cut off: then everything is made.
    std::vector<std::string> listed = model.arguments("out");
    listed.insert(listed.end(), {"--dry-run", "--all"});
    const std::string all = model.folder.run(listed).out;
    listed.pop_back();
    const std::string state = model.folder.read("out/.dyeworks-build");
    for (std::size_t size = 0; size < state.size(); size += 9) {
        model.folder.write("out/.dyeworks-build", state.substr(0, size));
        ASSERT_EQ(model.folder.run(listed).out, all) << size;
    }
}

TEST(Build, TellsMakeWhatItReads) {
    const TestFolder folder;
    const std::vector<std::string> files{"my project#.tpf", "a b.tmf", "c$.tmf", "p q.tlf"};
    folder.write(files[1], tmfFile(2, 2, 4, {1, 2, 3, 4}));
    folder.write(files[2], tmfFile(2, 2, 4, {1, 2, 3, 4}));
    folder.write(files[3], tlfFile(std::vector<unsigned>(16, 1), false));
    folder.write(files[0], "PICT.0=A,a b.tmf,p q.tlf,0\nPICT.1=B,c$.tmf,p q.tlf,0\nPICT_NUM=2\n");
    ASSERT_EQ(folder.run({"build", files[0], "-o", "out dir", "--depfile", "rule.mk"}).code, 0);
    folder.write("Makefile", folder.read("rule.mk") + "\t@true\n");
    const auto isUpToDate = [&] {
        return folder.run({"-q", "out dir/index.json"}, {.program = "make"}).code == 0;
    };
    for (const std::string& name : files) {
        EXPECT_TRUE(isUpToDate());
        const auto path = folder.path() / name;
        const auto time = std::filesystem::last_write_time(path);
        std::filesystem::last_write_time(path, time + std::chrono::hours(1));
        EXPECT_FALSE(isUpToDate()) << name;
        std::filesystem::last_write_time(path, time);
    }
}

} // namespace
} // namespace dyeworks
