#include "bench/day_programs/RealProgram.h"

#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "core/TmfImage.h"
#include "framework/widgets/ScrollView.h"
#include "platform/qt/DesktopEntries.h"
#include "ui/CMainFrame.h"
#include "ui/CommandLine.h"
#include "ui/controls/CRampSlider.h"
#include "ui/controls/CSwatchGrid.h"
#include "ui/palettebar/CPaletteBar.h"
#include "ui/palettebar/PaletteBarIds.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QDialog>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressDialog>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <cstdio>
#include <cstdlib>
#include <span>
#include <utility>

namespace dyeworks {

namespace {

/// What an offscreen display does not do is nothing to tell of.
void tell(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

std::string latestDialog; ///< What it says.

/// An event of the left button, which is held while the pointer moves. QTest takes the origin for the middle
/// of the widget, and has nothing held in a move.
void point(QWidget& widget, QEvent::Type type, QPoint place) {
    const bool moves = type == QEvent::MouseMove;
    QMouseEvent event(type, place, widget.mapToGlobal(place), moves ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void write(const QString& file, std::initializer_list<std::span<const std::byte>> parts) {
    QFile out(file);
    RealProgram::check(out.open(QIODevice::WriteOnly), "a file cannot be made");
    for (const std::span<const std::byte> part : parts)
        RealProgram::check(out.write(reinterpret_cast<const char*>(part.data()),
                                     static_cast<qint64>(part.size())) == static_cast<qint64>(part.size()),
                           "a file cannot be written");
}

} // namespace

RealProgram::RealProgram(int& argc, char** argv, const QString& home)
    : home_(home) {
    qInstallMessageHandler(tell);
    if (home.isEmpty()) {
        ownHome_ = std::make_unique<QTemporaryDir>();
        home_ = ownHome_->path();
    }
    for (const char* const variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME",
                                       "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        const QString place = home_ + u'/' + QString::fromLatin1(variable);
        QDir().mkpath(place);
        QFile::setPermissions(place, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(variable, QFile::encodeName(place));
    }
    QDir().mkpath(folder());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    application_ = std::make_unique<QApplication>(argc, argv);
    application_->installEventFilter(this);
    QApplication::setWindowIcon(programIcon(64));
}

RealProgram::~RealProgram() {
    application_->removeEventFilter(this);
    static_cast<void>(app_->ExitInstance());
    app_.reset();
    desktop_.reset();
}

void RealProgram::start() {
    desktop_ = std::make_unique<QtPlatform>((home_ + QStringLiteral("/settings.ini")).toStdString());
    installPlatform(desktop_.get());
    desktop_->profile().setText("Start Page", "Shown", "0");
    desktop_->profile().setText("Settings", "UseNotify_AskUseProject", "0");
    StartUpParts parts;
    parts.makeMainFrame = [this, make = parts.makeMainFrame](MainFrameHost& host) {
        std::unique_ptr<CMainFrame> frame = make(host);
        desktop_->setMainWindow(frame.get());
        return frame;
    };
    app_ = std::make_unique<CDyeworksApp>(std::move(parts));
    CommandLine commandLine;
    commandLine.noSplash = true;
    commandLine.newInstance = true;
    check(app_->InitInstance(commandLine), "the program does not start");
    frame().resize(CMainFrame::kFirstSize);
    frame().activateWindow();
    settle();
}

CMainFrame& RealProgram::frame() {
    return app_->mainFrame();
}

ImageView& RealProgram::view() {
    ImageView* const view = frame().activeImageView();
    check(view != nullptr, "no image is active");
    return *view;
}

void RealProgram::settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Nothing is left to do: commands are enabled and disabled then.
    Q_EMIT QAbstractEventDispatcher::instance()->aboutToBlock();
    QCoreApplication::processEvents();
}

void RealProgram::drop(const QStringList& files) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files)
        urls << QUrl::fromLocalFile(file);
    data.setUrls(urls);
    QDragEnterEvent enters(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&frame(), &enters);
    check(enters.isAccepted(), "files may not be dropped");
    QDropEvent drops(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&frame(), &drops);
}

void RealProgram::run(CommandId id) {
    if (!app_->router().run(id))
        fail("command " + std::to_string(id) + " does not run");
}

void RealProgram::attach() {
    if (image().attachedName() != app_->paletteSet()->currentKey)
        run(ID_IMAGE_ATTACH);
}

void RealProgram::key(Qt::Key key, Qt::KeyboardModifiers held) {
    if (QApplication::activeWindow() != &frame()) {
        frame().activateWindow();
        QCoreApplication::processEvents();
    }
    QTest::keyClick(&view(), key, held);
}

QPoint RealProgram::at(QPoint texel) {
    const int zoom = view().view().zoom();
    return texel * zoom + QPoint(zoom / 2, zoom / 2) -
           static_cast<const ScrollView&>(view()).scrollPosition();
}

void RealProgram::press(QPoint texel) {
    point(*view().viewport(), QEvent::MouseButtonPress, at(texel));
}

void RealProgram::move(QPoint texel) {
    point(*view().viewport(), QEvent::MouseMove, at(texel));
}

void RealProgram::release(QPoint texel) {
    point(*view().viewport(), QEvent::MouseButtonRelease, at(texel));
}

void RealProgram::drag(std::initializer_list<QPoint> texels) {
    press(*texels.begin());
    for (const QPoint& texel : texels)
        move(texel);
    release(*(texels.end() - 1));
}

CSwatchGrid& RealProgram::grid() {
    return *frame().paletteBar().findChild<CSwatchGrid*>(QString::fromLatin1(IDC_PALETTE_GRID.name));
}

QPoint RealProgram::placeOf(int cell) {
    const CSwatchGrid& cells = grid();
    const QWidget* const window = cells.controlWindow();
    for (int y = 0; y < window->height(); y += 3) {
        for (int x = 0; x < window->width(); x += 3) {
            const int there = cells.cellAt(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
            if (there == cell)
                return {x, y};
        }
    }
    fail("cell " + std::to_string(cell) + " is not shown");
}

void RealProgram::clickCell(int cell, Qt::KeyboardModifiers held) {
    QTest::mouseClick(grid().controlWindow(), Qt::LeftButton, held, placeOf(cell));
}

void RealProgram::enter(const PaletteBarId& field, const QString& text) {
    auto* const edit = frame().paletteBar().findChild<QLineEdit*>(QString::fromLatin1(field.name));
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

void RealProgram::clickButton(const PaletteBarId& button) {
    auto* const widget = frame().paletteBar().findChild<QAbstractButton*>(QString::fromLatin1(button.name));
    QTest::mouseClick(widget, Qt::LeftButton);
}

void RealProgram::dragSlider(const PaletteBarId& slider, double from, double to) {
    QWidget* const window =
        frame().paletteBar().findChild<CRampSlider*>(QString::fromLatin1(slider.name))->controlWindow();
    const auto place = [&](double share) {
        return QPoint(static_cast<int>(share * (window->width() - 1)), window->height() / 2);
    };
    point(*window, QEvent::MouseButtonPress, place(from));
    for (const double share : {(from + to) / 2, to})
        point(*window, QEvent::MouseMove, place(share));
    point(*window, QEvent::MouseButtonRelease, place(to));
}

void RealProgram::answerNext(std::function<void(QDialog&)> answer) {
    answers_.push_back(std::move(answer));
}

void RealProgram::answerNext(Qt::Key key) {
    answerNext([key](QDialog& dialog) {
        QWidget* const focused = dialog.focusWidget();
        QTest::keyClick(focused == nullptr ? &dialog : focused, key);
    });
}

bool RealProgram::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Show)
        return false;
    auto* const dialog = qobject_cast<QDialog*>(watched);
    // Once it waits in its own loop.
    if (dialog != nullptr && dialog->isModal())
        QTimer::singleShot(0, dialog, [this, dialog] { answer(*dialog); });
    return false;
}

void RealProgram::answer(QDialog& dialog) {
    if (!dialog.isVisible())
        return;
    latestDialog = dialog.windowTitle().toStdString();
    for (const QLabel* const label : dialog.findChildren<QLabel*>())
        latestDialog += "\n" + label->text().toStdString();
    // That something takes a while is told, not asked.
    if (qobject_cast<QProgressDialog*>(&dialog) != nullptr)
        return;
    if (answers_.empty())
        fail("nothing was to be asked");
    const auto answer = std::move(answers_.front());
    answers_.pop_front();
    answer(dialog);
}

void RealProgram::fail(const std::string& what) {
    std::fprintf(stderr, "%s\nThe latest dialog:\n%s\n", what.c_str(), latestDialog.c_str());
    std::_Exit(1);
}

void writeImageFile(const QString& file, int width, int height, int bits) {
    TmfImage image;
    image.create(width, height, bits);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setTexel(x, y, static_cast<unsigned>(x / 8 + y / 8 * 5));
    }
    const auto laidOut = layOutTmf(image);
    write(file, {laidOut->header, laidOut->body});
}

void writePaletteFile(const QString& file, int count, int seed) {
    TlutData table;
    table.create(count, ColourType::Rgba);
    for (int i = 0; i < count; ++i)
        table.setEntry(i, static_cast<std::uint16_t>(i * 193 + seed * 7));
    write(file, {serialiseTlf(table)->bytes()});
}

} // namespace dyeworks
