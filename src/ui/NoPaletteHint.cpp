#include "ui/NoPaletteHint.h"

#include "framework/widgets/ChildFrame.h"
#include "framework/widgets/MdiFrame.h"
#include "paint/CDyeworksDoc.h"
#include "paint/widgets/ImageView.h"
#include "platform/StringId.h"
#include "platform/Text.h"
#include "ui/StatusPanes.h"

#include <utility>

namespace dyeworks {

NoPaletteHint::NoPaletteHint(MdiFrame& frame, StatusPanes& panes)
    : QObject(&frame)
    , frame_(frame)
    , panes_(panes) {
    connect(&frame, &MdiFrame::activeChildChanged, this, &NoPaletteHint::activated);
}

void NoPaletteHint::activated(ChildFrame* child) {
    // The palette that an image is attached to is part of its title.
    if (child != nullptr)
        connect(child, &QWidget::windowTitleChanged, this, &NoPaletteHint::follow, Qt::UniqueConnection);
    follow();
}

void NoPaletteHint::follow() {
    const ChildFrame* const child = frame_.activeChild();
    auto* const view = child == nullptr ? nullptr : qobject_cast<ImageView*>(child->widget());
    const bool tells = view != nullptr && !view->view().document().IsAttached();
    const bool told = std::exchange(tells_, tells);
    const std::string hint = text(StringId::ImageHasNoPalette);
    if (tells && !told)
        panes_.setText(hint, 0, 0);
    else if (told && !tells && panes_.message() == hint)
        panes_.setText({}, 0, 0);
}

} // namespace dyeworks
