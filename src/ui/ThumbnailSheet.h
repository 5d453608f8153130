#pragma once

#include "paint/IndexThumbnail.h"
#include "ui/ImageVariants.h"

#include <QWidget>

#include <vector>

namespace dyeworks {

class TextureCanvas;
class ThumbnailButton;

/// One image as many thumbnails, each in other colours. The image is reduced once for all of them.
class ThumbnailSheet : public QWidget {
    Q_OBJECT

public:
    /// With so many columns, sharing the room that there is; or, with 0, with as many as fit, as high as that
    /// takes.
    explicit ThumbnailSheet(int columns);

    /// Shows the variants of an image.
    void showAll(const TextureCanvas& canvas, std::vector<ImageVariant> variants);
    /// Texels (inclusive) of the same image, which has the same size, have changed.
    void showTexels(const TextureCanvas& canvas, const Rect& texels);
    [[nodiscard]] const ImageVariant& variant(int index) const {
        return variants_[static_cast<std::size_t>(index)];
    }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void chosen(int index);
    /// The thumbnails have another size: `showAll` is due.
    void resized();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] int count() const { return static_cast<int>(variants_.size()); }
    [[nodiscard]] int columnsNow() const;
    void makeButtons();
    void arrange();
    void walk(int from, int key);
    void colour(int index, const Rect& part);

    int columns_;
    std::vector<ImageVariant> variants_;
    std::vector<ThumbnailButton*> buttons_; ///< Maybe more than there are variants.
    IndexThumbnail thumbnail_;
};

} // namespace dyeworks
