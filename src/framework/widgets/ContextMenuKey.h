#pragma once

#include <QObject>

namespace dyeworks {

/// Makes Shift+F10 ask for a context menu wherever the keys are, as the Menu key does, which not every
/// keyboard has.
class ContextMenuKey : public QObject {
    Q_OBJECT

public:
    /// Listens to the whole program while it lives.
    explicit ContextMenuKey(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace dyeworks
