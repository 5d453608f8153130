#include "../paint/DocTestHost.h"
#include "../project/ProjectTestHost.h"
#include "common/WriteFile.h"
#include "interchange/PaletteFile.h"
#include "platform/FileMessages.h"
#include "platform/posix/PosixStateFolder.h"
#include "platform/qt/QtProfile.h"
#include "recovery/RecoveryKeeper.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>

namespace dyeworks {
namespace {

namespace fs = std::filesystem;

using Fault = void(const char* call, int number, int error);
using Calls = int();

template <typename Function>
Function* faultFunction(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_DEFAULT, name));
}

std::string bytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A way to save something, over a file that holds something older. Made anew for each try.
class SavePath {
public:
    virtual ~SavePath() = default;
    /// Where `save` has written what the user relies on. Below it there is nothing else.
    virtual fs::path folder() = 0;
    virtual bool save() = 0;
    /// Whether the user learned of a failure.
    virtual bool told() { return !fake.messages.shown.empty(); }
    /// All files below the folder.
    std::map<std::string, std::string> files() {
        std::map<std::string, std::string> all;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder())) {
            if (entry.is_regular_file())
                all[entry.path().filename().string()] = contents(bytesOf(entry.path()));
        }
        return all;
    }
    virtual std::string contents(std::string bytes) { return bytes; }

    FakePlatform fake;

protected:
    fs::path onDisk() const { return fake.files.hostFolder() + "/drive-c/work"; }
    void putOld(const std::string& name) { fake.files.putFile("c:\\work\\" + name, "what was there"); }
};

class ImagePath : public SavePath {
public:
    explicit ImagePath(const char* name)
        : name_(name) {
        putOld(name_);
        document_.emplace(host_);
        document_->canvas().Create(300, 200, 1, 8);
        document_->Edit(nullptr, [](TextureCanvas& canvas) { canvas.FillEllipse(0, 0, 299, 199, 7); });
    }
    fs::path folder() override { return onDisk(); }
    bool save() override { return document_->onSaveDocument("c:\\work\\" + name_); }

private:
    std::string name_;
    FakeImageHost host_;
    std::optional<CDyeworksDoc> document_;
};

class PalettePath : public SavePath {
public:
    PalettePath() {
        putOld("a.tlf");
        palettes_.newPalette(256, ColourType::Rgba, 1);
        palettes_.lookup("")->path = "c:\\work\\a.tlf";
    }
    fs::path folder() override { return onDisk(); }
    bool save() override { return palettes_.lookup("")->save("c:\\work\\a.tlf", false); }

private:
    PaletteSet palettes_;
};

class ProjectPath : public SavePath {
public:
    ProjectPath() {
        fake.files.putFile("c:\\work\\a.tpf", "# kept\r\nTPF_PICTURE_COUNT = 0\r\n");
        document_.emplace(host_);
        EXPECT_TRUE(document_->onOpenDocument("c:\\work\\a.tpf"));
        document_->AddPicture("sky", "c:\\work\\sky.tmf", "c:\\work\\sky.tlf", 3, std::nullopt, true);
    }
    ~ProjectPath() override { document_->onCloseDocument(); }
    fs::path folder() override { return onDisk(); }
    bool save() override { return document_->onSaveDocument("c:\\work\\a.tpf"); }

private:
    FakeProjectHost host_;
    std::optional<CTPFDocument> document_;
};

/// Files that other programs read.
class ExportPath : public SavePath {
public:
    ExportPath() { putOld("a.gpl"); }
    fs::path folder() override { return onDisk(); }
    bool save() override {
        TlutData table;
        EXPECT_TRUE(table.create(16, ColourType::Ia));
        const auto file = writePaletteFile(PaletteFormat::Gimp, table, 0, 16, "a");
        const auto error = fake.files.write("c:\\work\\a.gpl", file.value());
        if (error)
            tellNotSaved("c:\\work\\a.gpl", *error);
        return !error;
    }
};

class PlugInPath : public SavePath {
public:
    PlugInPath() { putOld("a.png"); }
    fs::path folder() override { return onDisk(); }
    bool save() override {
        reason_ =
            plugins::writeFile(QString::fromStdString((onDisk() / "a.png").string()), QByteArray(5000, 'p'));
        return reason_.isEmpty();
    }
    bool told() override { return !reason_.isEmpty(); }

private:
    QString reason_;
};

