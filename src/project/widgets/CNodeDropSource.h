#pragma once

#include <QDrag>

#include <cstdint>
#include <string>

class QWidget;

namespace dyeworks {

/// A drag of a node's text, with cursors of its own for what a drop would do.
class CNodeDropSource : public QDrag {
    Q_OBJECT

public:
    /// Qt deletes the drag when it is over, whether `source` is still there or not.
    CNodeDropSource(const QWidget& source, const std::string& text);

    /// Returns when the drag is over. It may end in a copy, a move or a link.
    void DoDragDrop();

    /// The action whose cursor is shown for an effect (`drop_effect`) of several bits. `Qt::IgnoreAction`:
    /// the desktop's own cursor.
    [[nodiscard]] static Qt::DropAction GiveFeedback(std::uint32_t effect);
};

} // namespace dyeworks
