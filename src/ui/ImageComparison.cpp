#include "ui/ImageComparison.h"

#include "framework/widgets/DesktopMotion.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CanvasFile.h"
#include "paint/widgets/ImageView.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QTimerEvent>

#include <algorithm>
#include <array>
#include <string>

namespace dyeworks {

namespace {

constexpr int kTurnMilliseconds = 700;

std::array<std::int32_t, 3> shapeOf(const TextureCanvas& canvas) {
    return {canvas.width(), canvas.height(), canvas.bitsPerPixel()};
}

} // namespace

std::unique_ptr<ImageComparison> ImageComparison::start(ImageView& view) {
    auto other = std::make_unique<TextureCanvas>();
    if (!loadCanvas(*other, view.view().document().pathName()))
        return nullptr;
    return std::unique_ptr<ImageComparison>(new ImageComparison(view, std::move(other)));
}

ImageComparison::ImageComparison(ImageView& view, std::unique_ptr<TextureCanvas> other)
    : view_(&view)
    , other_(std::move(other)) {
    takeColours();
    view.viewport()->installEventFilter(this);
    show(true);
    if (motionIsWelcome())
        timer_.start(kTurnMilliseconds, this);
}

ImageComparison::~ImageComparison() {
    if (view_ != nullptr)
        view_->view().ShowInstead(nullptr);
}

void ImageComparison::takeColours() {
    if (view_ == nullptr)
        return;
    const CDyeworksDoc& document = view_->view().document();
    const auto own = document.canvas().colourTable();
    const auto colours = other_->colourTable();
    if (own.size() == colours.size())
        std::ranges::copy(own, colours.begin());
    else if (const TextureLookupTable* const palette = document.GetAttachedPalette())
        other_->ApplyPalette(*palette, 0);
    if (showsFile_)
        view_->viewport()->update();
}

QString ImageComparison::words() const {
    QString words = shown(showsFile_ ? StringId::OutsideShowsFile : StringId::OutsideShowsOwn);
    if (view_ == nullptr)
        return words;
    const auto file = shapeOf(*other_);
    const auto own = shapeOf(view_->view().document().canvas());
    if (file != own)
        words += QStringLiteral("\n") +
                 shown(StringId::OutsideSizesDiffer,
                       {std::to_string(file[0]), std::to_string(file[1]), std::to_string(file[2]),
                        std::to_string(own[0]), std::to_string(own[1]), std::to_string(own[2])});
    return words;
}

void ImageComparison::show(bool file) {
    showsFile_ = file;
    if (view_ != nullptr)
        view_->view().ShowInstead(file ? other_.get() : nullptr);
}

void ImageComparison::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_.timerId())
        return QObject::timerEvent(event);
    if (!motionIsWelcome())
        timer_.stop();
    show(!showsFile_ || !timer_.isActive());
    Q_EMIT turned();
}

/// A stroke would go into an image that does not show.
bool ImageComparison::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        Q_EMIT left();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace dyeworks
