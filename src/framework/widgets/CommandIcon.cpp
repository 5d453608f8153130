#include "framework/widgets/CommandIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

// The resources are part of a static library; without this call the linker leaves them out.
static void initializeIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace dyeworks {

namespace {

/// A colour that stands in the drawings beside the text colour, and the one that takes its place on a dark
/// background.
struct Accent {
    const char* onLight;
    const char* onDark;
};

constexpr std::array kAccents{Accent{"#2a7de1", "#64a9ff"}, Accent{"#d98a1f", "#f2b04e"},
                              Accent{"#d1495b", "#f27c8a"}};

constexpr qreal kDisabledOpacity = 0.38;
constexpr float kPlateOpacity = 0.4F;

class SvgIconEngine : public QIconEngine {
public:
    SvgIconEngine(const QString& name, bool isButton)
        : name_(name)
        , isButton_(isButton) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const QColor text = textColour(mode);
        QSvgRenderer renderer(inColours(text, mode == QIcon::Selected));
        if (!renderer.isValid())
            return;
        const int side = std::min(rect.width(), rect.height());
        const QRectF square(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2, side,
                            side);
        if (isButton_ && state == QIcon::On && mode != QIcon::Selected && isLight(text))
            drawPlate(*painter, square);
        if (mode != QIcon::Disabled) {
            renderer.render(painter, square);
            return;
        }
        // Dimmed as a whole: shape by shape, those that overlap would shine through each other.
        const qreal scale = painter->device()->devicePixelRatioF();
        QImage whole((square.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        whole.fill(Qt::transparent);
        QPainter wholePainter(&whole);
        renderer.render(&wholePainter);
        wholePainter.end();
        painter->save();
        painter->setOpacity(painter->opacity() * kDisabledOpacity);
        painter->drawImage(square, whole);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1.0);
    }

    /// `size` is in device pixels.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal /*scale*/) override {
        const QString key = QStringLiteral("dyeworks-icon/%1/%2x%3/%4/%5")
                                .arg(name_)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(static_cast<int>(mode) * 2 + static_cast<int>(state))
                                .arg(textColour(mode).rgba());
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = QPixmap(size);
            pixmap.fill(Qt::transparent);
            QPainter painter(&pixmap);
            paint(&painter, QRect(QPoint(0, 0), size), mode, state);
            painter.end();
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }

    bool isNull() override { return !QFile::exists(fileName()); }
    QString key() const override { return QStringLiteral("dyeworks"); }
    QIconEngine* clone() const override { return new SvgIconEngine(*this); }

private:
    /// Styles shade a button that is switched on by some part of its brightness, which shows little on a dark
    /// bar.
    static void drawPlate(QPainter& painter, const QRectF& square) {
        QColor colour = QGuiApplication::palette().color(QPalette::Active, QPalette::Highlight);
        const qreal line = square.width() / 16;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colour, line));
        colour.setAlphaF(kPlateOpacity);
        painter.setBrush(colour);
        const qreal inset = line / 2;
        painter.drawRoundedRect(square.adjusted(inset, inset, -inset, -inset), 2 * line, 2 * line);
        painter.restore();
    }

    static bool isLight(const QColor& text) { return text.lightnessF() > 0.5F; }

    static QColor textColour(QIcon::Mode mode) {
        const QPalette palette = QGuiApplication::palette();
        // Menus show the chosen line in the colours of a selection.
        return mode == QIcon::Selected ? palette.color(QPalette::HighlightedText)
                                       : palette.color(QPalette::Active, QPalette::ButtonText);
    }

    [[nodiscard]] QString fileName() const { return QStringLiteral(":/icons/%1.svg").arg(name_); }

    /// `plain`: in the one colour, which alone is sure to be seen on a selection.
    [[nodiscard]] QByteArray inColours(const QColor& text, bool plain) const {
        // Read when it is drawn first, since most icons stand in menus that may never open.
        QFile file(fileName());
        QByteArray drawing = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        drawing.replace("currentColor", text.name().toLatin1());
        for (const Accent& accent : kAccents) {
            if (plain)
                drawing.replace(accent.onLight, text.name().toLatin1());
            else if (isLight(text))
                drawing.replace(accent.onLight, accent.onDark);
        }
        return drawing;
    }

    QString name_;
    bool isButton_;
};

QIcon drawnIcon(const QString& name, bool isButton) {
    initializeIcons();
    return QIcon(new SvgIconEngine(name, isButton));
}

} // namespace

QIcon commandIcon(const QString& name) {
    return name.isEmpty() ? QIcon() : drawnIcon(name, true);
}

QIcon signIcon(const QString& name) {
    return drawnIcon(name, false);
}

} // namespace dyeworks
