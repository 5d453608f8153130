#include "ui/SplashScreen.h"

#include "platform/StringId.h"
#include "platform/Text.h"
#include "platform/Version.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>

namespace dyeworks {

namespace {

constexpr QSize kSize{480, 300};
// Where the texts stand in the picture.
constexpr QRect kNamePlace{32, 196, 416, 44};
constexpr QRect kVersionPlace{32, 240, 416, 28};
constexpr int kNamePixels = 34;
constexpr int kVersionPixels = 15;
constexpr QColor kInk{0xF4, 0xEF, 0xE6};

bool closesOn(const QMouseEvent& press) {
    return press.button() == Qt::LeftButton || press.button() == Qt::RightButton ||
           press.button() == Qt::MiddleButton;
}

void write(QPainter& painter, const QRect& place, int pixels, QFont::Weight weight, const QString& line) {
    QFont font = painter.font();
    font.setPixelSize(pixels);
    font.setWeight(weight);
    painter.setFont(font);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, line);
}

} // namespace

SplashScreen::SplashScreen(std::chrono::milliseconds duration)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
    , timer_(this) {
    setObjectName(QStringLiteral("IDW_SPLASH"));
    setWindowTitle(QString::fromStdString(text(StringId::ApplicationTitle)));
    setAttribute(Qt::WA_DeleteOnClose);
    // The keyboard belongs to the main window, and so does the end of the program.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(kSize);
    move(screen()->geometry().center() - rect().center());
    qApp->installEventFilter(this);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &QWidget::close);
    timer_.start(duration);
}

void SplashScreen::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QSvgRenderer(QStringLiteral(":/icons/splash.svg")).render(&painter, QRectF(rect()));
    painter.setPen(kInk);
    write(painter, kNamePlace, kNamePixels, QFont::DemiBold, windowTitle());
    write(painter, kVersionPlace, kVersionPixels, QFont::Normal, QString::fromLatin1(kVersionText));
}

void SplashScreen::closeEvent(QCloseEvent* event) {
    qApp->removeEventFilter(this);
    timer_.stop();
    QWidget::closeEvent(event);
    Q_EMIT closed();
}

bool SplashScreen::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Comes before the press itself, which would otherwise run a command as a shortcut.
        event->accept();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::NonClientAreaMouseButtonPress:
        if (!closesOn(static_cast<const QMouseEvent&>(*event)))
            break;
        [[fallthrough]];
    case QEvent::KeyPress:
        close();
        return true;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace dyeworks
