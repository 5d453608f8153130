#include "../paint/DocTestHost.h"
#include "ui/ImagesOfPalette.h"

#include <algorithm>
#include <random>

namespace dyeworks {
namespace {

using Values = std::vector<std::uint32_t>;

/// A palette and images that show it.
class Rearranging : public testing::Test {
protected:
    void makeAll(unsigned seed) {
        random_.seed(seed);
        const std::int32_t count = below(3) == 0 ? 16 : 256;
        images_.clear();
        host_.palettes.palettes.clear();
        ASSERT_TRUE(host_.palettes.newPalette(count, below(2) == 0 ? ColourType::Rgba : ColourType::Ia, 0));
        palette_ = host_.palettes.lookup("");
        // Few colours make many twins.
        const std::int32_t colours = 2 + below(2 * count);
        for (std::int32_t i = 0; i < count; ++i)
            palette_->table.setEntry(i, static_cast<std::uint16_t>(below(colours) * 2654435 >> 3));
        for (std::int32_t n = below(4); n >= 0; --n) {
            images_.push_back(std::make_unique<CDyeworksDoc>(host_));
            CDyeworksDoc& image = *images_.back();
            image.canvas().Create(1 + below(13), 1 + below(5), 1, below(2) == 0 ? 4 : 8);
            image.setAttachedName(host_.palettes.currentKey);
            if (image.canvas().bitsPerPixel() == 4)
                image.setPaletteValue(count == 16 ? 0 : 16 * below(16));
            // Mostly entries that there are.
            const std::int32_t end = below(8) == 0 ? 256 : count;
            for (int points = 40; points > 0; --points)
                image.canvas().SetPixel(below(image.canvas().width()), below(image.canvas().height()),
                                        static_cast<std::uint32_t>(below(end)));
        }
    }
    std::int32_t below(std::int32_t end) {
        return static_cast<std::int32_t>(random_() % static_cast<unsigned>(end));
    }

    /// All entries, and all bytes of the images, those between their rows, too.
    [[nodiscard]] Values state() const {
        Values all(palette_->table.entries, palette_->table.entries + palette_->table.count);
        for (const auto& image : images_)
            std::ranges::copy(image->canvas().pixelRows(), std::back_inserter(all));
        return all;
    }
    /// The entries that all texels show; of one beyond the palette its number.
    [[nodiscard]] Values pictures() const {
        Values shown;
        for (const auto& image : images_) {
            const TextureCanvas& canvas = image->canvas();
            for (std::int32_t i = 0; i < canvas.width() * canvas.height(); ++i) {
                const auto first = canvas.bitsPerPixel() == 4 ? image->paletteValue() : 0;
                const auto index = first + static_cast<std::int32_t>(
                                               canvas.GetPixel(i % canvas.width(), i / canvas.width()));
                shown.push_back(index < palette_->table.count ? palette_->table.getEntry(index)
                                                              : 0x10000U + static_cast<unsigned>(index));
            }
        }
        return shown;
    }

    /// False when the images cannot follow.
    bool rearrange() {
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
        std::vector<CDyeworksDoc*> documents;
        for (const auto& image : images_)
            documents.push_back(image.get());
        ImagesOfPalette images(*palette_, documents, nullptr);
        const auto map = mapOf(order, palette_->table, useOfEntries(images.openImages(), count));
        if (!map)
            return false;
        for (std::int32_t entry = 0; entry < count && order.operation >= EntryOperation::Sort; ++entry) {
            EXPECT_TRUE(map->to(entry) == entry || !order.kept.test(static_cast<std::size_t>(entry)));
            EXPECT_TRUE(map->to(entry) / 16 == entry / 16 || !order.insideBanks);
        }
        return images.rearrange(*map, StringId{});
    }

    FakePlatform platform_;
    FakeImageHost host_;
    TextureLookupTable* palette_ = nullptr;
    std::vector<std::unique_ptr<CDyeworksDoc>> images_;
    std::mt19937 random_;
};

TEST_F(Rearranging, KeepsPicturesAndIsTakenBackAndDoneAgainInAllDocuments) {
    std::size_t done = 0;
    for (unsigned seed = 0; seed < 1500 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        makeAll(seed);
        const Values seen = pictures();
        std::vector<Values> states{state()};
        for (int n = 0; n < 8; ++n) {
            const bool follows = rearrange();
            ASSERT_EQ(pictures(), seen);
            if (follows)
                states.push_back(state());
            else
                ASSERT_EQ(state(), states.back());
            for (const auto& image : images_) {
                TexelCounts counts;
                counts.count(image->canvas());
                ASSERT_EQ(image->texelCounts(), counts.values());
            }
        }
        for (std::size_t n = states.size() - 1; n-- > 0; ++done) {
            ASSERT_TRUE(palette_->undo());
            ASSERT_EQ(state(), states[n]);
        }
        for (std::size_t n = 1; n < states.size(); ++n) {
            ASSERT_TRUE(palette_->redo());
            ASSERT_EQ(state(), states[n]);
        }
    }
    EXPECT_GT(done, 1500U);
    EXPECT_TRUE(platform_.messages.shown.empty());
}

} // namespace
} // namespace dyeworks
