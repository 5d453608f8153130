#include "ui/ThumbnailSheet.h"

#include "paint/TextureCanvas.h"
#include "ui/ThumbnailButton.h"

#include <QEvent>

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

constexpr int kFirstLetters = 4; // Height of a thumbnail that shares the room, in letters, at first;
constexpr int kLeastLetters = 1; // and at least.
constexpr int kFreeLetters = 6;  // Where there is as much room as wished.

} // namespace

ThumbnailSheet::ThumbnailSheet(int columns)
    : columns_(columns) {}

void ThumbnailSheet::makeButtons() {
    while (buttons_.size() < variants_.size()) {
        auto* button = new ThumbnailButton(this);
        const auto index = static_cast<int>(buttons_.size());
        connect(button, &ThumbnailButton::clicked, this, [this, index] { Q_EMIT chosen(index); });
        connect(button, &ThumbnailButton::walked, this, [this, index](int key) { walk(index, key); });
        buttons_.push_back(button);
    }
    for (std::size_t i = 0; i < buttons_.size(); ++i)
        buttons_[i]->setVisible(i < variants_.size());
}

void ThumbnailSheet::showAll(const TextureCanvas& canvas, std::vector<ImageVariant> variants) {
    const bool isOther = variants.size() != variants_.size();
    variants_ = std::move(variants);
    if (isOther) {
        makeButtons();
        arrange();
        updateGeometry();
    }
    if (variants_.empty())
        return;
    const QSize room = buttons_.front()->pictureRoom();
    thumbnail_.take(canvas, {room.width(), room.height()});
    for (int i = 0; i < count(); ++i) {
        ThumbnailButton& button = *buttons_[static_cast<std::size_t>(i)];
        const ImageVariant& shown = variant(i);
        button.setText(QString::fromStdString(shown.caption));
        button.setAccessibleName(QString::fromStdString(shown.name));
        button.setToolTip(QString::fromStdString(shown.tip));
        button.setChecked(shown.isOwn);
        const QSize size(thumbnail_.size().width, thumbnail_.size().height);
        if (button.picture().size() != size)
            button.picture() = QImage(size, QImage::Format_RGB32);
        if (!thumbnail_.isEmpty())
            colour(i, thumbnail_.whole());
        button.update();
    }
}

void ThumbnailSheet::showTexels(const TextureCanvas& canvas, const Rect& texels) {
    if (variants_.empty() || thumbnail_.isEmpty())
        return;
    const auto part = thumbnail_.update(canvas, texels);
    if (!part)
        return;
    for (int i = 0; i < count(); ++i) {
        colour(i, *part);
        buttons_[static_cast<std::size_t>(i)]->updatePicture(
            QRect(QPoint(part->left, part->top), QPoint(part->right, part->bottom)));
    }
}

void ThumbnailSheet::colour(int index, const Rect& part) {
    QImage& picture = buttons_[static_cast<std::size_t>(index)]->picture();
    thumbnail_.colour(variant(index).colours, part, reinterpret_cast<std::uint32_t*>(picture.bits()),
                      picture.bytesPerLine() / 4);
}

int ThumbnailSheet::columnsNow() const {
    if (columns_ > 0 || buttons_.empty())
        return std::max(columns_, 1);
    return std::max(1, width() / buttons_.front()->sizeFor(kFreeLetters).width());
}

void ThumbnailSheet::arrange() {
    if (variants_.empty())
        return;
    const int columns = columnsNow();
    const int rows = (count() + columns - 1) / columns;
    if (columns_ == 0)
        setMinimumHeight(rows * buttons_.front()->sizeFor(kFreeLetters).height());
    const int fullHeight = columns_ == 0 ? minimumHeight() : height();
    // All of the same size, so that one reduced image serves them all.
    const int across = width() / columns;
    const QSize cell(across, std::min(fullHeight / rows, across + fontMetrics().height()));
    for (int i = 0; i < count(); ++i)
        buttons_[static_cast<std::size_t>(i)]->setGeometry(
            QRect(QPoint(i % columns * cell.width(), i / columns * cell.height()), cell));
}

void ThumbnailSheet::walk(int from, int key) {
    const int columns = columnsNow();
    const int target = key == Qt::Key_Left    ? from - 1
                       : key == Qt::Key_Right ? from + 1
                       : key == Qt::Key_Up    ? from - columns
                       : key == Qt::Key_Down  ? from + columns
                       : key == Qt::Key_Home  ? 0
                                              : count() - 1;
    if (target >= 0 && target < count())
        buttons_[static_cast<std::size_t>(target)]->setFocus(Qt::TabFocusReason);
}

QSize ThumbnailSheet::sizeHint() const {
    const int columns = std::max(columns_, 1);
    return ThumbnailButton(nullptr).sizeFor(columns_ > 0 ? kFirstLetters : kFreeLetters) * columns;
}

QSize ThumbnailSheet::minimumSizeHint() const {
    return columns_ > 0 ? ThumbnailButton(nullptr).sizeFor(kLeastLetters) * columns_ : QSize();
}

void ThumbnailSheet::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
    Q_EMIT resized();
}

void ThumbnailSheet::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    updateGeometry();
    arrange();
    Q_EMIT resized();
}

} // namespace dyeworks
