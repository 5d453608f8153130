#include "project/widgets/CNodeDropSource.h"

#include "project/ProjectPlugIns.h"
#include "project/widgets/DragCursors.h"

#include <QApplication>
#include <QMimeData>
#include <QWidget>

namespace dyeworks {

CNodeDropSource::CNodeDropSource(const QWidget& source, const std::string& text)
    : QDrag(qApp) {
    auto* carried = new QMimeData;
    carried->setText(QString::fromStdString(text));
    setMimeData(carried);
    for (const Qt::DropAction action : {Qt::MoveAction, Qt::CopyAction, Qt::LinkAction})
        setDragCursor(dyeworks::dragCursor(action, source.devicePixelRatioF()), action);
}

void CNodeDropSource::DoDragDrop() {
    exec(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::MoveAction);
}

Qt::DropAction CNodeDropSource::GiveFeedback(std::uint32_t effect) {
    if ((effect & drop_effect::kMove) != 0)
        return Qt::MoveAction;
    if ((effect & drop_effect::kCopy) != 0)
        return Qt::CopyAction;
    return (effect & drop_effect::kLink) != 0 ? Qt::LinkAction : Qt::IgnoreAction;
}

} // namespace dyeworks
