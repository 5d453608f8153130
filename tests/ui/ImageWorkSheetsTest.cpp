#include "Program.h"
#include "framework/widgets/IntegerField.h"
#include "paint/TextureCanvas.h"
#include "ui/sheets/ReduceDepthSheet.h"
#include "ui/sheets/ResizeCanvasSheet.h"
#include "ui/sheets/ScaleImageSheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

namespace dyeworks {
namespace {

class ImageWorkSheets : public testing::Test {
protected:
    ImageWorkSheets() { image_.Create(60, 40, 1, 8); }

    static void type(QWidget& sheet, const char* field, int value) {
        sheet.findChild<IntegerField*>(field)->setValue(value);
    }
    static std::optional<Size> sizeOf(const ScaleImageSheet& sheet) {
        const auto work = sheet.work();
        return work ? std::optional(std::get<ScaleImage>(*work).size) : std::nullopt;
    }

    FakePlatform fake_;
    TextureCanvas image_;
};

TEST_F(ImageWorkSheets, SidesFollowEachOtherWhileTheRatioIsLocked) {
    ScaleImageSheet sheet({{60, 40}}, image_, nullptr);
    type(sheet, "IDC_SCALE_WIDTH", 91);
    EXPECT_EQ(sizeOf(sheet), (Size{91, 61}));
    type(sheet, "IDC_SCALE_HEIGHT", 1);
    EXPECT_EQ(sizeOf(sheet), (Size{2, 1}));
    auto& multiple = *sheet.findChild<QComboBox*>("IDC_SCALE_MULTIPLE");
    multiple.setCurrentIndex(multiple.findData(3));
    EXPECT_EQ(sizeOf(sheet), (Size{180, 120}));
    multiple.setCurrentIndex(multiple.findData(-8));
    EXPECT_EQ(sizeOf(sheet), (Size{7, 5}));
    sheet.findChild<QCheckBox*>("IDC_SCALE_LOCK")->setChecked(false);
    type(sheet, "IDC_SCALE_HEIGHT", 9);
    EXPECT_EQ(sizeOf(sheet), (Size{7, 9}));
    EXPECT_EQ(multiple.currentIndex(), 0);
}

TEST_F(ImageWorkSheets, TellWhatTheResultTakesAndRefuseWhatCannotBe) {
    ResizeCanvasSheet sheet({{60, 40}}, image_, nullptr);
    const auto takes = [&] { return sheet.findChild<QLabel*>("IDC_IMAGE_WORK_TAKES")->text(); };
    const auto& ok = *sheet.findChild<QPushButton*>("IDOK");
    EXPECT_EQ(takes(), "3,478 bytes");
    for (const char* side : {"IDC_RESIZE_WIDTH", "IDC_RESIZE_HEIGHT"})
        type(sheet, side, 65536);
    EXPECT_EQ(takes(), "More than an image can take (1 GiB)");
    EXPECT_FALSE(ok.isEnabled());
    type(sheet, "IDC_RESIZE_WIDTH", 65537);
    EXPECT_FALSE(ok.isEnabled());
    type(sheet, "IDC_RESIZE_WIDTH", 100);
    EXPECT_TRUE(ok.isEnabled());
    type(sheet, "IDC_RESIZE_FILL", 256);
    EXPECT_FALSE(ok.isEnabled());
}

TEST_F(ImageWorkSheets, CountTexelsOutsideTheBank) {
    image_.FillBox(0, 0, 59, 9, 0x7F);
    ReduceDepthSheet sheet({0, 16}, image_, nullptr);
    const auto& outside = *sheet.findChild<QLabel*>("IDC_REDUCE_OUTSIDE");
    EXPECT_TRUE(outside.text().startsWith("600 of 2,400 "));
    sheet.findChild<QComboBox*>("IDC_REDUCE_BANK")->setCurrentIndex(7);
    EXPECT_TRUE(outside.text().startsWith("1,800 of 2,400 "));
    EXPECT_EQ(std::get<ReduceDepth>(*sheet.work()).bank, 7);
}

} // namespace
} // namespace dyeworks
