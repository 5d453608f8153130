#include "CanvasTesting.h"
#include "DocTestHost.h"

#include <algorithm>
#include <functional>

namespace dyeworks {
namespace {

/// The same document with a whole copy of the image wherever one is needed.
class WholeCopies {
public:
    explicit WholeCopies(std::uint16_t bits) { EXPECT_TRUE(canvas.Create(23, 17, 1, bits)); }

    void edit(const std::function<void(TextureCanvas&)>& draw) {
        Step step{canvas.Clone(), nullptr, {99, 99, -1, -1}};
        draw(canvas);
        step.after = canvas.Clone();
        Rect& area = step.area;
        for (std::int32_t i = 0; i < canvas.width() * canvas.height(); ++i) {
            const Point at{i % canvas.width(), i / canvas.width()};
            if (step.before->GetPixel(at.x, at.y) != canvas.GetPixel(at.x, at.y))
                area = {std::min(area.left, at.x), std::min(area.top, at.y), std::max(area.right, at.x),
                        std::max(area.bottom, at.y)};
        }
        if (area.right < 0)
            return;
        steps.resize(position);
        steps.push_back(std::move(step));
        if (steps.size() > 100)
            steps.erase(steps.begin());
        position = steps.size();
    }
    void undo() {
        if (position == 0)
            return;
        const Step& step = steps[--position];
        put(*step.before, step.area);
    }
    void redo() {
        if (position == steps.size())
            return;
        const Step& step = steps[position++];
        put(*step.after, step.area);
    }

    struct Step {
        std::unique_ptr<TextureCanvas> before, after;
        Rect area;
    };
    TextureCanvas canvas;
    std::vector<Step> steps;
    std::size_t position = 0;

private:
    void put(const TextureCanvas& from, const Rect& area) {
        for (std::int32_t y = area.top; y <= area.bottom; ++y) {
            for (std::int32_t x = area.left; x <= area.right; ++x)
                canvas.SetPixel(x, y, from.GetPixel(x, y));
        }
    }
};

class DocSnapshot : public DocFixture, public testing::WithParamInterface<std::uint16_t> {
protected:
    /// One thing done to both; what it was.
    std::string step() {
        const Rect at{random.between(-3, 25), random.between(-3, 19), random.between(-3, 25),
                      random.between(-3, 19)};
        const std::uint32_t value = random.bits() % 4;
        TextureCanvas& drawn = document.canvas();
        const auto line = [=](TextureCanvas& to) {
            to.DrawLine(at.left, at.top, at.right, at.bottom, value);
        };
        // At 4 bits a step holds both pixels of a byte, which shows once somebody went past the history.
        switch (random.between(0, GetParam() == 4 ? 10 : 12)) {
        case 0:
            edit(line);
            return "line";
        case 1:
            edit([=](TextureCanvas& to) { to.Flip(at.left, at.top, at.right, at.bottom, value); });
            return "flip";
        case 2:
            edit([=](TextureCanvas& to) { to.FloodFill(at.left, at.top, value); });
            return "fill";
        case 3:
        case 4:
            edit([=](TextureCanvas& to) { to.PutPixel(at.left, at.top, value); });
            return "pixel";
        case 5: {
            TextureCanvas other;
            EXPECT_TRUE(other.CreateLike(drawn));
            line(other);
            document.SetImage(*other.ToImage());
            model.edit([&](TextureCanvas& to) { to.CopyFrom(other); });
            return "image";
        }
        case 6:
        case 7:
            document.Undo();
            model.undo();
            return "undo";
        case 8:
            document.Redo();
            model.redo();
            return "redo";
        case 9: // a pen, which shows each part at once
            EXPECT_NE(document.BeginEdit(nullptr), nullptr);
            for (int n = 0; n < 3; ++n) {
                drawn.DrawLine(at.left, at.top, at.right + n, at.bottom, value);
                document.ShowEdit();
            }
            document.CommitEdit();
            model.edit([&](TextureCanvas& to) {
                for (int n = 0; n < 3; ++n)
                    to.DrawLine(at.left, at.top, at.right + n, at.bottom, value);
            });
            return "stroke";
        case 10: { // a rubber band that is let go of, by itself or for another edit
            ImageEdit* const band = document.BeginEdit(nullptr);
            for (int n = 0; n < 3; ++n) {
                band->takeBack();
                drawn.FillBox(at.left + n, at.top, at.right, at.bottom - n, value);
                if (n == 1)
                    document.ShowEdit();
            }
            if (value == 0) {
                edit(line);
                return "line instead";
            }
            document.DropEdit();
            return "drop";
        }
        case 11: // somebody who goes past the history
            line(drawn);
            line(model.canvas);
            if (value == 0)
                drawn.ResetChangedRect();
            return "direct";
        default:
            if (value != 0) {
                document.RefreshPalette();
                return "palette";
            }
            EXPECT_TRUE(drawn.CreateLike(drawn) && model.canvas.CreateLike(model.canvas));
            return "blank";
        }
    }

    void edit(const std::function<void(TextureCanvas&)>& draw) {
        document.Edit(nullptr, draw);
        model.edit(draw);
    }

    Random random{GetParam()};
    WholeCopies model{GetParam()};
};

TEST_P(DocSnapshot, LongSessionAgreesWithWholeCopies) {
    ASSERT_TRUE(document.canvas().CreateLike(model.canvas));
    std::string last;
    for (int n = 0; n < 6000; ++n) {
        last = step() + " after " + last.substr(0, 60);
        ASSERT_EQ(rowsOf(document.canvas()), rowsOf(model.canvas)) << n << ": " << last;
        ASSERT_EQ(document.edits().canUndo(), model.position > 0) << n << ": " << last;
        ASSERT_EQ(document.edits().canRedo(), model.position < model.steps.size()) << n << ": " << last;
    }
}

INSTANTIATE_TEST_SUITE_P(Depths, DocSnapshot, testing::Values(std::uint16_t{4}, std::uint16_t{8}));

} // namespace
} // namespace dyeworks
