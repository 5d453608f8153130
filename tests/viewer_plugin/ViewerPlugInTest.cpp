#include "Pictures.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <memory>

namespace dyeworks::plugins {
namespace {

class ViewerPlugIn : public testing::Test {
protected:
    ViewerPlugIn() {
        EXPECT_NE(library_, nullptr) << ::dlerror();
        preview_ = reinterpret_cast<decltype(preview_)>(::dlsym(library_, "DWPI_preview2"));
        EXPECT_NE(preview_, nullptr);
        off_ = reinterpret_cast<decltype(off_)>(::dlsym(library_, "DWPI_previewOff"));
        EXPECT_NE(off_, nullptr);
    }
    ~ViewerPlugIn() override { unload(); }

    void startApplication() { application_ = std::make_unique<QApplication>(argc_, argv_); }
    std::uint32_t preview(std::uint32_t which) { return preview_(&source_.record, which); }
    void unload() {
        if (library_ != nullptr)
            ::dlclose(library_);
        library_ = nullptr;
    }
    /// The visible window with that title.
    static QWidget* window(const char* title) {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible() && widget->windowTitle() == QString::fromUtf8(title))
                return widget;
        }
        return nullptr;
    }

    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    int argc_ = 1;
    RandomPicture source_{16, 16, 4, DW_COLOUR_RGBA, 16};
    std::unique_ptr<QApplication> application_;
    void* library_ = ::dlopen(DYEWORKS_VIEWER_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    std::uint32_t (*preview_)(const PlugInPicture*, std::uint32_t) = nullptr;
    std::uint32_t (*off_)(std::uint32_t) = nullptr;
};

TEST_F(ViewerPlugIn, ShowsNothingWithoutAnApplicationOrAThirdWindow) {
    EXPECT_EQ(preview(0), 0u);
    startApplication();
    EXPECT_EQ(preview(2), 0u);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(ViewerPlugIn, WindowClosedByTheUserAnswersZeroOnceAndComesBack) {
    startApplication();
    EXPECT_EQ(preview(0), 1u);
    EXPECT_EQ(preview(1), 1u);
    ASSERT_NE(window("Preview 1"), nullptr);
    ASSERT_NE(window("Preview 2"), nullptr);
    QTest::keyClick(window("Preview 2"), Qt::Key_Escape);
    EXPECT_EQ(window("Preview 2"), nullptr);
    EXPECT_EQ(preview(0), 1u) << "the other one stays";
    EXPECT_EQ(preview(1), 0u);
    EXPECT_EQ(window("Preview 2"), nullptr);
    EXPECT_EQ(preview(1), 1u);
    EXPECT_NE(window("Preview 2"), nullptr);
    QTest::keyClick(window("Preview 2"), Qt::Key_Escape);
    off_(1);
    EXPECT_EQ(preview(1), 1u) << "what is switched off is no longer closed by the user";
}

TEST_F(ViewerPlugIn, WindowOfAPreviewThatIsOffIsHidden) {
    startApplication();
    off_(0);
    off_(2);
    EXPECT_EQ(preview(0) + preview(1), 2u);
    off_(0);
    EXPECT_EQ(window("Preview 1"), nullptr);
    EXPECT_NE(window("Preview 2"), nullptr);
    EXPECT_EQ(preview(0), 1u);
    EXPECT_NE(window("Preview 1"), nullptr);
}

TEST_F(ViewerPlugIn, SpeaksTheProgramsLanguage) {
    startApplication();
    const auto speak = reinterpret_cast<decltype(off_)>(::dlsym(library_, "DWPI_onLanguage"));
    ASSERT_NE(speak, nullptr);
    speak(DW_LOCALE_JAPANESE);
    EXPECT_EQ(preview(0), 1u);
    EXPECT_NE(window("\xE3\x83\x97\xE3\x83\xAC\xE3\x83\x93\xE3\x83\xA5\xE3\x83\xBC 1"), nullptr);
}

TEST_F(ViewerPlugIn, WindowsGoWithTheLibrary) {
    startApplication();
    EXPECT_EQ(preview(0), 1u);
    QApplication::processEvents();
    EXPECT_EQ(preview(0), 1u) << "a repaint is waiting";
    unload();
    EXPECT_EQ(::dlopen(DYEWORKS_VIEWER_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr) << "still loaded";
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
    QApplication::processEvents();
}

TEST_F(ViewerPlugIn, WindowsGoWithTheApplication) {
    for (int run = 0; run < 2; ++run) {
        startApplication();
        EXPECT_EQ(preview(1), 1u);
        EXPECT_NE(window("Preview 2"), nullptr);
        application_.reset();
    }
}

} // namespace
} // namespace dyeworks::plugins
