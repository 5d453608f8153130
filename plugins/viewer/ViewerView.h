#pragma once

#include "viewer/ViewerPicture.h"

#include <QAbstractScrollArea>

#include <functional>

namespace dyeworks::plugins {

/// Shows a picture, repeated in both directions and magnified by a whole number, in a viewport that scrolls
/// when it is too small.
///
/// A zoom of 1 is one pixel of the screen per texel, on screens with a scale factor as many as the factor
/// rounds to; every texel has the same size.
class ViewerView : public QAbstractScrollArea {
public:
    static constexpr int kMaxTiles = 4;
    static constexpr int kMaxZoom = 8;
    /// Stands for the largest zoom at which all tiles are visible, at least 1.
    static constexpr int kAutomatic = 0;

    explicit ViewerView(QWidget* parent = nullptr);

    /// Takes the picture over and has what differs repainted. False, with nothing changed, when it cannot be
    /// shown. May throw std::bad_alloc.
    [[nodiscard]] bool show(const PlugInPicture& picture);

    [[nodiscard]] int tiles() const noexcept { return tiles_; }
    [[nodiscard]] bool showsAlpha() const noexcept { return alpha_; }
    /// As chosen: kAutomatic, or 1 to kMaxZoom.
    [[nodiscard]] int zoom() const noexcept { return zoom_; }
    /// As shown.
    [[nodiscard]] int effectiveZoom() const;

    /// 1 to kMaxTiles, in each direction.
    void setTiles(int tiles);
    void setZoom(int zoom);
    void setShowsAlpha(bool on);
    /// By one step, from what is shown; past the ends nothing happens.
    void zoomIn();
    void zoomOut();

    /// Called when the zoom that was chosen changes.
    std::function<void()> zoomChanged;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// Pixels of the screen that a zoom of 1 makes of a texel.
    [[nodiscard]] int pixelStep() const;
    /// All tiles, in pixels of the screen.
    [[nodiscard]] QSize contentSize() const;
    /// Where they are, in pixels of the screen from the viewport's corner.
    [[nodiscard]] QRect contentRect() const;
    void updateScrollBars();
    void repaintRows(const ViewerPicture::Rows& rows);
    [[nodiscard]] bool isDark() const;

    ViewerPicture picture_;
    int tiles_ = 1;
    int zoom_ = kAutomatic;
    bool alpha_ = true;
    int wheelTurned_ = 0; ///< Of a step of the zoom, in eighths of a degree.
};

} // namespace dyeworks::plugins
