#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QString>

namespace dyeworks {

/// A picture over a checkerboard, which shows where it is transparent: fitted into the room there is, or
/// pixel by pixel with scroll bars. Small pictures are enlarged by whole factors.
class PicturePreview : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// `name` is what screen readers call it.
    explicit PicturePreview(const QString& name, QWidget* parent = nullptr);

    /// The image's pixels must stay while it is shown.
    void setImage(const QImage& image);
    void setActualSize(bool actual);
    /// Scrolls along with the other one, and lets it scroll along.
    void linkWith(PicturePreview& other);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] QSize roomInPixels() const;
    void layOut();

    QImage image_;
    QImage fitted_; ///< Scaled to the room; null while the picture shows pixel by pixel.
    bool actualSize_ = false;
    QPoint dragged_; ///< From where, while a button is held.
};

} // namespace dyeworks
