#include "../paint/ViewTestWindow.h"
#include "paint/BmpFormat.h"
#include "paint/DrawingOptions.h"
#include "platform/posix/PosixStateFolder.h"
#include "project/CTPFFile.h"
#include "recovery/PackedPalette.h"
#include "recovery/RecoveryItem.h"
#include "recovery/RecoveryKeeper.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <set>

namespace dyeworks {
namespace {

using std::chrono::milliseconds;
using testing::IsEmpty;
using testing::SizeIs;

/// Images and palettes that come, change, are saved and go, as the keeper sees them.
class Recovery : public testing::Test {
protected:
    Recovery() { start(); }

    void start() {
        folder_.emplace(base_);
        keeper_.emplace(*folder_, RecoveryKeeper::Open{[this] {
                                                           std::vector<CDocument*> documents;
                                                           for (const auto& image : images_)
                                                               documents.push_back(image.get());
                                                           return documents;
                                                       },
                                                       [this] { return &host_.palettes; }});
    }

    /// The program is killed: the lock on its folder goes, and nothing else happens.
    void crash() {
        keeper_.reset();
        folder_.reset();
    }

    std::uint32_t any(std::uint32_t below) { return static_cast<std::uint32_t>(random_()) % below; }

    void open() {
        auto document = std::make_unique<CDyeworksDoc>(host_);
        ASSERT_TRUE(document->canvas().Create(static_cast<std::int32_t>(1 + any(300)),
                                              static_cast<std::int32_t>(1 + any(300)), 1,
                                              any(2) == 0 ? 4 : 8));
        document->setPathName("c:\\image" + std::to_string(document->number()) + ".tmf");
        images_.push_back(std::move(document));
    }

    void work() {
        CDyeworksDoc& image = *images_[any(static_cast<std::uint32_t>(images_.size()))];
        const auto x = static_cast<std::int32_t>(any(static_cast<std::uint32_t>(image.canvas().width())));
        const auto y = static_cast<std::int32_t>(any(static_cast<std::uint32_t>(image.canvas().height())));
        switch (any(9)) {
        case 0:
            open();
            break;
        case 1:
            if (images_.size() > 1)
                std::erase_if(images_, [&](const auto& one) { return one.get() == &image; });
            break;
        case 2:
            image.Undo();
            changed(image);
            break;
        case 3:
            ASSERT_TRUE(image.onSaveDocument(image.pathName()));
            break;
        case 4:
            image.setPaletteValue(static_cast<std::int32_t>(16 * any(16)));
            break;
        case 5:
            workOnPalettes();
            break;
        default:
            image.Edit(nullptr, [&](TextureCanvas& canvas) { canvas.FillBox(x, 0, x, y, any(16)); });
            keeper_->imageChanged(image, Rect{x, 0, x, y});
        }
    }

    void changed(const CDyeworksDoc& image) {
        keeper_->imageChanged(image, Rect{0, 0, image.canvas().width() - 1, image.canvas().height() - 1});
    }

    /// The first image's first texel.
    void edit(std::uint32_t value) {
        images_.front()->Edit(nullptr, [=](TextureCanvas& canvas) { canvas.PutPixel(0, 0, value); });
        changed(*images_.front());
    }

    void workOnPalettes() {
        if (host_.palettes.palettes.size() < 3)
            host_.palettes.newPalette(any(2) == 0 ? 16 : 256, ColourType::Rgba, 1);
        TextureLookupTable& palette = *host_.palettes.lookup("");
        ASSERT_TRUE(palette.beginEdit());
        palette.setEntry(static_cast<std::int32_t>(any(16)), static_cast<std::uint16_t>(random_()));
        palette.commitEdit();
    }

    /// What would have been lost, as text.
    std::multiset<std::string> unsaved() const {
        std::multiset<std::string> all;
        for (const auto& image : images_) {
            if (!image->hasUnsavedChanges())
                continue;
            const bool hasFile = !image->pathName().empty();
            all.insert(lineOf({RecoveryItem::Kind::Image, image->pathName(),
                               hasFile ? image->title() : image->displayName(), 0, image->attachedName(),
                               image->paletteValue(), hasFile, image->file().known()},
                              image->canvas().block()));
        }
        for (const auto& [key, palette] : host_.palettes.palettes)
            all.insert(lineOf({RecoveryItem::Kind::Palette, key, palette->title, 0, {}, 0},
                              packPalette(palette->table)));
        return all;
    }

