#include "../paint/DocTestHost.h"
#include "../project/ProjectTestHost.h"
#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "recovery/OutsideWatch.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>

namespace dyeworks {
namespace {

namespace fs = std::filesystem;
using State = KnownFile::State;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// An image of 4 or 8 columns whose first texel counts.
std::string imageOf(int value) {
    TmfImage image;
    EXPECT_TRUE(image.create(value < 16 ? 4 : 8, 1, 4));
    image.setTexel(0, 0, static_cast<std::uint32_t>(value % 16));
    const auto file = layOutTmf(image);
    std::string bytes(reinterpret_cast<const char*>(file->header.data()), file->header.size());
    return bytes.append(reinterpret_cast<const char*>(file->body.data()), file->body.size());
}

std::string paletteOf(int value) {
    TlutData table;
    EXPECT_TRUE(table.create(16, ColourType::Rgba));
    table.setEntry(0, static_cast<std::uint16_t>(value));
    const auto file = serialiseTlf(table);
    return {reinterpret_cast<const char*>(file->data()), file->size()};
}

/// A document or palette with contents that are a number up to 31, and what should be known of it.
struct Subject {
    std::string path;
    CDocument* document = nullptr;
    std::function<std::string(int)> bytes;
    std::function<int()> value;
    std::function<void(int)> edit;
    std::function<void()> undo; ///< Nothing: it has no history.
    std::function<bool()> save;
    std::function<bool()> isUnsaved;

    int ours = 1;
    std::optional<int> file = 1;
    int known = 1;
    std::optional<std::optional<int>> kept = std::nullopt; ///< What of the file the user does not want.
    std::vector<int> past = {};
    State told = State::Same;
};

class Outside : public testing::Test {
protected:
    Outside() {
        palettes().setListener(nullptr);
        for (auto [path, bytes] : {std::pair("c:\\a.tmf", imageOf(1)),
                                   {"c:\\b.tlf", paletteOf(1)},
                                   {"c:\\d.tlf", paletteOf(1)},
                                   {"c:\\c.tpf", std::string("A = 1\r\nNOTE = 1\r\n")}})
            fake_.files.putFile(path, bytes);
        EXPECT_TRUE(image_.onOpenDocument("c:\\a.tmf") && palettes().openPalette("c:\\b.tlf") &&
                    palettes().openPalette("c:\\d.tlf") && project_.onOpenDocument("c:\\c.tpf"));
        image_.setPathName("c:\\a.tmf");
        EXPECT_TRUE(project_.save());
        projectText_ = fake_.files.textOf("c:\\c.tpf").value();
        makeSubjects();
    }
    ~Outside() override { projectHost_.project = nullptr; }

    PaletteSet& palettes() { return host_.palettes; }
    void makeSubjects() {
        subjects_.push_back({"c:\\a.tmf", &image_, imageOf,
                             [this] {
                                 const TextureCanvas& canvas = image_.canvas();
                                 return static_cast<int>(canvas.GetPixel(0, 0)) +
                                        (canvas.width() == 8 ? 16 : 0);
                             },
                             [this](int value) {
                                 image_.Edit(nullptr, [&](TextureCanvas& canvas) {
                                     canvas.PutPixel(0, 0, static_cast<std::uint32_t>(value % 16));
                                 });
                             },
                             [this] { image_.Undo(); }, [this] { return image_.save(); },
                             [this] { return image_.hasUnsavedChanges(); }});
        addPalette("c:\\b.tlf");
        subjects_.push_back({"c:\\c.tpf", &project_,
                             [this](int value) {
                                 std::string text = projectText_;
                                 const std::size_t line = text.find("\r\nNOTE");
                                 return text.replace(line, text.find("\r\n", line + 2) - line,
                                                     "\r\nNOTE\t=\t" + std::to_string(value));
                             },
                             [this] {
                                 std::string value;
                                 return project_.GetValue("NOTE", value) ? std::stoi(value) : -1;
                             },
                             [this](int value) { project_.SetValue("NOTE", std::to_string(value)); }, nullptr,
                             [this] { return project_.save(); },
                             [this] { return project_.hasUnsavedChanges(); }});
        addPalette("c:\\d.tlf");
    }
    void addPalette(const std::string& path) {
        TextureLookupTable& palette = *palettes().lookup(path);
        subjects_.push_back(
            {path, nullptr, paletteOf, [&palette] { return static_cast<int>(palette.table.getEntry(0)); },
             [&palette](int value) {
                 ASSERT_TRUE(palette.beginEdit());
                 palette.setEntry(0, static_cast<std::uint16_t>(value));
                 palette.commitEdit();
             },
             [&palette] { palette.undo(); }, [this, path] { return palettes().savePalette(path, true); },
             [&palette] { return palette.hasUnsavedChanges(); }});
    }

