#include "ui/palettebar/PaletteBarMenu.h"

#include "framework/CommandIds.h"

#include <QtGlobal>

#include <array>

namespace dyeworks {

namespace {

constexpr std::array kChangeMenu{
    MenuItem{ID_RANGE_RAMP},    MenuItem{ID_RANGE_ADJUST}, MenuItem{ID_RANGE_INVERT},
    MenuItem{ID_RANGE_REVERSE}, MenuItem{ID_RANGE_FILL},
};

constexpr std::array kPaletteBarMenu{
    MenuItem{ID_PALETTE_NEW},
    MenuItem{ID_PALETTE_OPEN},
    MenuItem{ID_PALETTE_CLOSE},
    kSeparator,
    MenuItem{ID_PALETTE_SAVE},
    MenuItem{ID_PALETTE_SAVE_AS},
    kSeparator,
    MenuItem{ID_PALETTE_EDIT},
    MenuItem{ID_IMAGE_ATTACH},
    kSeparator,
    MenuItem{ID_PALETTE_UNDO},
    MenuItem{ID_PALETTE_REDO},
    kSeparator,
    MenuItem{ID_PALETTE_COPY},
    MenuItem{ID_PALETTE_PASTE},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "C&hange Entries"), kChangeMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Arrange En&tries"), kArrangeMenu},
    kSeparator,
    MenuItem{ID_VIEW_USAGE},
    MenuItem{ID_PALETTE_SHOW_TEXELS},
    kSeparator,
    MenuItem{ID_VIEW_CELLS_ONLY},
};

} // namespace

std::span<const MenuItem> paletteBarMenu() {
    return kPaletteBarMenu;
}

} // namespace dyeworks
