#include "DocTestHost.h"
#include "core/JointStep.h"
#include "paint/IndexThumbnail.h"
#include "paint/RenumberRecord.h"

#include <algorithm>
#include <numeric>
#include <random>

namespace dyeworks {
namespace {

TexelCounts::Values counted(const TextureCanvas& canvas) {
    TexelCounts::Values values{};
    for (std::int32_t y = 0; y < canvas.height(); ++y) {
        for (std::int32_t x = 0; x < canvas.width(); ++x)
            ++values.at(canvas.GetPixel(x, y));
    }
    return values;
}

/// What the host is told of an image is enough to keep a thumbnail of it.
class ThumbnailHost : public FakeImageHost {
public:
    void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) override {
        const TextureCanvas& canvas = image.canvas();
        if (size != Size{canvas.width(), canvas.height()})
            thumbnail.take(canvas, room);
        else if (texels)
            static_cast<void>(thumbnail.update(canvas, *texels));
        size = {canvas.width(), canvas.height()};
    }
    IndexThumbnail thumbnail;
    Size room{50, 40};
    Size size;
};

class Counts : public testing::TestWithParam<std::uint16_t> {
protected:
    std::int32_t upTo(std::int32_t end) {
        return static_cast<std::int32_t>(random_() % static_cast<unsigned>(end));
    }
    std::uint32_t value() { return static_cast<std::uint32_t>(upTo(1 << GetParam())); }

    void stroke(bool commit) {
        TextureCanvas& canvas = document_.canvas();
        ASSERT_NE(document_.BeginEdit(nullptr), nullptr);
        const std::uint32_t ink = value();
        for (std::int32_t moves = upTo(6); moves >= 0; --moves) {
            canvas.DrawLine(upTo(260) - 20, upTo(200) - 20, upTo(260) - 20, upTo(200) - 20, ink);
            document_.ShowEdit();
            expectThumbnail();
            // Asked for in the middle of an edit, too.
            if (upTo(4) == 0)
                static_cast<void>(document_.texelCounts());
        }
        commit ? document_.CommitEdit() : document_.DropEdit();
    }
    std::vector<std::uint32_t> texels() const {
        const TextureCanvas& canvas = document_.canvas();
        std::vector<std::uint32_t> all;
        for (std::int32_t y = 0; y < canvas.height(); ++y) {
            for (std::int32_t x = 0; x < canvas.width(); ++x)
                all.push_back(canvas.GetPixel(x, y));
        }
        return all;
    }
    void anyStep() {
        switch (upTo(10)) {
        case 0:
            document_.Undo();
            break;
        case 1:
            document_.Redo();
            break;
        case 2:
            document_.ReplaceImage([this](const TextureCanvas& canvas) {
                return canvas.CopyRect(upTo(5), upTo(5), canvas.width() - 1 - upTo(5), canvas.height() - 1);
            });
            break;
        case 3:
            document_.Edit(nullptr, [this](TextureCanvas& canvas) {
                canvas.ReplaceColor({0, 0, canvas.width() - 1, canvas.height() - 1}, upTo(100), upTo(100),
                                    value());
            });
            break;
        case 4:
            document_.setSnapshotFactory([](const auto&) { return nullptr; });
            document_.Edit(nullptr,
                           [this](TextureCanvas& canvas) { canvas.Flip(0, 0, upTo(99), upTo(99), 3); });
            document_.setSnapshotFactory([](const auto& canvas) { return canvas.Clone(); });
            break;
        case 5:
            document_.Edit(nullptr, [this](TextureCanvas& canvas) {
                canvas.FillBox(upTo(200), upTo(200), upTo(200), upTo(200), value());
            });
            break;
        case 6: { // With a way back, or two values come together.
            ByteTable map;
            std::iota(map.begin(), map.end(), std::uint8_t{0});
            const std::uint32_t from = value();
            const std::uint32_t to = value();
            map.at(from) = static_cast<std::uint8_t>(to);
            if (upTo(2) == 0)
                map.at(to) = static_cast<std::uint8_t>(from);
            const std::vector<std::uint32_t> before = texels();
            std::vector<JointStep::Change> changes;
            changes.push_back({&document_.jointSide(),
                               RenumberRecord::make(document_.canvas(), document_.texelCounts(), map)});
            ASSERT_TRUE(JointStep::carryOut(std::move(changes)));
            std::vector<std::uint32_t> wanted = before;
            std::ranges::for_each(wanted, [&](std::uint32_t& texel) { texel = map.at(texel); });
            ASSERT_EQ(texels(), wanted);
            document_.Undo();
            ASSERT_EQ(texels(), before);
            document_.Redo();
            ASSERT_EQ(texels(), wanted);
            break;
        }
        default:
            stroke(upTo(4) != 0);
        }
    }
    void expectThumbnail() {
        IndexThumbnail fresh;
        fresh.take(document_.canvas(), host_.room);
        ASSERT_EQ(picture(host_.thumbnail), picture(fresh));
    }
    static std::vector<std::uint32_t> picture(const IndexThumbnail& thumbnail) {
        IndexThumbnail::Colours colours;
        for (std::uint32_t i = 0; i < 256; ++i)
            colours[i] = i;
        const auto width = static_cast<std::size_t>(thumbnail.size().width);
        std::vector<std::uint32_t> pixels(width * static_cast<std::size_t>(thumbnail.size().height));
        thumbnail.colour(colours, thumbnail.whole(), pixels.data(), thumbnail.size().width);
        return pixels;
    }

    FakePlatform platform_;
    ThumbnailHost host_;
    CDyeworksDoc document_{host_};
    std::mt19937 random_{4711U + GetParam()};
};

TEST_P(Counts, AnySequenceOfEditsLeavesWhatAFreshCountFinds) {
    ASSERT_TRUE(document_.canvas().Create(221, 165, 1, GetParam()));
    host_.imageChanged(document_, std::nullopt);
    for (int step = 0; step < 600; ++step) {
        platform_.messages.answerWith(MessageAnswer::Yes);
        anyStep();
        if (upTo(3) == 0) {
            ASSERT_EQ(document_.texelCounts(), counted(document_.canvas())) << step;
        }
        ASSERT_NO_FATAL_FAILURE(expectThumbnail()) << step;
        if (document_.canvas().height() < 120 || document_.canvas().width() < 120) {
            ASSERT_TRUE(document_.ReplaceImage([](const TextureCanvas& canvas) {
                auto larger = std::make_unique<TextureCanvas>();
                static_cast<void>(larger->Create(240, 181, 1, canvas.bitsPerPixel()));
                larger->StretchPaste(canvas, 0, 0, 240, 181);
                return larger;
            }));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Depths, Counts, testing::Values(1, 4, 8));

} // namespace
} // namespace dyeworks