class RecoveryPath : public SavePath {
public:
    RecoveryPath() {
        document_.emplace(host_);
        document_->canvas().Create(64, 64, 1, 4);
        edit(1);
        keeper_->keepNow();
        edit(2);
    }
    fs::path folder() override { return fake.files.hostFolder() + "/runs"; }
    bool save() override {
        keeper_->keepNow();
        return !keeper_->failure();
    }
    bool told() override { return keeper_->failure().has_value(); }
    /// Without the time at which it was kept.
    std::string contents(std::string bytes) override { return bytes.substr(bytes.find("\n\n")); }

private:
    void edit(std::uint32_t value) {
        document_->Edit(nullptr, [=](TextureCanvas& canvas) { canvas.FillBox(0, 0, 63, 63, value); });
        keeper_->imageChanged(*document_, Rect{0, 0, 63, 63});
    }

    FakeImageHost host_;
    std::optional<CDyeworksDoc> document_;
    PosixStateFolder state_{fake.files.hostFolder() + "/runs"};
    std::optional<RecoveryKeeper> keeper_{
        std::in_place, state_,
        RecoveryKeeper::Open{[this] { return std::vector<CDocument*>{&*document_}; },
                             [this] { return &host_.palettes; }}};
};

class SettingsPath : public SavePath {
public:
    SettingsPath() {
        fake.files.putFile("c:\\work\\settings.conf", "[Settings]\nold=1\n");
        profile_.emplace((onDisk() / "settings.conf").string());
    }
    fs::path folder() override { return onDisk(); }
    bool save() override {
        profile_->setText("Settings\\Images", "new", "2, 3");
        profile_->remove("Settings", "old");
        profile_->sync();
        const bool failed = profile_->takeTrouble().has_value();
        told_ = told_ || failed;
        return !failed;
    }
    bool told() override { return told_; }

private:
    std::optional<QtProfile> profile_;
    bool told_ = false;
};

struct Row {
    const char* name;
    std::function<std::unique_ptr<SavePath>()> make;
};

TEST(SavePaths, KeepTheOldFileTellAndSaveAgainWhateverFails) {
    Fault* const fault = faultFunction<Fault>("dyeworksFault");
    Calls* const calls = faultFunction<Calls>("dyeworksFaultCalls");
    ASSERT_TRUE(fault != nullptr && calls != nullptr) << "the library of faults is not loaded";
    const std::vector<Row> rows{
        {"image", [] { return std::make_unique<ImagePath>("a.tmf"); }},
        {"bitmap", [] { return std::make_unique<ImagePath>("a.bmp"); }},
        {"palette", [] { return std::make_unique<PalettePath>(); }},
        {"project", [] { return std::make_unique<ProjectPath>(); }},
        {"palette export", [] { return std::make_unique<ExportPath>(); }},
        {"plug-in export", [] { return std::make_unique<PlugInPath>(); }},
        {"settings", [] { return std::make_unique<SettingsPath>(); }},
        {"recovery", [] { return std::make_unique<RecoveryPath>(); }},
    };
    std::cout << "path            call    calls failed-and-told saved-all-the-same\n";
    for (const Row& row : rows) {
        std::unique_ptr<SavePath> path = row.make();
        const auto old = path->files();
        ASSERT_TRUE(path->save());
        const auto wanted = path->files();
        ASSERT_NE(wanted, old) << row.name;
        for (const char* const call : {"make", "write", "flush", "close", "link", "rename"}) {
            path.reset(); // There is one platform at a time.
            path = row.make();
            fault(call, 0, 0);
            ASSERT_TRUE(path->save());
            const int count = calls();
            int refused = 0;
            int saved = 0;
            for (int number = 1; number <= count; ++number) {
                for (const int error : {ENOSPC, EIO, EACCES, EROFS, EDQUOT}) {
                    const testing::ScopedTrace where(__FILE__, __LINE__,
                                                     std::string(row.name) + ": " + call + " " +
                                                         std::to_string(number) + ", " +
                                                         std::strerror(error));
                    path.reset();
                    path = row.make();
                    fault(call, number, error);
                    const bool done = path->save();
                    fault("", 0, 0);
                    ++(done ? saved : refused);
                    EXPECT_EQ(path->files(), done ? wanted : old);
                    EXPECT_TRUE(done || path->told());
                    EXPECT_TRUE(path->save());
                    EXPECT_EQ(path->files(), wanted);
                }
            }
            std::printf("%-15s %-7s %5d %15d %18d\n", row.name, call, count, refused, saved);
        }
    }
}

} // namespace
} // namespace dyeworks
