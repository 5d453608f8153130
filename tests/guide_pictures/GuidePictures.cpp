// Draws the pictures of the guide with the program itself: no display, the style and the colours always the
// same.
//
//   dyeworks_guide_pictures FOLDER LANGUAGE SAMPLES

#include "framework/widgets/ChildFrame.h"
#include "paint/CDyeworksDoc.h"
#include "paint/widgets/ImageView.h"
#include "platform/Platform.h"
#include "platform/qt/DesktopEntries.h"
#include "platform/qt/Language.h"
#include "platform/qt/QtPlatform.h"
#include "ui/CDyeworksApp.h"
#include "ui/CMainFrame.h"
#include "ui/CommandLine.h"
#include "ui/ThumbnailButton.h"
#include "ui/palettebar/CPaletteBar.h"
#include "ui/sheets/ResizeCanvasSheet.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QPainter>
#include <QScrollArea>
#include <QTest>
#include <QToolBar>

#include <algorithm>
#include <cstdio>
#include <string>

using namespace dyeworks;

namespace {

/// Values of the samples' tile palette.
enum Dye { kGrass = 3, kDarkGrass = 2, kWater = 12, kEarth = 9, kStone = 6 };
constexpr int kTile = 32;

/// What decides how letters look here. Pictures with the same mark can be compared pixel by pixel.
QString mark() {
    const QFontInfo font(QApplication::font());
    QImage letters(256, 32, QImage::Format_RGB32);
    letters.fill(Qt::white);
    QPainter painter(&letters);
    painter.drawText(letters.rect(), Qt::AlignCenter, QStringLiteral("Dyeworks 0123 \u67d3\u8272"));
    painter.end();
    const QByteArrayView bytes(letters.constBits(), letters.sizeInBytes());
    return QStringLiteral("%1 %2 %3 %4")
        .arg(font.family())
        .arg(font.pixelSize())
        .arg(QString::fromLatin1(qVersion()))
        .arg(qHash(bytes, 1), 0, 16);
}

class Studio {
public:
    Studio(CDyeworksApp& app, QString folder, QString samples)
        : app_(app)
        , folder_(std::move(folder))
        , samples_(std::move(samples)) {}

    bool drawAll(bool english) {
        frame().resize(CMainFrame::kFirstSize);
        start();
        sheet();
        if (english)
            window();
        brush();
        // Has no words.
        if (english)
            seam();
        return good_;
    }

private:
    CMainFrame& frame() { return app_.mainFrame(); }
    ImageView& view() { return *frame().activeImageView(); }
    void run(CommandId id) {
        if (!app_.router().run(id))
            fail("a command cannot run");
    }
    void fail(const char* why) {
        std::fprintf(stderr, "guide pictures: %s\n", why);
        good_ = false;
    }
    void keep(const char* name, QImage picture) {
        picture.setText(QStringLiteral("Letters"), mark());
        if (picture.isNull() ||
            !picture.save(folder_ + u'/' + QString::fromLatin1(name) + QStringLiteral(".png")))
            fail(name);
    }
    void open(const QStringList& names) {
        std::vector<std::string> paths;
        for (const QString& name : names)
            paths.push_back(platform().files().fromHostPath((samples_ + u'/' + name).toStdString()));
        if (!app_.OpenFiles(paths, true))
            fail("a sample cannot be opened");
        settle();
    }
    static void settle() { QTest::qWait(50); }

    void start() {
        QScrollArea* page = nullptr;
        const auto isWhole = [&] {
            page = frame().findChild<QScrollArea*>(QStringLiteral("startPage"));
            const auto cards =
                page == nullptr ? QList<ThumbnailButton*>() : page->findChildren<ThumbnailButton*>();
            return !cards.isEmpty() && std::ranges::all_of(cards, [](ThumbnailButton* card) {
                return card->picture().format() == QImage::Format_RGB32;
            });
        };
        if (!QTest::qWaitFor(isWhole)) {
            fail("the start page does not show the samples");
            return;
        }
        page->widget()->setFocus();
        keep("start", page->grab().toImage());
    }

    void window() {
        open({QStringLiteral("samples.tpf"), QStringLiteral("lagoon.tlf"), QStringLiteral("lagoon.tmf")});
        frame().commandActions().refresh();
        keep("window", frame().picture().toImage());
        closeAll();
    }

    void sheet() {
        TextureCanvas canvas;
        static_cast<void>(canvas.Create(64, 64, 1, 4));
        ResizeCanvasSheet sheet({{96, 64}}, canvas, &frame());
        sheet.setAttribute(Qt::WA_DontShowOnScreen);
        sheet.show();
        settle();
        keep("resize-canvas", sheet.grab().toImage());
    }

