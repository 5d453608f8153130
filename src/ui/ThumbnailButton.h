#pragma once

#include <QAbstractButton>
#include <QImage>

namespace dyeworks {

/// A small picture with a caption beneath, which can be chosen. The one that is chosen already is framed and
/// has its caption in bold; choosing does not change that by itself.
class ThumbnailButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit ThumbnailButton(QWidget* parent);

    /// What is drawn in the middle, opaque; of the size of `pictureRoom` or smaller in one direction. The
    /// pixels are those of the device.
    [[nodiscard]] QImage& picture() noexcept { return picture_; }
    /// In pixels of the device.
    [[nodiscard]] QSize pictureRoom() const;
    /// A part of the picture, in its pixels, has changed.
    void updatePicture(const QRect& part);

    /// Room for a picture of a side of `letters` heights of a letter.
    [[nodiscard]] QSize sizeFor(int letters) const;
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// One of the keys that walk was pressed.
    void walked(int key);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void nextCheckState() override {}

private:
    [[nodiscard]] int margin() const;
    [[nodiscard]] QRect pictureArea() const;
    [[nodiscard]] QPointF picturePlace() const;

    QImage picture_;
};

} // namespace dyeworks
