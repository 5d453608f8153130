#pragma once

#include "paint/TextureCanvas.h"

#include <QBasicTimer>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

namespace dyeworks {

class ImageView;

/// Shows the image of a document's file in its window in turn with the document's own, or, where the desktop
/// asks for less motion, all the time. Ends with a press of the mouse in the image.
class ImageComparison : public QObject {
    Q_OBJECT

public:
    /// Null when the file cannot be read, which has been reported.
    [[nodiscard]] static std::unique_ptr<ImageComparison> start(ImageView& view);
    ~ImageComparison() override;

    /// What shows now, in words.
    [[nodiscard]] QString words() const;
    /// The document shows in other colours.
    void takeColours();

Q_SIGNALS:
    void turned();
    /// The user wants to work on.
    void left();

protected:
    void timerEvent(QTimerEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ImageComparison(ImageView& view, std::unique_ptr<TextureCanvas> other);
    void show(bool file);

    QPointer<ImageView> view_;
    std::unique_ptr<TextureCanvas> other_;
    QBasicTimer timer_;
    bool showsFile_ = false;
};

} // namespace dyeworks
