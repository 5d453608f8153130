#include "../paint/DocTestHost.h"
#include "core/StepList.h"
#include "ui/ImagesOfPalette.h"

#include <algorithm>
#include <cstdlib>
#include <random>

namespace dyeworks {
namespace {

using Values = std::vector<std::uint32_t>;

std::mt19937 random_;

std::int32_t below(std::int32_t end) {
    return static_cast<std::int32_t>(random_() % static_cast<unsigned>(end));
}

/// A document's states as plain lists, each step with the number of the joint one that it belongs to, or 0.
struct Model {
    std::vector<Values> states;
    std::vector<int> steps;
    std::size_t at = 0;

    explicit Model(Values now)
        : states{std::move(now)} {}

    [[nodiscard]] const Values& now() const { return states[at]; }
    void add(Values next, int joint) {
        states.resize(at + 1);
        steps.resize(at);
        states.push_back(std::move(next));
        steps.push_back(joint);
        ++at;
    }
    void forget() { *this = Model(now()); }
    /// The joint number of the step that undo (redo) would take; -1 when there is none.
    [[nodiscard]] int next(bool back) const {
        if (back)
            return at == 0 ? -1 : steps[at - 1];
        return at == steps.size() ? -1 : steps[at];
    }
    [[nodiscard]] bool reaches(bool back, int joint) const {
        const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(at);
        return back ? std::find(steps.begin(), middle, joint) != middle
                    : std::find(middle, steps.end(), joint) != steps.end();
    }
    void go(bool back) { at = back ? at - 1 : at + 1; }
};

/// A palette and its images, and the same as models; the palette is the first.
class Rearranging : public testing::Test {
protected:
    void makeAll() {
        const std::int32_t count = below(3) == 0 ? 16 : 256;
        host_.palettes.palettes.clear();
        ASSERT_TRUE(host_.palettes.newPalette(count, below(2) == 0 ? ColourType::Rgba : ColourType::Ia, 0));
        palette_ = host_.palettes.lookup("");
        // Few colours make many twins.
        const std::int32_t colours = 2 + below(2 * count);
        for (std::int32_t i = 0; i < count; ++i)
            palette_->table.setEntry(i, static_cast<std::uint16_t>(below(colours) * 2654435 >> 3));
        models_.assign(1, Model(entries()));
        images_.clear();
        for (std::int32_t n = below(4); n >= 0; --n) {
            images_.push_back(std::make_unique<CDyeworksDoc>(host_));
            CDyeworksDoc& image = *images_.back();
            image.canvas().Create(1 + below(13), 1 + below(5), 1, below(2) == 0 ? 4 : 8);
            image.setAttachedName(host_.palettes.currentKey);
            if (image.canvas().bitsPerPixel() == 4)
                image.setPaletteValue(count == 16 ? 0 : 16 * below(16));
            draw(image.canvas(), 40);
            models_.emplace_back(texels(image));
        }
    }

    /// Mostly entries that there are.
    void draw(TextureCanvas& canvas, int points) {
        const std::int32_t end = below(8) == 0 ? 256 : palette_->table.count;
        for (; points > 0; --points)
            canvas.SetPixel(below(canvas.width()), below(canvas.height()),
                            static_cast<std::uint32_t>(below(end)));
    }

    [[nodiscard]] Values entries() const {
        return {palette_->table.entries, palette_->table.entries + palette_->table.count};
    }
    /// All bytes, those between the rows, too.
    static Values texels(const CDyeworksDoc& image) {
        const auto rows = image.canvas().pixelRows();
        return {rows.begin(), rows.end()};
    }
    [[nodiscard]] Values state(std::size_t document) const {
        return document == 0 ? entries() : texels(*images_[document - 1]);
    }
    /// The entries that the texels show; of one beyond the palette its number.
    [[nodiscard]] Values picture(const CDyeworksDoc& image) const {
        Values shown;
        for (std::int32_t y = 0; y < image.canvas().height(); ++y) {
            for (std::int32_t x = 0; x < image.canvas().width(); ++x) {
                const auto first = image.canvas().bitsPerPixel() == 4 ? image.paletteValue() : 0;
                const auto index = first + static_cast<std::int32_t>(image.canvas().GetPixel(x, y));
                shown.push_back(index < palette_->table.count ? palette_->table.getEntry(index)
                                                              : 0x10000U + static_cast<unsigned>(index));
            }
        }
        return shown;
    }
    [[nodiscard]] std::vector<CDyeworksDoc*> documents() const {
        std::vector<CDyeworksDoc*> all;
        for (const auto& image : images_)
            all.push_back(image.get());
        return all;
    }

