#pragma once

#include <QObject>

class QString;
class QWidget;

namespace dyeworks {

/// What a control has to say about itself when it is asked what it is: its own explanation, or else its tool
/// tip. Empty: it has nothing to say.
[[nodiscard]] QString helpOf(const QWidget& control);

/// Lets every control answer What's This with `helpOf`, and makes the keys for it, F1 for the control that
/// has the keyboard and Shift+F1 for the next one that is clicked, work in dialogs, which no command reaches.
class ControlHelp : public QObject {
public:
    /// Watches the whole program while it lives.
    explicit ControlHelp(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace dyeworks
