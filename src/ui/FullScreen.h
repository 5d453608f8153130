#pragma once

#include <QByteArray>
#include <QObject>

class QLabel;
class QMainWindow;

namespace dyeworks {

class CPaletteBar;

/// The main window on the whole screen, with nothing but documents in it, and back as it was. Esc, where no
/// document wants it, comes back, too.
class FullScreen : public QObject {
public:
    /// Belongs to the frame.
    FullScreen(QMainWindow& frame, CPaletteBar& paletteBar);

    [[nodiscard]] bool isOn() const noexcept { return on_; }
    void enter();
    void leave();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showHint();
    void bringBarsBack();

    QMainWindow& frame_;
    CPaletteBar& paletteBar_;
    bool on_ = false;
    QByteArray docked_;
    bool statusBarShown_ = false;
    bool paletteBarShown_ = false;
};

} // namespace dyeworks