    static std::string lineOf(const RecoveryItem& item, std::span<const std::byte> contents) {
        const std::string_view bytes(reinterpret_cast<const char*>(contents.data()), contents.size());
        return recoveryHeader(item) + std::to_string(std::hash<std::string_view>{}(bytes));
    }

    /// What the next run of the program is offered.
    std::multiset<std::string> offered() {
        std::multiset<std::string> all;
        for (const auto& state : PosixStateFolder(base_).left()) {
            for (const std::string& name : state->names()) {
                const auto file = state->read(name);
                auto read = parseRecoveryItem(file.value().bytes());
                EXPECT_TRUE(read) << name;
                read->item.time = 0;
                all.insert(lineOf(read->item, read->contents));
            }
        }
        return all;
    }

    FakePlatform fake_;
    FakeImageHost host_;
    std::vector<std::unique_ptr<CDyeworksDoc>> images_;
    const std::string base_ = fake_.files.hostFolder() + "/runs";
    std::optional<PosixStateFolder> folder_;
    std::optional<RecoveryKeeper> keeper_;
    std::mt19937 random_{3};
};

TEST_F(Recovery, RandomWorkIsOfferedAsItWasAndNothingElse) {
    RecoveryKeeper::Clock::time_point now;
    for (int round = 0; round < 8; ++round) {
        if (images_.empty())
            open();
        for (int i = 0; i < 60; ++i) {
            work();
            now += milliseconds(any(4000));
            (void)keeper_->look(now);
        }
        keeper_->keepNow();
        EXPECT_THAT(offered(), IsEmpty()) << "the program still runs";
        crash();
        EXPECT_EQ(offered(), unsaved());
        for (const auto& state : PosixStateFolder(base_).left())
            state->discard();
        start();
    }
}

TEST_F(Recovery, WaitsForAPauseButNotForEver) {
    open();
    RecoveryKeeper::Clock::time_point now;
    edit(20);
    (void)keeper_->look(now);
    (void)keeper_->look(now += milliseconds(1999));
    EXPECT_FALSE(std::filesystem::exists(base_)) << "the pause is too short";
    (void)keeper_->look(now += milliseconds(1));
    crash();
    EXPECT_THAT(offered(), SizeIs(1));
    PosixStateFolder(base_).left().front()->discard();
    start();
    // A change each second: kept after fifteen, with what was changed by then.
    for (std::uint32_t second = 1; second < 16; ++second) {
        edit(second);
        (void)keeper_->look(now += milliseconds(1000));
    }
    EXPECT_TRUE(std::filesystem::is_empty(base_)) << "nothing has been written yet";
    edit(0);
    (void)keeper_->look(now += milliseconds(1000));
    crash();
    EXPECT_THAT(offered(), SizeIs(1));
}

TEST_F(Recovery, AnOrderlyEndAndASaveLeaveNothing) {
    open();
    CDyeworksDoc& image = *images_.front();
    image.Edit(nullptr, [](TextureCanvas& canvas) { canvas.PutPixel(0, 0, 3); });
    keeper_->keepNow();
    ASSERT_TRUE(image.onSaveDocument(image.pathName()));
    keeper_->keepNow();
    image.Edit(nullptr, [](TextureCanvas& canvas) { canvas.PutPixel(0, 0, 4); });
    keeper_->keepNow();
    keeper_->discard();
    crash();
    EXPECT_THAT(offered(), IsEmpty());
    EXPECT_THAT(fake_.files.enumerate(fake_.files.fromHostPath(base_) + "\\*"), IsEmpty());
}

TEST_F(Recovery, WhatFloatsIsKeptAsItWouldBePlaced) {
    for (const bool wrap : {false, true}) {
        for (const Point at : {Point{0, 0}, Point{-3, 7}, Point{12, -4}, Point{13, 9}}) {
            images_.clear();
            images_.push_back(std::make_unique<CDyeworksDoc>(host_));
            CDyeworksDoc& image = *images_.front();
            ASSERT_TRUE(image.canvas().Create(16, 12, 1, 8));
            FakeViewWindow window;
            CDyeworksView view(image, window);
            view.InitialUpdate();
            auto piece = std::make_unique<TextureCanvas>();
            ASSERT_TRUE(piece->Create(7, 5, 1, 8));
            piece->FillBox(0, 0, 6, 4, 200);
            piece->PutPixel(3, 2, 100);
            ImageViewer& viewer = view;
            viewer.SetFloatingPiece(std::move(piece), StringId{});
            ASSERT_THAT(image.floatingPieces(), SizeIs(1));
            DrawingOptions options;
            options.wrap = wrap;
            setDrawingOptions(options);
            keeper_->keepNow();
            for (Point place; place.x != at.x || place.y != at.y;) {
                const Key key = place.x < at.x   ? Key::Right
                                : place.x > at.x ? Key::Left
                                : place.y < at.y ? Key::Down
                                                 : Key::Up;
                (void)view.KeyPressed({.key = key});
                place.x += key == Key::Right ? 1 : key == Key::Left ? -1 : 0;
                place.y += key == Key::Down ? 1 : key == Key::Up ? -1 : 0;
            }
            keeper_->keepNow();
            crash();
            const std::multiset<std::string> kept = offered();
            ASSERT_TRUE(viewer.CommitFloatingPiece(false));
            EXPECT_EQ(kept, unsaved()) << wrap << " " << at.x;
            for (const auto& state : PosixStateFolder(base_).left())
                state->discard();
            start();
            setDrawingOptions({});
        }
    }
}

TEST_F(Recovery, WhatHangsIsKeptAsItWasWhenItWasCalled) {
    open();
    edit(3);
    keeper_->mayHang(nullptr);
    keeper_->mayHang(nullptr);
    keeper_->cameBack();
    EXPECT_FALSE(std::filesystem::exists(base_)) << "nothing has hung yet";
    keeper_->keepWhileHanging();
    keeper_->cameBack();
    EXPECT_TRUE(std::filesystem::exists(base_));
    (void)keeper_->look(RecoveryKeeper::Clock::now());
    edit(4);
    keeper_->mayHang(nullptr);
    keeper_->keepWhileHanging();
    crash();
    EXPECT_EQ(offered(), unsaved());
}

TEST_F(Recovery, FoldersThatCannotBeWrittenAreToldAndTriedAgainAndOtherFilesPassedOver) {
    std::ofstream(base_) << "a file where the folder should be";
    open();
    edit(3);
    keeper_->keepNow();
    EXPECT_TRUE(keeper_->failure());
    std::filesystem::remove(base_);
    auto now = RecoveryKeeper::Clock::now();
    (void)keeper_->look(now);
    (void)keeper_->look(now + std::chrono::seconds(16));
    keeper_->keepNow();
    EXPECT_FALSE(keeper_->failure());
    crash();
    EXPECT_EQ(offered(), unsaved());

    for (const std::string_view text : {"", "Orrery Dyeworks recovery 1\n", "Orrery Dyeworks recovery 2\n\n",
                                        "Orrery Dyeworks recovery 1\nkind=image\ntime=x\nentry=0\n\n",
                                        "Orrery Dyeworks recovery 1\nkind=egg\ntime=1\nentry=0\n\n"})
        EXPECT_FALSE(parseRecoveryItem(std::as_bytes(std::span(text)))) << text;
}

TEST(RecoveryOfProjects, AreWhatTheirFileWouldBe) {
    FakePlatform fake;
    fake.files.putFile("c:\\a.tpf", "# kept\r\nRules.Side = 64\r\nTPF_PICTURE_0 = sky,sky.tmf,sky.tlf,2\r\n"
                                    "TPF_PICTURE_COUNT = 1\r\n");
    CTPFFile project;
    ASSERT_TRUE(project.Read("c:\\a.tpf"));
    PictureEntry entry{"sea.tmf", "sea.tlf", 1};
    project.SetPicture("sea", entry, "sky");
    project.tpfDir = "c:\\x"; // As a plug-in may set it.
    project.tmfDir = "c:\\x\\tex";
    const std::optional<std::string> text = project.fileText();
    ASSERT_TRUE(text);
    CTPFFile recovered;
    recovered.Restore("c:\\a.tpf", std::as_bytes(std::span(*text)));
    EXPECT_TRUE(recovered.IsModified());
    EXPECT_EQ(recovered.order, project.order);
    EXPECT_EQ(recovered.tmfDir, project.tmfDir);
    ASSERT_TRUE(recovered.Write("c:\\a.tpf"));
    EXPECT_EQ(fake.files.textOf("c:\\a.tpf")->size(), text->size()) << "lines may come in another order";
    EXPECT_THAT(*text, testing::HasSubstr("# kept\r\nRules.Side"));
}

} // namespace
} // namespace dyeworks
