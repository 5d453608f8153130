#include "ui/ImagePrinter.h"

#include "paint/widgets/ImageView.h"
#include "ui/PagePlan.h"

#include <QImage>
#include <QPainter>
#include <QPrinter>

#include <algorithm>

namespace dyeworks {

namespace {

constexpr std::int32_t kStripHeight = 256; // So that large paper needs no buffer of its size.
constexpr std::uint32_t kPaperColour = 0xffffffff;

PagePlan planFor(const ImageView& view, Size content, const QPrinter& printer) {
    const QRect paper = printer.pageLayout().paintRectPixels(printer.resolution());
    const double dots = printer.resolution();
    return {content,
            {paper.width(), paper.height()},
            {static_cast<double>(view.logicalDpiX()), dots},
            {static_cast<double>(view.logicalDpiY()), dots}};
}

QRect toQt(const Rect& rectangle) {
    return {QPoint(rectangle.left, rectangle.top), QPoint(rectangle.right - 1, rectangle.bottom - 1)};
}

[[nodiscard]] bool paintStrip(QPainter& painter, const CDyeworksView& view, const Rect& content,
                              const QRect& paper) {
    QImage strip(content.right - content.left, content.bottom - content.top, QImage::Format_RGB32);
    if (strip.isNull())
        return false;
    Surface surface;
    surface.pixels = reinterpret_cast<std::uint32_t*>(strip.bits());
    surface.width = strip.width();
    surface.height = strip.height();
    surface.stride = strip.bytesPerLine() / static_cast<qsizetype>(sizeof(std::uint32_t));
    surface.originX = content.left;
    surface.originY = content.top;
    view.PaintPrinted(surface, content, kPaperColour);
    painter.drawImage(paper, strip);
    return true;
}

[[nodiscard]] bool paintPage(QPainter& painter, const CDyeworksView& view, const PagePlan& plan, int page) {
    const Rect whole = plan.contentOf(page);
    if (whole.left >= whole.right)
        return true;
    for (std::int32_t top = whole.top; top < whole.bottom; top += kStripHeight) {
        const Rect strip{whole.left, top, whole.right, std::min(whole.bottom, top + kStripHeight)};
        if (!paintStrip(painter, view, strip, toQt(plan.paperOf(page, strip))))
            return false;
    }
    return true;
}

} // namespace

int ImagePrinter::pageCount(const QPrinter& printer) const {
    return view_.view().showsNoPalette() ? 1
                                         : planFor(view_, view_.view().printedSize(), printer).pageCount();
}

bool ImagePrinter::print(QPrinter& printer, const Progress& progress) const {
    const CDyeworksView& view = view_.view();
    const PagePlan plan = planFor(view_, view.printedSize(), printer);
    const int pages = pageCount(printer);
    const int first = printer.fromPage() > 0 ? printer.fromPage() : 1;
    const int last = printer.toPage() > 0 ? std::min(printer.toPage(), pages) : pages;

    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    // Texels keep their edges and their exact colours.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    for (int page = first; page <= last; ++page) {
        if (!progress(page, pages)) {
            printer.abort();
            return false;
        }
        if (page > first && !printer.newPage())
            return false;
        if (view.showsNoPalette()) {
            const QRect paper = painter.viewport();
            painter.drawText(paper.adjusted(0, paper.height() / 2, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                             QStringLiteral("NO PALETTE"));
        } else if (!paintPage(painter, view, plan, page - 1)) {
            printer.abort();
            return false;
        }
    }
    return painter.end() && printer.printerState() != QPrinter::Error;
}

} // namespace dyeworks