    void rearrange() {
        const std::int32_t count = palette_->table.count;
        EntryOrder order;
        order.operation = static_cast<EntryOperation>(below(5));
        order.range.first = below(count);
        order.range.last = order.range.first + below(count - order.range.first);
        order.target = below(count);
        order.key = static_cast<EntrySortKey>(below(4));
        order.reversed = below(2) == 0;
        order.insideBanks = below(2) == 0;
        order.kept.set(0, below(2) == 0).set(static_cast<std::size_t>(below(count)));
        ImagesOfPalette images(*palette_, documents(), nullptr);
        const auto map = mapOf(order, palette_->table, useOfEntries(images.openImages(), count));
        if (!map)
            return;
        std::vector<Values> pictures;
        for (const auto& image : images_)
            pictures.push_back(picture(*image));
        if (order.operation >= EntryOperation::Sort) {
            for (std::int32_t entry = 0; entry < count; ++entry) {
                ASSERT_TRUE(map->to(entry) == entry || !order.kept.test(static_cast<std::size_t>(entry)));
                ASSERT_TRUE(map->to(entry) / 16 == entry / 16 || !order.insideBanks);
            }
        }
        const bool done = images.rearrange(*map, StringId{});
        for (std::size_t i = 0; i < images_.size(); ++i)
            ASSERT_EQ(picture(*images_[i]), pictures[i]);
        if (!done)
            return;
        ++joint_;
        models_[0].add(entries(), joint_);
        for (std::size_t i = 0; i < images_.size(); ++i) {
            const std::int32_t first =
                images_[i]->canvas().bitsPerPixel() == 4 ? images_[i]->paletteValue() : 0;
            const std::int32_t values = 1 << images_[i]->canvas().bitsPerPixel();
            bool affected = false;
            for (std::int32_t entry = first; entry < std::min(first + values, count); ++entry)
                affected = affected || map->to(entry) != entry;
            if (affected)
                models_[i + 1].add(texels(*images_[i]), joint_);
        }
    }

    /// Takes a step in one document, and first what the others have before it.
    void step(std::size_t document, bool back, std::vector<Model>& models) const {
        const int joint = models[document].next(back);
        if (joint == 0) {
            models[document].go(back);
            return;
        }
        for (std::size_t other = 0; other < models.size(); ++other) {
            while (models[other].reaches(back, joint) && models[other].next(back) != joint)
                step(other, back, models);
        }
        for (Model& other : models) {
            if (other.next(back) == joint)
                other.go(back);
        }
    }

    void undoOrRedo() {
        const auto document = static_cast<std::size_t>(below(static_cast<std::int32_t>(models_.size())));
        const bool back = below(3) != 0;
        std::vector<Model> after = models_;
        if (after[document].next(back) >= 0)
            step(document, back, after);
        const bool agrees = below(3) != 0;
        platform_.messages.answerWith(agrees ? MessageAnswer::Yes : MessageAnswer::No);
        const std::size_t asked = platform_.messages.shown.size();
        if (document == 0)
            back ? palette_->undo() : palette_->redo();
        else
            back ? images_[document - 1]->Undo() : images_[document - 1]->Redo();
        if (platform_.messages.shown.size() == asked)
            platform_.messages.show({}); // takes the answer
        else if (!agrees)
            return;
        models_ = std::move(after);
    }

