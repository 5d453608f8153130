#include "CanvasTesting.h"
#include "ViewTestWindow.h"
#include "core/StepList.h"
#include "paint/CanvasDepth.h"
#include "paint/CanvasTransform.h"
#include "platform/StringId.h"

#include <cstdlib>

namespace dyeworks {
namespace {

/// A picture as a list of rows, and each edit as its rule says it, one texel after the other.
struct Plain {
    std::vector<std::vector<std::uint32_t>> rows;
    int bits = 4;

    int width() const { return static_cast<int>(rows[0].size()); }
    int height() const { return static_cast<int>(rows.size()); }

    template <typename Value>
    static Plain of(int width, int height, int bits, Value value) {
        Plain plain;
        plain.bits = bits;
        for (int y = 0; y < height; ++y) {
            auto& row = plain.rows.emplace_back();
            for (int x = 0; x < width; ++x)
                row.push_back(value(x, y));
        }
        return plain;
    }
    std::uint32_t at(int x, int y) const {
        return rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
    }
    bool has(int x, int y) const { return x >= 0 && y >= 0 && x < width() && y < height(); }
};

/// What a document must be like: all its states, and which of them it is in.
struct Model {
    std::vector<Plain> states{Plain::of(16, 12, 4, [](int, int) { return 0U; })};
    std::size_t position = 0;
    bool modified = false;

    const Plain& now() const { return states[position]; }
    void become(Plain next) {
        if (next.rows == now().rows && next.bits == now().bits)
            return;
        states.resize(position + 1);
        states.push_back(std::move(next));
        if (states.size() > 101)
            states.erase(states.begin());
        position = states.size() - 1;
        modified = true;
    }
    void move(bool back) {
        if (back ? position == 0 : position + 1 == states.size())
            return;
        position = back ? position - 1 : position + 1;
        modified = position != 0;
    }
};

class ImageSize : public ViewFixture {
protected:
    void SetUp() override { document.setPathName("c:\\a.tmf"); }

    /// Edits document and model alike.
    void edit(Random& random, Model& model) {
        const Plain& old = model.now();
        const int w = old.width();
        const int h = old.height();
        const int x = random.between(-2, w + 1);
        const int y = random.between(-2, h + 1);
        const auto value = random.bits() & (old.bits == 4 ? 15U : 255U);
        switch (random.between(0, 12)) {
        case 5: {
            const auto row =
                static_cast<std::size_t>(random.between(0, static_cast<int>(model.states.size()) - 1));
            EXPECT_TRUE(document.GoTo(stepsOf(document.edits()).at(row).position));
            if (row != std::exchange(model.position, row))
                model.modified = row != 0;
            break;
        }
        case 0:
            model.move(true);
            document.Undo();
            break;
        case 1:
            model.move(false);
            document.Redo();
            break;
        case 2:
            // Each goes to the disk.
            if (!random.once(100))
                break;
            document.save();
            model.modified = false;
            break;
        case 3:
            pixel(x, y, value);
            model.become(Plain::of(w, h, old.bits,
                                   [&](int i, int j) { return i == x && j == y ? value : old.at(i, j); }));
            break;
        case 4:
            document.Edit(&view, [&](TextureCanvas& canvas) { canvas.FillBox(x, y, w, h / 2, value); });
            model.become(Plain::of(w, h, old.bits, [&](int i, int j) {
                return i >= x && j >= std::min(y, h / 2) && j <= std::max(y, h / 2) ? value : old.at(i, j);
            }));
            break;
        case 6:
        case 7: {
            const Size size{random.between(1, 20), random.between(1, 20)};
            const int number = random.between(0, 8);
            const Point place = anchored({w, h}, size, static_cast<Anchor>(number));
            // Floor of half the room, whatever its sign.
            const auto of = [](int part, int room) { return part * room >> 1; };
            EXPECT_EQ(place, (Point{of(number % 3, size.width - w), of(number / 3, size.height - h)}));
            replace([&](const auto& canvas) { return resized(canvas, size, place, value); });
            model.become(Plain::of(size.width, size.height, old.bits, [&](int i, int j) {
                return old.has(i - place.x, j - place.y) ? old.at(i - place.x, j - place.y) : value;
            }));
            break;
        }
        case 8: {
            const Size size{random.once(2) ? 2 * w : random.between(1, 20), random.between(1, 20)};
            if (size.width > 40)
                break;
            replace([&](const auto& canvas) { return scaled(canvas, size); });
            model.become(Plain::of(size.width, size.height, old.bits, [&](int i, int j) {
                return old.at((2 * i + 1) * w / (2 * size.width), (2 * j + 1) * h / (2 * size.height));
            }));
            break;
        }
        case 9: {
            const Point by{random.between(-50, 50), random.between(-50, 50)};
            replace([&](const auto& canvas) { return shifted(canvas, by); });
            model.become(Plain::of(w, h, old.bits, [&](int i, int j) {
                return old.at((i - by.x + 100 * w) % w, (j - by.y + 100 * h) % h);
            }));
            break;
        }
        case 10: {
            const auto turn = static_cast<Turn>(random.between(0, 2));
            replace([&](const auto& canvas) { return turned(canvas, turn); });
            const bool half = turn == Turn::Half;
            model.become(Plain::of(half ? w : h, half ? h : w, old.bits, [&](int i, int j) {
                return half                  ? old.at(w - 1 - i, h - 1 - j)
                       : turn == Turn::Right ? old.at(j, h - 1 - i)
                                             : old.at(w - 1 - j, i);
            }));
            break;
        }
        default: {
            const int bank = random.between(0, 15);
            IndexMap map;
            std::ranges::generate(map, [&] { return static_cast<std::uint8_t>(random.bits() & 15U); });
            const bool wider = old.bits == 4;
            replace([&](const auto& canvas) {
                return wider ? inEightBits(canvas, bank) : inFourBits(canvas, map, bank);
            });
            model.become(Plain::of(w, h, wider ? 8 : 4, [&](int i, int j) -> std::uint32_t {
                return wider ? static_cast<std::uint32_t>(bank) * 16 + old.at(i, j) : map[old.at(i, j)];
            }));
        }
        }
    }

