// Renders the icons of the desktop at build time.
//
//   dyeworks_render_icons FOLDER/NAME.svg TARGET CONTEXT SIZE...
//
// writes TARGET/<SIZE>x<SIZE>/CONTEXT/NAME.png for each size and copies the drawing to
// TARGET/scalable/CONTEXT. The smallest sizes are drawn from NAME-small.svg, which lies on a grid of 16.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kLargestSmall = 16;

bool fail(const QString& path) {
    std::fprintf(stderr, "dyeworks_render_icons: cannot read or write %s\n", qPrintable(path));
    return false;
}

bool render(const QString& drawing, int side, const QString& target) {
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid())
        return fail(drawing);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return (QDir().mkpath(QFileInfo(target).path()) && image.save(target, "PNG")) || fail(target);
}

bool copy(const QString& drawing, const QString& target) {
    QFile::remove(target);
    return (QDir().mkpath(QFileInfo(target).path()) && QFile::copy(drawing, target)) || fail(target);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 5) {
        std::fputs("usage: dyeworks_render_icons FOLDER/NAME.svg TARGET CONTEXT SIZE...\n", stderr);
        return 2;
    }
    const QFileInfo drawing(QFile::decodeName(argv[1]));
    const QString small = drawing.path() + u'/' + drawing.completeBaseName() + QStringLiteral("-small.svg");
    const QString target = QFile::decodeName(argv[2]);
    const QString context = QFile::decodeName(argv[3]);
    bool done =
        copy(drawing.filePath(),
             QStringLiteral("%1/scalable/%2/%3.svg").arg(target, context, drawing.completeBaseName()));
    for (int i = 4; i < argc; ++i) {
        const int side = std::atoi(argv[i]);
        done = render(side <= kLargestSmall ? small : drawing.filePath(), side,
                      QStringLiteral("%1/%2x%2/%3/%4.png")
                          .arg(target)
                          .arg(side)
                          .arg(context, drawing.completeBaseName())) &&
               done;
    }
    return done ? EXIT_SUCCESS : EXIT_FAILURE;
}
