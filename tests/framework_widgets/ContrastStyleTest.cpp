#include "framework/widgets/ContrastStyle.h"

#include <QApplication>
#include <QLineEdit>
#include <QPalette>
#include <gtest/gtest.h>

namespace dyeworks {
namespace {

TEST(ContrastStyle, FramesAFieldWhereItsGroundIsTheWindows) {
    const QPalette usual(QColor(0xef, 0xef, 0xef));
    EXPECT_FALSE(ContrastStyle::isWanted(usual));
    const QPalette dark(QColor(49, 54, 59), QColor(49, 54, 59));
    EXPECT_FALSE(ContrastStyle::isWanted(dark));
    for (const auto& [ground, text] : {std::pair{Qt::black, Qt::white}, std::pair{Qt::white, Qt::black}}) {
        QPalette palette;
        for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
            palette.setColor(role, ground);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(role, text);
        EXPECT_TRUE(ContrastStyle::isWanted(palette));
        ContrastStyle style;
        QLineEdit field;
        field.setStyle(&style);
        field.setPalette(palette);
        const QImage picture = field.grab().toImage();
        const QColor line(text);
        EXPECT_EQ(picture.pixelColor(picture.width() / 2, 0), line);
        EXPECT_EQ(picture.pixelColor(0, picture.height() / 2), line);
        field.setStyle(nullptr);
    }
}

} // namespace
} // namespace dyeworks
