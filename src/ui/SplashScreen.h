#pragma once

#include <QTimer>
#include <QWidget>

#include <chrono>

namespace dyeworks {

/// The picture that the program shows while it starts: in the middle of the screen, without a border. It
/// closes, and destroys itself, after a while or with the first key or mouse button pressed anywhere in the
/// program; that press does nothing else.
class SplashScreen : public QWidget {
    Q_OBJECT

public:
    explicit SplashScreen(std::chrono::milliseconds duration = std::chrono::milliseconds(3000));

Q_SIGNALS:
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTimer timer_;
};

} // namespace dyeworks
