#include "Program.h"
#include "ui/ThumbnailButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QScrollArea>

#include <sys/stat.h>

namespace dyeworks {
namespace {

class StartPages : public Launch {
protected:
    StartPages() { fake_.profile.sections.erase("Start Page"); }

    [[nodiscard]] QScrollArea* page() { return frame().findChild<QScrollArea*>("startPage"); }
    /// The page is made, and goes, when the program has nothing else to do.
    bool comes(bool shown = true) {
        return QTest::qWaitFor([=, this] { return (page() != nullptr) == shown; });
    }
    [[nodiscard]] ThumbnailButton* card(const char* name) {
        for (ThumbnailButton* each : page()->findChildren<ThumbnailButton*>()) {
            if (each->text() == name)
                return each;
        }
        return nullptr;
    }
};

TEST_F(StartPages, ShowsWhileNothingIsOpenAndTheOptionIsOn) {
    putImages(fake_, {"c:\\a.tmf"});
    ASSERT_TRUE(launch());
    EXPECT_EQ(page(), nullptr) << "nobody waits for it";
    ASSERT_TRUE(comes());
    EXPECT_TRUE(frame().area().rect().contains(page()->geometry()));
    ASSERT_TRUE(app_->OpenDocumentFile("c:\\a.tmf"));
    ASSERT_TRUE(comes(false));
    ASSERT_TRUE(run(ID_FILE_CLOSE));
    ASSERT_TRUE(comes());
    page()->findChild<QCheckBox*>("startAtEmpty")->click();
    ASSERT_TRUE(comes(false));
    EXPECT_EQ(app_->router().state(ID_VIEW_START_PAGE).checked, false);
    ASSERT_TRUE(launch());
    QTest::qWait(0);
    EXPECT_EQ(page(), nullptr);
    ASSERT_TRUE(run(ID_VIEW_START_PAGE));
    EXPECT_TRUE(comes());

    ask({"c:\\a.tmf"});
    ASSERT_TRUE(launch());
    QTest::qWait(0);
    EXPECT_EQ(page(), nullptr);
    ASSERT_TRUE(run(ID_FILE_CLOSE));
    EXPECT_TRUE(comes());
}

TEST_F(StartPages, PicturesFilesAndAFileThatNeverAnswersHoldsUpNothing) {
    fake_.files.putFile("c:\\sea.tmf",
                        imageFile(texels(2, 2, [](int x, int) { return x == 0 ? 1U : 3U; }), 4));
    fake_.files.putFile("c:\\sea.tlf", paletteFile(16, [](int i) { return i == 1 ? 0xF801U : 0x07C1U; }));
    const std::string sea = fromHost("c:\\sea.tmf");
    // Whoever opened a pipe would wait for its writer.
    const std::string pipe = fake_.files.hostPath("c:\\sea.tlf") + ".tmf";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    fake_.profile.sections["Recent TMF List"] = {{"File1", fake_.files.fromHostPath(pipe)}, {"File2", sea}};
    fake_.profile.sections["Settings\\Images\\" + sea]["Attach"] = fromHost("c:\\sea.tlf");
    ASSERT_TRUE(launch());
    ASSERT_TRUE(comes());
    ThumbnailButton* const button = card("sea.tmf");
    ASSERT_NE(button, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return button->picture().format() == QImage::Format_RGB32; }));
    const QImage picture = button->picture();
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(0xF8, 0, 0));
    EXPECT_EQ(picture.pixelColor(picture.width() - 1, picture.height() - 1), QColor(0, 0xF8, 0));
    ASSERT_NE(card("sea.tlf.tmf"), nullptr);
    button->click();
    ASSERT_TRUE(comes(false));
    EXPECT_THAT(openImages(), ElementsAre(sea));
}

using NewTexture = Program;

TEST_F(NewTexture, MakesImagePaletteAndAttachmentAtOnceAndFitsTheZoom) {
    const auto make = [this](int palette) {
        withNextDialog([=](QDialog& sheet) {
            sheet.findChild<QComboBox*>("newTexturePalette")->setCurrentIndex(palette);
            sheet.accept();
        });
        ASSERT_TRUE(run(ID_TEXTURE_NEW));
    };
    make(1);
    EXPECT_EQ(canvas(), texels(64, 64, [](int, int) { return 0U; }));
    const TextureLookupTable* const made = image().GetAttachedPalette();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->table.count, 16);
    EXPECT_EQ(made->table.colourType, ColourType::Ia);
    EXPECT_EQ(made->table.getAlpha(5), 255);
    const QSize room = frame().area().viewport()->size();
    const int zoom = view().view().zoom();
    EXPECT_GT(zoom, 1);
    EXPECT_LE(64 * zoom, std::min(room.width(), room.height()));
    make(2);
    EXPECT_EQ(image().GetAttachedPalette(), made) << "then come the open ones";
    EXPECT_EQ(app_.paletteSet()->palettes.size(), 1U);
    EXPECT_EQ(image().displayName().substr(0, 8), "Texture2");
}

TEST_F(NewTexture, AnImageWithoutAPaletteIsToldHowToGetOne) {
    putImages(fake_, {"c:\\a.tmf"});
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\a.tmf"));
    const auto* const pane = frame().findChild<QLabel*>("ID_SEPARATOR");
    EXPECT_TRUE(pane->text().contains("no palette"));
    EXPECT_FALSE(enabled(ID_IMAGE_ATTACH));
    withNextDialog([](QDialog& sheet) { sheet.accept(); });
    ASSERT_TRUE(run(ID_IMAGE_NEW_PALETTE));
    EXPECT_EQ(image().GetAttachedPalette()->table.count, 16);
    EXPECT_TRUE(pane->text().isEmpty());
    EXPECT_FALSE(enabled(ID_IMAGE_NEW_PALETTE));
}

} // namespace
} // namespace dyeworks