    int any(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    std::string host(const Subject& subject) const { return fake_.files.hostPath(subject.path); }
    /// Another time than any before, whatever the clock of the disk can tell apart.
    void stampAnew(const Subject& subject) {
        fs::last_write_time(host(subject), fs::file_time_type::clock::now() + std::chrono::hours(++stamps_));
    }
    void remember() {
        for (std::size_t i = 0; i < subjects_.size(); ++i)
            watch_.follow();
    }
    /// Whoever looks has seen all that was done until now.
    void settle() { EXPECT_FALSE(watch_.look(false) && watch_.look(false)); }
    std::optional<OutsideWatch::Notice> noticeOf(const Subject& subject) const {
        for (const OutsideWatch::Notice& notice : watch_.notices()) {
            if (notice.path == subject.path)
                return notice;
        }
        return std::nullopt;
    }

    void change(Subject& subject, bool inPlace) {
        const int value = any(32);
        if (inPlace && subject.file)
            std::ofstream(host(subject), std::ios::binary) << subject.bytes(value);
        else
            fake_.files.putFile(subject.path, subject.bytes(value));
        stampAnew(subject);
        subject.file = value;
    }
    void save(Subject& subject) {
        const bool asks =
            subject.file && subject.file != subject.known && !(subject.kept && *subject.kept == subject.file);
        const bool agrees = any(2) == 0;
        const std::size_t before = fake_.messages.shown.size();
        if (asks)
            fake_.messages.answerWith(agrees ? MessageAnswer::Ok : MessageAnswer::Cancel);
        EXPECT_EQ(subject.save(), !asks || agrees) << subject.path;
        ASSERT_EQ(fake_.messages.shown.size() - before, asks ? 1U : 0U) << subject.path;
        if (!asks || agrees) {
            subject.known = subject.ours;
            subject.file = subject.known;
            subject.kept.reset();
            subject.told = State::Same;
            EXPECT_FALSE(subject.isUnsaved()) << subject.path;
        }
        remember();
    }
    /// What the user is told now.
    State expected(const Subject& subject) const {
        if (!subject.file)
            return State::Removed;
        const bool wasAway = subject.told == State::Removed && !subject.kept;
        if (subject.file == subject.known)
            return wasAway ? State::Back : State::Same;
        const bool away =
            subject.told == State::Removed || (subject.told == State::BackChanged && !subject.kept);
        return away ? State::BackChanged : State::Changed;
    }
    void lookAt(Subject& subject) {
        const State now = expected(subject);
        if (subject.kept && (*subject.kept != subject.file || now == State::Same))
            subject.kept.reset();
        const std::optional<OutsideWatch::Notice> notice = noticeOf(subject);
        const bool asks = now != State::Same && !subject.kept;
        ASSERT_EQ(notice.has_value(), asks) << subject.path << " " << static_cast<int>(now);
        subject.told = now;
        if (!asks)
            return;
        ASSERT_EQ(notice->state, now) << subject.path;
        EXPECT_THAT(notice->words(), HasSubstr(subject.path.substr(3)));
        if (now == State::Removed) {
            EXPECT_TRUE(subject.isUnsaved()) << subject.path;
        }
        answer(subject, *notice);
    }
    void answer(Subject& subject, const OutsideWatch::Notice notice) {
        if (any(3) == 0 && notice.state != State::Back)
            return; // Later.
        if (notice.offersReload() && any(2) == 0) {
            if (subject.document == &project_ && subject.isUnsaved())
                fake_.messages.answerWith(MessageAnswer::Yes);
            EXPECT_TRUE(watch_.reload(notice));
            if (subject.ours != subject.file)
                subject.past.push_back(subject.ours);
            subject.ours = *subject.file;
            subject.known = subject.ours;
            subject.told = State::Same;
            EXPECT_FALSE(subject.isUnsaved()) << subject.path;
            remember();
        } else {
            watch_.keep(notice);
            if (notice.state == State::Back) {
                subject.told = State::Same;
                return;
            }
            subject.kept = subject.file;
            EXPECT_TRUE(subject.isUnsaved()) << subject.path;
        }
        EXPECT_FALSE(noticeOf(subject));
    }

    void step(Subject& subject) {
        switch (any(9)) {
        case 0:
        case 1: {
            const int value = (subject.ours % 16 + 1 + any(14)) % 16 + (subject.ours / 16) * 16;
            subject.past.push_back(subject.ours);
            subject.edit(subject.ours = value);
            break;
        }
        case 2:
            save(subject);
            break;
        case 3:
        case 4:
            change(subject, any(2) == 0);
            break;
        case 5:
            if (subject.file)
                stampAnew(subject);
            break;
        case 6:
            fake_.files.remove(subject.path);
            subject.file.reset();
            break;
        case 7:
            fake_.files.putFile(subject.path, subject.bytes(subject.known));
            stampAnew(subject);
            subject.file = subject.known;
            break;
        default:
            if (!subject.undo || subject.past.empty())
                break;
            subject.undo();
            subject.ours = subject.past.back();
            subject.past.pop_back();
        }
    }

    FakePlatform fake_;
    FakeImageHost host_;
    FakeProjectHost projectHost_;
    CDyeworksDoc image_{host_};
    CTPFDocument project_{projectHost_};
    OutsideWatch watch_{fake_.fileWatcher,
                        {[this] {
                             return std::vector<CDocument*>{&image_, &project_};
                         },
                         [this] { return &host_.palettes; }}};
    std::string projectText_;
    std::vector<Subject> subjects_;
    std::mt19937 random_{7};
    int stamps_ = 0;
};

TEST_F(Outside, RandomWorkOfSeveralNeitherLosesNorReportsWhatItShouldNot) {
    remember();
    for (int i = 0; i < 800 && !HasFatalFailure(); ++i) {
        Subject& subject = subjects_[static_cast<std::size_t>(any(4))];
        step(subject);
        if (any(2) == 0) {
            settle();
            for (Subject& each : subjects_)
                lookAt(each);
        }
        for (const Subject& each : subjects_)
            ASSERT_EQ(each.value(), each.ours) << each.path << " in step " << i;
        const auto onDisk = fake_.files.textOf(subject.path);
        ASSERT_EQ(onDisk.has_value(), subject.file.has_value());
        if (onDisk) {
            ASSERT_EQ(*onDisk, subject.bytes(*subject.file)) << subject.path << " in step " << i;
        }
    }
}

TEST_F(Outside, WhatAnEarlierRunKnewIsNotSavedOverUnasked) {
    const std::optional<FileStamp> known = image_.file().known();
    fake_.messages.shown.clear();
    EXPECT_TRUE(KnownFile("c:\\a.tmf", known).mayBeReplaced("c:\\a.tmf"));
    fake_.files.putFile("c:\\a.tmf", imageOf(20));
    KnownFile changed("c:\\a.tmf", known);
    EXPECT_EQ(changed.look(), State::Changed);
    EXPECT_THAT(fake_.messages.shown, IsEmpty());
    (void)changed.mayBeReplaced("c:\\a.tmf");
    EXPECT_EQ(fake_.messages.shown.size(), 1U);
}

TEST_F(Outside, WhatIsUnchangedFollowsItsFileByItselfOnceThatIsWhole) {
    remember();
    subjects_[1].edit(5);
    std::string half = imageOf(7);
    half.resize(half.size() - 1);
    fake_.files.putFile("c:\\a.tmf", half);
    fake_.files.putFile("c:\\b.tlf", paletteOf(7));
    fake_.files.putFile("c:\\c.tpf", "NOTE = 7\r\n");
    EXPECT_TRUE(watch_.look(true)) << "it may go on";
    EXPECT_FALSE(watch_.look(true));
    EXPECT_THAT(watch_.takeReloaded(), ElementsAre("c:\\c.tpf"));
    EXPECT_EQ(subjects_[2].value(), 7);
    EXPECT_EQ(subjects_[1].value(), 5) << "it has unsaved changes";
    EXPECT_EQ(subjects_[0].value(), 1) << "the file is still being written";

    fake_.files.putFile("c:\\a.tmf", imageOf(7));
    (void)watch_.look(true);
    (void)watch_.look(true);
    EXPECT_THAT(watch_.takeReloaded(), ElementsAre("c:\\a.tmf"));
    EXPECT_THAT(fake_.messages.shown, IsEmpty());
    EXPECT_THAT(fake_.fileWatcher.watched, ElementsAre("c:\\a.tmf", "c:\\b.tlf", "c:\\c.tpf", "c:\\d.tlf"));
}

} // namespace
} // namespace dyeworks
