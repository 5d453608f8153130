#pragma once

#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "paint/ImagePlugIns.h"
#include "paint/OpenProject.h"
#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

/// Plug-ins that note their calls, and what they see, in a line of text each.
class FakeImagePlugIns : public ImagePlugIns {
public:
    std::vector<std::string> importNames() const override { return names; }
    std::vector<std::string> exportNames() const override { return names; }
    std::unique_ptr<TextureCanvas> ImportImage(std::int32_t index, TmfImage* image, TlutData* palette,
                                               std::int32_t paletteNumber) override {
        note("import", index, image, palette, paletteNumber);
        if (texelOnImport != 0)
            image->setTexel(0, 0, texelOnImport);
        if (onImport)
            onImport();
        return nullptr;
    }
    bool ExportImage(std::int32_t index, TmfImage* image, TlutData* palette,
                     std::int32_t paletteNumber) override {
        note("export", index, image, palette, paletteNumber);
        return true;
    }
    std::uint32_t PreviewImage(TmfImage* image, TlutData* palette, std::int32_t paletteNumber,
                               std::int32_t which) override {
        note("preview", which, image, palette, paletteNumber);
        if (onPreview)
            onPreview();
        return 1;
    }
    void PreviewOff(std::int32_t which) override { calls.push_back("off " + std::to_string(which)); }
    void note(const char* call, std::int32_t number, const TmfImage* image, const TlutData* palette,
              std::int32_t paletteNumber) {
        calls.push_back(call + (" " + std::to_string(number)) + " texel " +
                        std::to_string(image->getTexel(0, 0)) + " of " +
                        std::to_string(palette == nullptr ? 0 : palette->count) + " from " +
                        std::to_string(paletteNumber));
    }
    /// The calls since the last time.
    std::vector<std::string> take() { return std::exchange(calls, {}); }

    std::vector<std::string> names;
    std::vector<std::string> calls;
    std::uint32_t texelOnImport = 0;
    std::function<void()> onImport;
    std::function<void()> onPreview; ///< What a preview lets happen before it returns.
};

/// A project that notes the pictures that are added to it.
class FakeProject : public OpenProject {
public:
    std::string imageDirectory() const override { return "c:\\proj"; }
    std::string paletteDirectory() const override { return "c:\\proj\\pal"; }
    bool AddPicture(const std::optional<std::string>& name, const std::optional<std::string>& imageFile,
                    const std::optional<std::string>& paletteFile, std::int32_t paletteNumber,
                    const std::optional<std::string>& after, bool silent) override {
        EXPECT_FALSE(name || after || silent);
        EXPECT_EQ(paletteNumber, 0);
        added.push_back(imageFile.value_or("none") + "," + paletteFile.value_or("none"));
        return true;
    }
    std::vector<std::string> PicturesOfOtherNumber(const std::string& imageFile,
                                                   std::int32_t paletteNumber) const override {
        return imageFile == "c:\\a.tmf" && paletteNumber != 3 ? std::vector<std::string>{"sky", "sea"}
                                                              : std::vector<std::string>();
    }
    std::vector<std::string> added;
};

/// An application with a palette bar and a status line that only remember.
class FakeImageHost : public ImageHost {
public:
    PaletteSet* paletteSet() override { return &palettes; }
    std::int32_t paletteBarFirstEntry() const override { return firstEntry; }
    std::int32_t paletteBarCell() const override { return cell; }
    void selectPaletteBarCell(std::int32_t which) override { cell = which; }
    void refreshPaletteBar() override { ++barRefreshes; }
    std::optional<std::string> savePaletteAs(const std::string& key) override {
        const TextureLookupTable* const palette = palettes.lookup(key);
        return palettes.savePaletteAs(key, true) ? std::optional(palette->path) : std::nullopt;
    }
    void setStatusText(const std::string& text, int pane) override { panes[pane] = text; }
    bool isActiveImage(const CDyeworksDoc& document) const override { return active == &document; }
    ImageViewer* activeView() const override { return nullptr; }
    ImagePlugIns& imagePlugIns() override { return plugIns; }
    OpenProject* openProject() override { return project; }
    std::optional<NewImage> askNewImage() override { return newImage; }
    std::optional<ImageWork> askImageWork(const ImageWork& /*proposed*/,
                                          const TextureCanvas& /*image*/) override {
        ++questions;
        return answer;
    }
    void AskUseProject() override {}
    const CDyeworksDoc* lastActivatedImage() const override { return lastActivated; }
    void setLastActivatedImage(const CDyeworksDoc* document) override { lastActivated = document; }

    PaletteSet palettes;
    std::int32_t firstEntry = 0;
    std::int32_t cell = -1;
    int barRefreshes = 0;
    std::map<int, std::string> panes;
    const CDyeworksDoc* active = nullptr;
    const CDyeworksDoc* lastActivated = nullptr;
    FakeImagePlugIns plugIns;
    FakeProject* project = nullptr;
    std::optional<NewImage> newImage;
    std::optional<ImageWork> answer; ///< To a question about an image.
    int questions = 0;
};

/// What `target` says of a command that it takes.
inline CommandUi stateOf(CommandTarget& target, CommandId id) {
    CommandUi ui;
    ui.id = id;
    EXPECT_TRUE(target.updateCommand(ui)) << id;
    return ui;
}

/// A document with an image of 16 by 12 texels at 4 bits, all 0.
class DocFixture : public testing::Test {
protected:
    DocFixture() { document.canvas().Create(16, 12, 1, 4); }

    std::vector<std::uint8_t> pixels() const {
        const auto rows = document.canvas().pixelRows();
        return {rows.begin(), rows.end()};
    }

    void pixel(std::int32_t x, std::int32_t y, std::uint32_t value) {
        document.Edit(nullptr, [=](TextureCanvas& canvas) { canvas.PutPixel(x, y, value); });
    }
    void fill(std::int32_t x, std::int32_t y, std::uint32_t value) {
        document.Edit(nullptr, [=](TextureCanvas& canvas) { canvas.FloodFill(x, y, value); });
    }

    void openPalette(std::int32_t count = 16) {
        ASSERT_TRUE(host.palettes.newPalette(count, ColourType::Rgba, 1));
    }

    FakePlatform platform;
    FakeImageHost host;
    CDyeworksDoc document{host};
};

} // namespace dyeworks
