#pragma once

#include <QObject>

#include <array>
#include <string>

class QLabel;
class QStatusBar;

namespace dyeworks {

/// The panes of the status bar: 0 takes messages and gives way to prompts of commands while there is one, 1
/// is for the pointer's position and 2 for the image's size.
class StatusPanes : public QObject {
    Q_OBJECT

public:
    // How the message pane is drawn.
    static constexpr unsigned kNoBorders = 0x0100;
    static constexpr unsigned kRaised = 0x0200;
    static constexpr unsigned kRightToLeft = 0x0400;

    /// Belongs to the bar.
    explicit StatusPanes(QStatusBar& bar);

    /// `pane` is 0 to 2. The flags are for pane 0; without any of them it has a sunken border.
    void setText(const std::string& text, int pane, unsigned flags);
    /// What pane 0 says.
    [[nodiscard]] std::string message() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitWidths();

    QStatusBar& bar_;
    std::array<QLabel*, 3> panes_{};
};

} // namespace dyeworks
