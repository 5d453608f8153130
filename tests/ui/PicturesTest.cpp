#include "Program.h"
#include "interchange/EntryColour.h"
#include "platform/qt/QtPictureReader.h"

#include <QBuffer>
#include <QDialogButtonBox>
#include <QImage>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace dyeworks {
namespace {

class PicturesTest : public Program {
protected:
    PicturesTest() { fake_.pictures.real = &reader_; }

    void put(const char* path, const QImage& image, const char* format) {
        QBuffer bytes;
        ASSERT_TRUE(image.save(&bytes, format));
        fake_.files.putFile(path, bytes.data().toStdString());
    }
    [[nodiscard]] TextureLookupTable& palette() { return *app_.paletteSet()->lookup(""); }

    QtPictureReader reader_;
};

TEST_F(PicturesTest, AnIndexedOneOpensAttachedAndUnsavedWithItsColoursInTheirOrder) {
    QImage picture(5, 3, QImage::Format_Indexed8);
    picture.setColorTable({qRgb(255, 0, 0), qRgb(0, 255, 0), qRgb(0, 0, 255), qRgb(255, 255, 255)});
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 5; ++x)
            picture.setPixel(x, y, static_cast<unsigned>((x + y) % 4));
    }
    put("c:\\sky.png", picture, "PNG");
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\sky.png"));
    EXPECT_EQ(canvas(), texels(5, 3, [](int x, int y) { return static_cast<unsigned>(x + y) % 4; }));
    EXPECT_TRUE(image().IsAttached() && image().hasUnsavedChanges() && palette().hasUnsavedChanges());
    EXPECT_TRUE(image().pathName().empty());
    EXPECT_EQ(image().title(), "sky [sky] * ");
    const std::vector<unsigned> entries(palette().table.entries, palette().table.entries + 4);
    EXPECT_THAT(entries, ElementsAre(0xF801U, 0x07C1U, 0x003FU, 0xFFFFU));
    EXPECT_THAT(texts(fake_), IsEmpty());
}

TEST_F(PicturesTest, OneOfDirectColoursGoesThroughTheSheetAndCancelOpensNothing) {
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(qRgb(255, 0, 0));
    put("c:\\red.jpg", picture, "PNG");
    withNextDialog([](QDialog& sheet) { sheet.reject(); });
    EXPECT_TRUE(app_.OpenDocumentFile("c:\\red.jpg")) << "no failure";
    EXPECT_TRUE(app_.documents().empty() && app_.paletteSet()->palettes.empty());
    withNextDialog([](QDialog& sheet) { sheet.accept(); });
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\red.jpg"));
    const auto shown = static_cast<std::int32_t>(canvas().front().front());
    EXPECT_EQ(palette().table.getEntry(shown), 0xF801);
    EXPECT_TRUE(image().IsAttached());
}

TEST_F(PicturesTest, ATextNamedAsAPictureIsToldAboutAndOpensNothing) {
    fake_.files.putFile("c:\\a.png",
                        "no picture at all, but long enough for the header of an image, which it "
                        "does not have");
    EXPECT_FALSE(app_.OpenDocumentFile("c:\\a.png"));
    EXPECT_EQ(texts(fake_).size(), 1U);
    EXPECT_TRUE(app_.documents().empty() && app_.paletteSet()->palettes.empty());
}

TEST_F(PicturesTest, APaletteComesBackFromEachFormatAndIntoTheCurrentOneInOneStep) {
    openAttached(texels(4, 4, [](int, int) { return 1U; }), 8, 256);
    const TlutData before = palette().table;
    for (const char* ending : {".gpl", ".pal", ".act", ".hex", ".png"}) {
        const std::string path = std::string("c:\\out") + ending;
        fake_.dialogs.answerWith(path);
        withNextDialog([](QDialog& sheet) { sheet.accept(); });
        ASSERT_TRUE(run(ID_PALETTE_EXPORT));
        palette().beginEdit();
        for (int i = 0; i < 256; ++i)
            palette().setEntry(i, 0);
        palette().commitEdit();
        fake_.dialogs.answerWith(path);
        withNextDialog([](QDialog& sheet) {
            sheet.findChild<QRadioButton*>(QStringLiteral("IDC_IMPORT_INTO"))->setChecked(true);
            sheet.findChild<QSpinBox*>()->setValue(0);
            sheet.accept();
        });
        ASSERT_TRUE(run(ID_PALETTE_IMPORT));
        for (int i = 0; i < 256; ++i) {
            ASSERT_EQ(colourOf(palette().table, i).green, colourOf(before, i).green) << path << ' ' << i;
            ASSERT_EQ(palette().table.getRed(i), before.getRed(i)) << path << ' ' << i;
        }
        ASSERT_TRUE(palette().undo());
        EXPECT_EQ(palette().table.getEntry(7), 0) << "one step";
        ASSERT_TRUE(palette().undo());
    }
    EXPECT_THAT(texts(fake_), IsEmpty());
}

TEST_F(PicturesTest, PasteMatchingFindsTheNearestEntries) {
    openAttached(texels(4, 4, [](int, int) { return 0U; }), 8, 256);
    EXPECT_FALSE(enabled(ID_EDIT_PASTE_MATCHING) || enabled(ID_EDIT_PASTE_NEW));
    Picture picture;
    picture.width = 3;
    picture.height = 2;                                // A line alone is nothing to work with.
    for (const int entry : {8, 200, 30, 30, 8, 200}) { // opaque ones
        const Colour exact = colourOf(palette().table, entry);
        picture.pixels.push_back({exact.red, exact.green, exact.blue, exact.alpha});
    }
    fake_.clipboard.offerPicture(picture);
    ASSERT_TRUE(run(ID_EDIT_PASTE_MATCHING));
    ASSERT_TRUE(run(ID_CANCEL_SELECTION));
    for (std::size_t x = 0; x < 3; ++x) {
        const auto placed = static_cast<std::int64_t>(canvas()[0][x]);
        EXPECT_EQ(colourOf(palette().table, placed), picture.pixels[x]);
    }
}

} // namespace
} // namespace dyeworks
