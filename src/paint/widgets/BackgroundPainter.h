#pragma once

#include <QObject>

class QMdiArea;

namespace dyeworks {

struct BackgroundPicture;

/// Paints what shows of a document area behind its windows: the picture in tiles from the top left corner,
/// each pixel of it one of the area, or a plain colour when there is no picture.
class BackgroundPainter : public QObject {
    Q_OBJECT

public:
    /// Belongs to the area. The picture is copied.
    BackgroundPainter(QMdiArea& area, const BackgroundPicture& picture);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void paintPlain();

    QMdiArea& area_;
    bool tiled_ = false;
};

} // namespace dyeworks