    void replace(const CDyeworksDoc::CanvasMaker& make) { EXPECT_TRUE(document.ReplaceImage(make)); }

    void expectAlike(const Model& model) {
        const TextureCanvas& canvas = document.canvas();
        const Plain& plain = model.now();
        ASSERT_EQ(canvas.width(), plain.width());
        ASSERT_EQ(canvas.height(), plain.height());
        ASSERT_EQ(canvas.bitsPerPixel(), plain.bits);
        ASSERT_EQ(window.content, (Size{canvas.width(), canvas.height()}));
        for (int y = 0; y < plain.height(); ++y) {
            for (int x = 0; x < plain.width(); ++x)
                ASSERT_EQ(canvas.GetPixel(x, y), plain.at(x, y)) << x << " " << y;
        }
        ASSERT_EQ(document.isModified(), model.modified);
        ASSERT_EQ(document.title(), model.modified ? "a.tmf * " : "a.tmf");
        ASSERT_EQ(document.edits().canUndo(), model.position > 0);
        ASSERT_EQ(document.edits().canRedo(), model.position + 1 < model.states.size());
        const std::vector<StepRow> rows = stepsOf(document.edits());
        ASSERT_EQ(rows.size(), model.states.size());
        ASSERT_EQ(currentRow(rows, document.edits()), model.position);
    }

    /// Padding is what a file of the canvas holds, too.
    void expectCleanPadding() {
        const TextureCanvas& canvas = document.canvas();
        const auto copy =
            TextureCanvas(*canvas.ToImage()).CopyRect(0, 0, canvas.width() - 1, canvas.height() - 1);
        ASSERT_TRUE(std::ranges::equal(copy->pixelRows(), canvas.pixelRows()));
    }
};

// DYEWORKS_IMAGE_SEQUENCES asks for another number of sequences.
TEST_F(ImageSize, EditsUndoAndRedoDoWhatTheirRulesSay) {
    const char* const wanted = std::getenv("DYEWORKS_IMAGE_SEQUENCES");
    const int sequences = wanted == nullptr ? 3000 : std::atoi(wanted);
    for (int sequence = 0; sequence < sequences; ++sequence) {
        Random random(static_cast<unsigned>(sequence));
        Model model;
        while (document.Undo())
            continue;
        document.ClearUndo();
        document.canvas().Create(16, 12, 1, 4);
        view.SetZoom(1);
        const int length = random.once(50) ? 200 : random.between(1, 30);
        for (int n = 0; n < length; ++n) {
            edit(random, model);
            expectAlike(model);
            if (HasFatalFailure())
                FAIL() << "sequence " << sequence << " step " << n;
        }
        expectCleanPadding();
        if (HasFatalFailure())
            FAIL() << "sequence " << sequence;
    }
}

TEST_F(ImageSize, QuarterTurnsAgreeWithSingleTexelsAtAnySizeAndDepth) {
    Random random(1);
    for (const std::uint16_t bits : std::initializer_list<std::uint16_t>{1, 4, 8, 16, 24, 32}) {
        for (const Size size : {Size{64, 64}, Size{65, 63}, Size{1, 130}, Size{129, 1}, Size{200, 71}}) {
            TextureCanvas canvas;
            ASSERT_TRUE(canvas.Create(size.width, size.height, 1, bits));
            for (std::int32_t n = 0; n < size.width * size.height; ++n)
                canvas.SetPixel(n % size.width, n / size.width, random.bits());
            const auto right = turned(canvas, Turn::Right);
            const auto back = turned(*right, Turn::Left);
            for (std::int32_t n = 0; n < size.width * size.height; ++n)
                ASSERT_EQ(right->GetPixel(size.height - 1 - n / size.width, n % size.width),
                          canvas.GetPixel(n % size.width, n / size.width));
            EXPECT_TRUE(std::ranges::equal(back->block(), canvas.block())) << bits;
        }
    }
}

TEST_F(ImageSize, WithoutMemoryEverythingStays) {
    pixel(1, 1, 5);
    const auto before = pixels();
    view.selection().select(Rect{1, 1, 4, 4}, false);
    EXPECT_FALSE(document.ReplaceImage([](const auto&) { return nullptr; }));
    EXPECT_EQ(platform.messages.lastText(), text(StringId::NotEnoughMemory));
    EXPECT_EQ(pixels(), before);
    EXPECT_EQ(document.edits().steps->count(), 1);
    EXPECT_TRUE(view.selection().texels());
    view.selection().setFloatingPiece(document.canvas().CopyRect(0, 0, 2, 2), StringId{});
    EXPECT_FALSE(document.ReplaceImage([](const auto&) { return nullptr; }));
    EXPECT_TRUE(view.selection().hasFloatingPiece());
    EXPECT_EQ(resized(document.canvas(), {65536, 65536}, {}, 0), nullptr);
}

} // namespace
} // namespace dyeworks