    /// A tile of grass with a pond and a mound over its edges, drawn with the tools, shown among its copies.
    void meadow(bool wrapped) {
        open({QStringLiteral("tiles.tlf")});
        TmfImage grass;
        if (!grass.create(kTile, kTile, 4))
            fail("no memory");
        unsigned noise = 1;
        for (int i = 0; i < kTile * kTile; ++i) {
            noise = noise * 1103515245U + 12345U;
            const bool dark = (noise >> 16U) % 5 == 0;
            grass.setTexel(i % kTile, i / kTile, dark ? kDarkGrass : kGrass);
        }
        app_.imageTemplate().newDocument("meadow", [&](CDocument& made) {
            auto& image = static_cast<CDyeworksDoc&>(made);
            const bool filled = image.CreateFrom(grass);
            image.Attach();
            return filled;
        });
        run(ID_ZOOM_X6);
        setChecked(ID_DRAW_WRAP, wrapped);
        run(ID_TOOL_CIRCLE_FILL);
        circle(kWater, {31, 8}, 8);
        circle(kEarth, {10, 31}, 7);
        circle(kStone, {16, 13}, 4);
        setChecked(ID_VIEW_REPEAT, true);
        settle();
    }
    void setChecked(CommandId id, bool on) {
        if (app_.router().state(id).checked.value_or(false) != on)
            run(id);
    }
    void circle(int dye, QPoint centre, int radius) {
        app_.imageHost().selectPaletteBarCell(dye);
        QWidget* const client = view().viewport();
        const auto at = [](QPoint texel) { return texel * 6 + QPoint(3, 3); };
        const QPoint from = at(centre - QPoint(radius, radius));
        const QPoint to = at(centre + QPoint(radius, radius));
        client->grabMouse();
        QTest::mousePress(client, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, client->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(client, &move);
        QTest::mouseRelease(client, Qt::LeftButton, {}, to);
        client->releaseMouse();
    }

    void brush() {
        meadow(true);
        run(ID_VIEW_BRUSHBAR);
        for (int size = 1; size < 9; ++size)
            run(ID_BRUSH_LARGER);
        run(ID_BRUSH_ROUND);
        run(ID_MIRROR_ACROSS);
        run(ID_MIRROR_DOWN);
        run(ID_TOOL_PEN);
        frame().commandActions().refresh();
        settle();
        const QPoint pointer(300, 250);
        QMouseEvent move(QEvent::MouseMove, pointer, view().viewport()->mapToGlobal(pointer), Qt::NoButton,
                         Qt::NoButton, {});
        QApplication::sendEvent(view().viewport(), &move);
        const auto* const bar = frame().findChild<QToolBar*>(QStringLiteral("ID_VIEW_BRUSHBAR"));
        const QPoint corner = bar->mapTo(&frame(), QPoint());
        keep("brush", frame().grab(QRect(corner, QSize(590, 460))).toImage());
        setChecked(ID_MIRROR_ACROSS, false);
        setChecked(ID_MIRROR_DOWN, false);
        closeAll();
    }

    void seam() {
        constexpr int kSide = 3 * kTile * 6;
        constexpr int kGap = 12;
        QImage both(2 * kSide + kGap, kSide, QImage::Format_RGB32);
        both.fill(Qt::white);
        QPainter painter(&both);
        for (const bool wrapped : {false, true}) {
            meadow(wrapped);
            // Larger than the main window, so that the whole is seen.
            view().window()->resize(kSide + 300, kSide + 400);
            frame().activeChild()->showNormal();
            frame().activeChild()->resize(kSide + 40, kSide + 60);
            settle();
            painter.drawPixmap(wrapped ? kSide + kGap : 0, 0,
                               view().viewport()->grab(QRect(0, 0, kSide, kSide)));
            closeAll();
        }
        painter.end();
        keep("seam", both);
    }

    void closeAll() {
        frame().closeChildrenUnasked();
        settle();
    }

    CDyeworksApp& app_;
    QString folder_;
    QString samples_;
    bool good_ = true;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: dyeworks_guide_pictures FOLDER LANGUAGE SAMPLES\n", stderr);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    // A screen on which the window stands as on most.
    QDir(folder).mkpath(QStringLiteral("home"));
    QFile screen(folder + QStringLiteral("/home/screen.json"));
    if (!screen.open(QIODevice::WriteOnly) ||
        screen.write(
            R"({"screens":[{"name":"screen","x":0,"y":0,"width":1600,"height":1200,"logicalDpi":96}]})") < 0)
        return 1;
    screen.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toLocal8Bit());
    qputenv("QT_SCALE_FACTOR", "1");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0);
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    QApplication::setWindowIcon(programIcon(64));
    const QString language = QString::fromLocal8Bit(argv[2]);
    // Nothing of it is to reach the settings and the desktop of whoever runs it.
    const QByteArray home = QDir(folder).absoluteFilePath(QStringLiteral("home")).toLocal8Bit();
    for (const char* const place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(place, home);

    QtPlatform desktop(QString(folder + QStringLiteral("/home/settings.ini")).toStdString());
    installPlatform(&desktop);
    installLanguage(application, language.toStdString());
    CommandLine commandLine;
    commandLine.noSplash = true;
    commandLine.newInstance = true;
    commandLine.language = language;
    bool good = false;
    {
        CDyeworksApp program;
        if (program.InitInstance(commandLine)) {
            desktop.setMainWindow(&program.mainFrame());
            good = Studio(program, folder, QString::fromLocal8Bit(argv[3]))
                       .drawAll(language == QStringLiteral("en"));
        }
        static_cast<void>(program.ExitInstance());
    }
    installPlatform(nullptr);
    return good ? 0 : 1;
}