    /// To any state of a document. Where the user leaves a step that others have to take, too, it is as if he
    /// had chosen the state before that.
    void jump() {
        const auto document = static_cast<std::size_t>(below(static_cast<std::int32_t>(models_.size())));
        Model& model = models_[document];
        JointDocument& side = document == 0 ? palette_->jointSide() : images_[document - 1]->jointSide();
        const std::vector<StepRow> rows = stepsOf(side.jointHistory());
        ASSERT_EQ(rows.size(), model.states.size());
        const auto row = static_cast<std::size_t>(below(static_cast<std::int32_t>(rows.size())));
        const bool back = row < model.at;
        const bool agrees = below(3) != 0;
        platform_.messages.onShow = [&] {
            platform_.messages.answerWith(agrees ? MessageAnswer::Yes : MessageAnswer::No);
        };
        const std::size_t asked = platform_.messages.shown.size();
        const bool arrived = document == 0 ? palette_->goTo(rows[row].position)
                                           : images_[document - 1]->GoTo(rows[row].position);
        platform_.messages.onShow = nullptr;
        ASSERT_EQ(arrived, agrees || platform_.messages.shown.size() == asked);
        const std::size_t reached = currentRow(rows, side.jointHistory());
        ASSERT_TRUE(arrived ? reached == row
                    : back  ? reached > row && reached <= model.at
                            : reached < row && reached >= model.at);
        while (model.at != reached)
            step(document, back, models_);
    }

    void change() {
        const auto which = static_cast<std::size_t>(below(static_cast<std::int32_t>(images_.size())));
        CDyeworksDoc& image = *images_[which];
        switch (below(12)) {
        case 0:
            image.ClearUndo();
            models_[which + 1].forget();
            break;
        case 1:
            if (images_.size() == 1)
                break;
            images_.erase(images_.begin() + static_cast<std::ptrdiff_t>(which));
            models_.erase(models_.begin() + static_cast<std::ptrdiff_t>(which) + 1);
            break;
        case 2:
        case 3:
            palette_->beginEdit();
            palette_->setEntry(below(palette_->table.count), static_cast<std::uint16_t>(below(65536)));
            palette_->commitEdit();
            models_[0].add(entries(), 0);
            break;
        default: {
            const std::int32_t before = image.edits().position();
            image.Edit(nullptr, [this](TextureCanvas& canvas) { draw(canvas, 3); });
            if (image.edits().position() != before)
                models_[which + 1].add(texels(image), 0);
            break;
        }
        }
    }

    FakePlatform platform_;
    FakeImageHost host_;
    TextureLookupTable* palette_ = nullptr;
    std::vector<std::unique_ptr<CDyeworksDoc>> images_;
    std::vector<Model> models_;
    int joint_ = 0;
};

TEST_F(Rearranging, KeepsPicturesAndIsTakenBackEverywhereLikeThePlainModel) {
    // DYEWORKS_SEQUENCES=20000 for a long run.
    const char* const wanted = std::getenv("DYEWORKS_SEQUENCES");
    const int sequences = wanted == nullptr ? 2000 : std::atoi(wanted);
    for (int sequence = 0; sequence < sequences; ++sequence) {
        SCOPED_TRACE(sequence);
        random_.seed(static_cast<unsigned>(sequence));
        makeAll();
        for (int n = 0; n < 24; ++n) {
            const std::int32_t what = below(10);
            what < 3 ? rearrange() : what < 6 ? undoOrRedo() : what < 7 ? jump() : change();
            for (std::size_t document = 0; document < models_.size(); ++document)
                ASSERT_EQ(state(document), models_[document].now())
                    << "step " << n << " document " << document;
            for (const auto& image : images_) {
                TexelCounts counts;
                counts.count(image->canvas());
                ASSERT_EQ(image->texelCounts(), counts.values()) << "step " << n;
            }
        }
    }
    EXPECT_GT(joint_, sequences);
}

} // namespace
} // namespace dyeworks
