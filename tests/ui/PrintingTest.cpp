#include "Program.h"
#include "ui/PagePlan.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QPageSize>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <csignal>
#include <sys/resource.h>

namespace dyeworks {
namespace {

TEST(PagePlan, CountsPagesAtTheEdge) {
    const std::pair<Size, int> cases[] = {{{0, 0}, 1},     {{1, 1}, 1},     {{100, 100}, 1},
                                          {{101, 100}, 2}, {{101, 101}, 4}, {{65536, 65536}, 656 * 656}};
    for (const auto& [content, pages] : cases)
        EXPECT_EQ(PagePlan(content, {100, 100}, {96, 96}, {96, 96}).pageCount(), pages) << content.width;
    EXPECT_EQ(PagePlan({3, 1}, {1, 1}, {96, 1200}, {96, 1200}).pageCount(), 3) << "paper below a pixel";
}

class Printing : public Program {
protected:
    Printing() {
        frame().printing().setChooser([this](QPrinter& printer) {
            ++asked_;
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(target());
            // The screen's resolution, so that a page read at it gives back the pixels.
            printer.setResolution(view().logicalDpiX());
            printer.setPageSize(QPageSize(QSizeF(216, 144), QPageSize::Point));
            printer.setPageMargins(QMarginsF(0, 0, 0, 0));
            printer.setFromTo(firstPage_, lastPage_);
            return !cancelled_;
        });
    }
    [[nodiscard]] QString target() const { return folder_.filePath(target_); }
    void openPattern() {
        openAttached(pattern(90, 70), 8, 256);
        ASSERT_TRUE(run(ID_ZOOM_X6));
    }
    /// The printed pages, read by a program that knows nothing of ours.
    std::vector<QImage> pages() {
        const QString dpi = QString::number(view().logicalDpiX());
        EXPECT_EQ(QProcess::execute("pdftoppm", {"-r", dpi, "-png", target(), folder_.filePath("page")}), 0);
        std::vector<QImage> images;
        for (const QString& name : QDir(folder_.path()).entryList({"page*.png"}))
            images.emplace_back(folder_.filePath(name));
        return images;
    }

    QTemporaryDir folder_;
    const char* target_ = "out.pdf";
    int asked_ = 0;
    bool cancelled_ = false;
    int firstPage_ = 0;
    int lastPage_ = 0;
};

TEST_F(Printing, PagesHoldThePixelsOfTheViewAndWhitePaper) {
    openPattern();
    ASSERT_TRUE(run(ID_VIEW_REPEAT)); // Its copies take no paper.
    ASSERT_TRUE(run(ID_FILE_PRINT));
    ASSERT_TRUE(fake_.messages.shown.empty());
    const std::vector<QImage> printed = pages();
    // 540 by 420 pixels on pages of 3 by 2 inches, 288 by 192 pixels.
    ASSERT_EQ(printed.size(), 6U);
    const std::uint8_t* colours = image().canvas().colourTable().data();
    for (int page = 0; page < 6; ++page) {
        const QImage& paper = printed[static_cast<std::size_t>(page)];
        ASSERT_EQ(paper.size(), QSize(288, 192));
        // The middles of texels, because the reader rounds edges in a way of its own.
        for (int y = 2; y < paper.height(); y += 6) {
            for (int x = 2; x < paper.width(); x += 6) {
                const int texelX = (page % 2 * 288 + x) / 6;
                const int texelY = (page / 2 * 192 + y) / 6;
                const std::uint8_t* bgr = colours + 4 * image().canvas().GetPixel(texelX, texelY);
                const QRgb expected =
                    texelX < 90 && texelY < 70 ? qRgb(bgr[2], bgr[1], bgr[0]) : qRgb(255, 255, 255);
                ASSERT_EQ(paper.pixel(x, y), expected) << page << " " << x << " " << y;
            }
        }
    }
}

TEST_F(Printing, PrintsTheChosenPagesAndNothingWhenCancelled) {
    openPattern();
    cancelled_ = true;
    ASSERT_TRUE(run(ID_FILE_PRINT));
    EXPECT_FALSE(QFile::exists(target()));
    cancelled_ = false;
    firstPage_ = 2;
    lastPage_ = 4;
    ASSERT_TRUE(run(ID_FILE_PRINT));
    EXPECT_EQ(pages().size(), 3U);
    // Once the printer is chosen, no question more.
    ASSERT_TRUE(run(ID_FILE_PRINT_DIRECT));
    EXPECT_EQ(asked_, 2);
    EXPECT_EQ(pages().size(), 6U);
}

TEST_F(Printing, FailuresAreToldAndLeaveTheOldFile) {
    openBlank();
    ASSERT_TRUE(run(ID_FILE_PRINT));
    const qint64 size = QFileInfo(target()).size();
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit full{1000, before.rlim_max};
    auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
    run(ID_FILE_PRINT);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(QFileInfo(target()).size(), size);
    target_ = "gone/out.pdf";
    run(ID_FILE_PRINT);
    const std::string failed = "The document could not be printed.";
    EXPECT_THAT(texts(fake_), ElementsAre(failed, failed));
}

TEST_F(Printing, ThePreviewShowsAsManyPagesSideBySideAsTheLastOne) {
    openAttached(texels(4, 4, [](int, int) { return 1U; }), 4, 16);
    const auto shownThenChosen = [this](const char* mode) {
        QString shown;
        QTimer whenIdle;
        QObject::connect(&whenIdle, &QTimer::timeout, &whenIdle, [&] {
            auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
            if (preview == nullptr || !preview->isVisible())
                return;
            whenIdle.stop();
            for (QAction* action : preview->findChildren<QAction*>()) {
                if (action->isChecked() && action->objectName().endsWith("ModeAction"))
                    shown = action->objectName();
            }
            preview->findChild<QAction*>(mode)->trigger();
            preview->close();
        });
        whenIdle.start();
        EXPECT_TRUE(run(ID_FILE_PRINT_PREVIEW));
        return shown.toStdString();
    };
    EXPECT_EQ(shownThenChosen("facingModeAction"), "singleModeAction");
    EXPECT_EQ(shownThenChosen("singleModeAction"), "facingModeAction");
    EXPECT_EQ(shownThenChosen("singleModeAction"), "singleModeAction");
}

} // namespace
} // namespace dyeworks
