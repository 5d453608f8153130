#include "FakeHost.h"
#include "PlugInDialogs.h"
#include "PngFiles.h"

#include <QAbstractButton>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace dyeworks::plugins {
namespace {

void enterFile(QDialog& dialog, const QString& path) {
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
    dialog.accept();
}

const QString kPng = QStringLiteral(DYEWORKS_PLUGIN_FOLDER "/Png");
const QString kPictures = QStringLiteral(DYEWORKS_PLUGIN_FOLDER "/Pictures");

class PngDialogs : public testing::Test {
protected:
    QTemporaryDir folder_;
    ImageRecord image_ = imageOf(5, 3, 4, [](int x, int y) { return static_cast<unsigned>(x + y); });
    PlugInPicture picture_{image_.get(), nullptr, 0, 0};
    PlugInPicture out_{nullptr, nullptr, 0, 0};
    decltype(DWPI_export)* export_ = entryPoint<decltype(DWPI_export)>(kPng, "DWPI_export");
    decltype(DWPI_import)* import_ = entryPoint<decltype(DWPI_import)>(kPng, "DWPI_import");
};

TEST_F(PngDialogs, ExportThenImport) {
    const QString path = folder_.filePath(QStringLiteral("sea"));
    answerNext([&](QDialog& dialog) { enterFile(dialog, path); });
    ASSERT_EQ(export_(&picture_), 1U);
    const QImage written(path + QStringLiteral(".png"));
    EXPECT_EQ(written.pixelIndex(4, 2), 6);

    answerNext([&](QDialog& dialog) { enterFile(dialog, path + QStringLiteral(".png")); });
    ASSERT_EQ(import_(&picture_, &out_), 1U);
    const ImageRecord image(out_.image);
    const PaletteRecord palette(out_.palette);
    EXPECT_EQ(DW_getTexel(image.get(), 4, 2), 6);
    EXPECT_EQ(palette->count, 16);
}

TEST_F(PngDialogs, CancelChangesNothing) {
    for (const bool exporting : {true, false}) {
        answerNext([](QDialog& dialog) { dialog.reject(); });
        EXPECT_EQ(exporting ? export_(&picture_) : import_(&picture_, &out_), 0U);
    }
    EXPECT_EQ(out_.image, nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PngDialogs, SaysWhyAFileIsRefused) {
    const QString path = folder_.filePath(QStringLiteral("text.png"));
    writeBytes(path, "no picture at all");
    std::string message;
    answerNext([&](QDialog& dialog) {
        answerNext([&](QDialog& box) {
            message = static_cast<QMessageBox&>(box).text().toStdString();
            box.accept();
        });
        enterFile(dialog, path);
    });
    EXPECT_EQ(import_(&picture_, &out_), 0U);
    EXPECT_EQ(message, "\"text.png\" cannot be imported. It is not a PNG file.");
    EXPECT_EQ(out_.image, nullptr);
}

TEST_F(PngDialogs, PicturesReplaceFilesOnlyWhenTheyMay) {
    auto* const exportProject = entryPoint<decltype(DWPI_TPF_export)>(kPictures, "DWPI_TPF_export");
    host = {{{"sea", "\\sea.tmf", "", 0}}, {{"\\sea.tmf", 4}}, {}};
    const QString path = folder_.filePath(QStringLiteral("sea.png"));
    writeBytes(path, "old");
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        answerNext([&](QDialog& dialog) {
            answerNext([answer](QDialog& box) { static_cast<QMessageBox&>(box).button(answer)->click(); });
            enterFile(dialog, folder_.path());
        });
        EXPECT_EQ(exportProject(nullptr, "\\sea.tpf"), answer == QMessageBox::Yes ? 1U : 0U);
        EXPECT_EQ(bytesOf(path) == "old", answer == QMessageBox::No);
    }
}

} // namespace
} // namespace dyeworks::plugins
