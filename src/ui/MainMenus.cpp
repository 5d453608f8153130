#include "ui/MainMenus.h"

#include "ui/palettebar/PaletteBarMenu.h"

#include <QtGlobal>

#include <array>

namespace dyeworks {

namespace {

// The recent files.
constexpr std::array kRecentProjects{
    MenuItem{ID_RECENT_PROJECT_FIRST},
};

constexpr std::array kRecentImages{
    MenuItem{ID_RECENT_IMAGE_FIRST},
};

constexpr std::array kRecentPalettes{
    MenuItem{ID_RECENT_PALETTE_FIRST},
};

constexpr std::array kFileMenu{
    MenuItem{ID_FILE_NEW},
    MenuItem{ID_FILE_OPEN},
    MenuItem{ID_FILE_IMPORT_BMP},
    MenuItem{ID_TEXTURE_NEW},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Recent Pro&ject Files"), kRecentProjects},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Recent I&mage Files"), kRecentImages},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Recent Pa&lette Files"), kRecentPalettes},
    kSeparator,
    MenuItem{ID_FILE_PRINT_SETUP},
    kSeparator,
    MenuItem{ID_APP_EXIT},
};

constexpr std::array kImportMenu{
    MenuItem{ID_IMPORT_FIRST},
};

constexpr std::array kExportMenu{
    MenuItem{ID_EXPORT_FIRST},
};

constexpr std::array kImageFileMenu{
    MenuItem{ID_FILE_NEW},
    MenuItem{ID_FILE_OPEN},
    MenuItem{ID_FILE_CLOSE},
    MenuItem{ID_FILE_IMPORT_BMP},
    MenuItem{ID_TEXTURE_NEW},
    kSeparator,
    MenuItem{ID_FILE_SAVE},
    MenuItem{ID_FILE_SAVE_AS},
    MenuItem{ID_FILE_REVERT},
    MenuItem{ID_FILE_EXPORT_BMP},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Import"), kImportMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Export"), kExportMenu},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Recent Pro&ject Files"), kRecentProjects},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Recent I&mage Files"), kRecentImages},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Recent Pa&lette Files"), kRecentPalettes},
    kSeparator,
    MenuItem{ID_FILE_PRINT},
    MenuItem{ID_FILE_PRINT_DIRECT},
    MenuItem{ID_FILE_PRINT_PREVIEW},
    MenuItem{ID_FILE_PRINT_SETUP},
    kSeparator,
    MenuItem{ID_APP_EXIT},
};

constexpr std::array kProjectFileMenu{
    MenuItem{ID_FILE_NEW},
    MenuItem{ID_FILE_OPEN},
    MenuItem{ID_FILE_CLOSE},
    MenuItem{ID_FILE_IMPORT_BMP},
    MenuItem{ID_TEXTURE_NEW},
    kSeparator,
    MenuItem{ID_FILE_SAVE},
    MenuItem{ID_FILE_SAVE_AS},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Export"), kExportMenu},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Recent Pro&ject Files"), kRecentProjects},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Recent I&mage Files"), kRecentImages},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Recent Pa&lette Files"), kRecentPalettes},
    kSeparator,
    MenuItem{ID_FILE_PRINT_SETUP},
    kSeparator,
    MenuItem{ID_APP_EXIT},
};

constexpr std::array kEditMenu{
    MenuItem{ID_EDIT_UNDO},
    MenuItem{ID_EDIT_REDO},
    kSeparator,
    MenuItem{ID_EDIT_CUT},
    MenuItem{ID_EDIT_COPY},
    MenuItem{ID_EDIT_PASTE},
    kSeparator,
    MenuItem{ID_OPTIONS},
    kSeparator,
    MenuItem{ID_EDIT_PASTE_NEW},
};

constexpr std::array kImageEditMenu{
    MenuItem{ID_EDIT_UNDO},
    MenuItem{ID_EDIT_REDO},
    kSeparator,
    MenuItem{ID_EDIT_CUT},
    MenuItem{ID_EDIT_COPY},
    MenuItem{ID_EDIT_PASTE},
    kSeparator,
    MenuItem{ID_EDIT_SELECT_ALL},
    MenuItem{ID_CANCEL_SELECTION},
    kSeparator,
    MenuItem{ID_FLIP_X},
    MenuItem{ID_FLIP_Y},
    kSeparator,
    MenuItem{ID_OPTIONS},
    kSeparator,
    MenuItem{ID_EDIT_PASTE_NEW},
    MenuItem{ID_EDIT_PASTE_MATCHING},
};

constexpr std::array kZoomMenu{
    MenuItem{ID_ZOOM_X1}, MenuItem{ID_ZOOM_X2},      MenuItem{ID_ZOOM_X3},  MenuItem{ID_ZOOM_X4},
    MenuItem{ID_ZOOM_X6}, MenuItem{ID_ZOOM_X8},      MenuItem{ID_ZOOM_X12}, MenuItem{ID_ZOOM_X16},
    kSeparator,           MenuItem{ID_ZOOM_SPECIFY},
};

constexpr std::array kBarsMenu{
    MenuItem{ID_VIEW_PALETTEBAR}, MenuItem{ID_VIEW_PROJECTBAR}, MenuItem{ID_VIEW_TOOLBAR},
    MenuItem{ID_VIEW_DRAWBAR},    MenuItem{ID_VIEW_VIEWBAR},    MenuItem{ID_VIEW_STATUS_BAR},
    MenuItem{ID_VIEW_BRUSHBAR},   MenuItem{ID_VIEW_FINDINGS},   MenuItem{ID_VIEW_BANKSBAR},
    MenuItem{ID_VIEW_UNDO_LIST},
};

constexpr std::array kViewMenu{
    MenuItem{ID_VIEW_PALETTEBAR},
    MenuItem{ID_VIEW_PROJECTBAR},
    MenuItem{ID_VIEW_TOOLBAR},
    MenuItem{ID_VIEW_DRAWBAR},
    MenuItem{ID_VIEW_VIEWBAR},
    MenuItem{ID_VIEW_STATUS_BAR},
    MenuItem{ID_VIEW_BRUSHBAR},
    MenuItem{ID_VIEW_FINDINGS},
    MenuItem{ID_VIEW_BANKSBAR},
    MenuItem{ID_VIEW_UNDO_LIST},
    kSeparator,
    MenuItem{ID_VIEW_FULL_SCREEN},
    MenuItem{ID_VIEW_RESET_LAYOUT},
    MenuItem{ID_VIEW_START_PAGE},
    MenuItem{ID_VIEW_CELLS_ONLY},
};

constexpr std::array kImageViewMenu{
    MenuItem{ID_ZOOM_IN},
    MenuItem{ID_ZOOM_OUT},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Zoom"), kZoomMenu},
    kSeparator,
    MenuItem{ID_VIEW_GRID},
    kSeparator,
    MenuItem{ID_PREVIEW1},
    MenuItem{ID_PREVIEW2},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Bars"), kBarsMenu},
    kSeparator,
    MenuItem{ID_VIEW_REPEAT},
    kSeparator,
    MenuItem{ID_VIEW_FULL_SCREEN},
    MenuItem{ID_VIEW_RESET_LAYOUT},
    MenuItem{ID_VIEW_START_PAGE},
    MenuItem{ID_VIEW_CELLS_ONLY},
};

constexpr std::array kImageMenu{
    MenuItem{ID_IMAGE_ATTACH},
    MenuItem{ID_IMAGE_ADD_TO_PROJECT},
    kSeparator,
    MenuItem{ID_IMAGE_RESIZE},
    MenuItem{ID_IMAGE_SCALE},
    MenuItem{ID_IMAGE_CROP},
    kSeparator,
    MenuItem{ID_IMAGE_SHIFT},
    MenuItem{ID_IMAGE_SHIFT_HALF},
    kSeparator,
    MenuItem{ID_IMAGE_TURN_LEFT},
    MenuItem{ID_IMAGE_TURN_RIGHT},
    MenuItem{ID_IMAGE_TURN_HALF},
    kSeparator,
    MenuItem{ID_IMAGE_TO_4_BITS},
    MenuItem{ID_IMAGE_TO_8_BITS},
    kSeparator,
    MenuItem{ID_IMAGE_NEW_PALETTE},
};

constexpr std::array kBrushMenu{
    MenuItem{ID_BRUSH_SMALLER}, MenuItem{ID_BRUSH_LARGER}, kSeparator,
    MenuItem{ID_BRUSH_SQUARE},  MenuItem{ID_BRUSH_ROUND},  kSeparator,
    MenuItem{ID_MIRROR_ACROSS}, MenuItem{ID_MIRROR_DOWN},
};

constexpr std::array kEntryMenu{
    MenuItem{ID_ENTRY_PREVIOUS},
    MenuItem{ID_ENTRY_NEXT},
    MenuItem{ID_ENTRY_ROW_UP},
    MenuItem{ID_ENTRY_ROW_DOWN},
    kSeparator,
    MenuItem{ID_ENTRY_PICK},
};

constexpr std::array kDrawMenu{
    MenuItem{ID_TOOL_SELECT},
    MenuItem{ID_TOOL_ZOOM_LENS},
    kSeparator,
    MenuItem{ID_TOOL_PIXEL},
    MenuItem{ID_TOOL_PEN},
    MenuItem{ID_TOOL_LINE},
    kSeparator,
    MenuItem{ID_TOOL_BOX},
    MenuItem{ID_TOOL_BOX_FILL},
    kSeparator,
    MenuItem{ID_TOOL_CIRCLE},
    MenuItem{ID_TOOL_CIRCLE_FILL},
    kSeparator,
    MenuItem{ID_TOOL_PAINT},
    MenuItem{ID_TOOL_REPLACER},
    kSeparator,
    MenuItem{ID_TOOL_SPUIT},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Brus&h"), kBrushMenu},
    MenuItem{ID_DRAW_WRAP},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Entry"), kEntryMenu},
};

// Apart, because "Copy" and "Open" of a palette have the same letter.
constexpr std::array kEntriesMenu{
    MenuItem{ID_PALETTE_EDIT},
    MenuItem{ID_PALETTE_UNDO},
    MenuItem{ID_PALETTE_REDO},
    kSeparator,
    MenuItem{ID_PALETTE_COPY},
    MenuItem{ID_PALETTE_PASTE},
    kSeparator,
    MenuItem{ID_RANGE_RAMP},
    MenuItem{ID_RANGE_ADJUST},
    MenuItem{ID_RANGE_INVERT},
    MenuItem{ID_RANGE_REVERSE},
    MenuItem{ID_RANGE_FILL},
};

constexpr std::array kPaletteMenu{
    MenuItem{ID_PALETTE_NEW},
    MenuItem{ID_PALETTE_OPEN},
    MenuItem{ID_PALETTE_CLOSE},
    kSeparator,
    MenuItem{ID_PALETTE_SAVE},
    MenuItem{ID_PALETTE_SAVE_AS},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Entries"), kEntriesMenu},
    kSeparator,
    MenuItem{ID_PALETTE_IMPORT},
    MenuItem{ID_PALETTE_EXPORT},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Arrange En&tries"), kArrangeMenu},
    MenuItem{ID_VIEW_USAGE},
    MenuItem{ID_PALETTE_SHOW_TEXELS},
};

// The context menus of an image.
constexpr std::array kSelectionMenu{
    MenuItem{ID_EDIT_CUT},
    MenuItem{ID_EDIT_COPY},
    MenuItem{ID_EDIT_PASTE},
    kSeparator,
    MenuItem{ID_EDIT_SELECT_ALL},
    MenuItem{ID_CANCEL_SELECTION},
    kSeparator,
    MenuItem{ID_FLIP_X},
    MenuItem{ID_FLIP_Y},
    kSeparator,
    MenuItem{ID_IMAGE_ADD_TO_PROJECT},
};

// The replacer comes last, so that its own menu is the same without it.
constexpr std::array kToolsMenu{
    MenuItem{ID_TOOL_SELECT},      MenuItem{ID_TOOL_ZOOM_LENS}, kSeparator,
    MenuItem{ID_TOOL_PIXEL},       MenuItem{ID_TOOL_PEN},       MenuItem{ID_TOOL_LINE},
    MenuItem{ID_TOOL_BOX},         MenuItem{ID_TOOL_BOX_FILL},  MenuItem{ID_TOOL_CIRCLE},
    MenuItem{ID_TOOL_CIRCLE_FILL}, MenuItem{ID_TOOL_PAINT},     MenuItem{ID_TOOL_REPLACER},
};

constexpr std::array kGivePaletteMenu{
    MenuItem{ID_IMAGE_ATTACH},
    MenuItem{ID_IMAGE_NEW_PALETTE},
};

// In front of the context menus of an image without a palette; apart, because their letters are taken there.
constexpr std::array kNoPaletteMenu{
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Give a Palette"), kGivePaletteMenu},
};

constexpr std::array kPictureMenu{
    MenuItem{ID_PICTURE_ADD},
    MenuItem{ID_PICTURE_CHANGE},
    MenuItem{ID_PICTURE_REMOVE},
};

constexpr std::array kNodeMenu{
    MenuItem{ID_NODE_ADD},      MenuItem{ID_NODE_EDIT}, MenuItem{ID_NODE_REMOVE}, kSeparator,
    MenuItem{ID_NODE_PROPERTY},
};

constexpr std::array kProjectMenu{
    MenuItem{ID_PROJECT_NEW},
    MenuItem{ID_PROJECT_OPEN},
    MenuItem{ID_PROJECT_CLOSE},
    kSeparator,
    MenuItem{ID_PROJECT_SAVE},
    MenuItem{ID_PROJECT_SAVE_AS},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "P&icture"), kPictureMenu},
    kSeparator,
    MenuItem{ID_PROJECT_PROPERTY},
    MenuItem{ID_PROJECT_RULES},
    kSeparator,
    MenuItem{ID_PROJECT_CHECK},
    MenuItem{ID_PROJECT_ADD_FOLDER},
    MenuItem{ID_PROJECT_REVERT_CHECK},
};

constexpr std::array kTreeProjectMenu{
    MenuItem{ID_PROJECT_NEW},
    MenuItem{ID_PROJECT_OPEN},
    MenuItem{ID_PROJECT_CLOSE},
    kSeparator,
    MenuItem{ID_PROJECT_SAVE},
    MenuItem{ID_PROJECT_SAVE_AS},
    kSeparator,
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "P&icture"), kPictureMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "No&de"), kNodeMenu},
    kSeparator,
    MenuItem{ID_PROJECT_PROPERTY},
    MenuItem{ID_PROJECT_RULES},
    kSeparator,
    MenuItem{ID_PROJECT_CHECK},
    MenuItem{ID_PROJECT_ADD_FOLDER},
    MenuItem{ID_PROJECT_REVERT_CHECK},
};

constexpr std::array kWindowMenu{
    MenuItem{ID_WINDOW_NEW},       MenuItem{ID_WINDOW_CASCADE}, MenuItem{ID_WINDOW_TILE_HORZ},
    MenuItem{ID_WINDOW_TILE_VERT}, MenuItem{ID_WINDOW_ARRANGE}, kSeparator,
    MenuItem{ID_PANE_NEXT},        MenuItem{ID_PANE_PREVIOUS},  kWindowList,
};

constexpr std::array kHelpMenu{
    MenuItem{ID_HELP_INDEX}, MenuItem{ID_HELP}, MenuItem{ID_CONTEXT_HELP},   kSeparator,
    MenuItem{ID_APP_ABOUT},  kSeparator,        MenuItem{ID_COMMAND_SEARCH},
};

constexpr std::array kMainMenu{
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&File"), kFileMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Edit"), kEditMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&View"), kViewMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Palette"), kPaletteMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Pro&ject"), kProjectMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Help"), kHelpMenu},
};

constexpr std::array kImageMainMenu{
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&File"), kImageFileMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Edit"), kImageEditMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&View"), kImageViewMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Image"), kImageMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Draw"), kDrawMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Palette"), kPaletteMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Pro&ject"), kProjectMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Window"), kWindowMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Help"), kHelpMenu},
};

constexpr std::array kProjectMainMenu{
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&File"), kProjectFileMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Edit"), kEditMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&View"), kViewMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Palette"), kPaletteMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "Pro&ject"), kTreeProjectMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Window"), kWindowMenu},
    MenuItem{0, QT_TRANSLATE_NOOP("Menu", "&Help"), kHelpMenu},
};

constexpr std::array kToolBar{
    MenuItem{ID_FILE_NEW},     MenuItem{ID_FILE_OPEN},
    MenuItem{ID_FILE_SAVE},    kSeparator,
    MenuItem{ID_EDIT_UNDO},    MenuItem{ID_EDIT_REDO},
    MenuItem{ID_EDIT_CUT},     MenuItem{ID_EDIT_COPY},
    MenuItem{ID_EDIT_PASTE},   kSeparator,
    MenuItem{ID_FILE_PRINT},   MenuItem{ID_APP_ABOUT},
    MenuItem{ID_CONTEXT_HELP},
};

constexpr std::array kViewBar{
    MenuItem{ID_VIEW_PALETTEBAR},
    MenuItem{ID_VIEW_GRID},
    MenuItem{ID_PREVIEW1},
    MenuItem{ID_PREVIEW2},
};

constexpr std::array kDrawBar{
    MenuItem{ID_TOOL_SELECT},
    MenuItem{ID_TOOL_ZOOM_LENS},
    kSeparator,
    MenuItem{ID_TOOL_PIXEL},
    MenuItem{ID_TOOL_PEN},
    MenuItem{ID_TOOL_LINE},
    MenuItem{ID_TOOL_BOX},
    MenuItem{ID_TOOL_BOX_FILL},
    MenuItem{ID_TOOL_CIRCLE},
    MenuItem{ID_TOOL_CIRCLE_FILL},
    MenuItem{ID_TOOL_PAINT},
    MenuItem{ID_TOOL_REPLACER},
    kSeparator,
    MenuItem{ID_TOOL_SPUIT},
};

constexpr std::array kBrushBar{
    MenuItem{ID_BRUSH_SQUARE},  MenuItem{ID_BRUSH_ROUND}, kSeparator,
    MenuItem{ID_MIRROR_ACROSS}, MenuItem{ID_MIRROR_DOWN}, kSeparator,
    MenuItem{ID_DRAW_WRAP},
};

} // namespace

std::span<const MenuItem> mainMenu() {
    return kMainMenu;
}
std::span<const MenuItem> imageMenu() {
    return kImageMainMenu;
}
std::span<const MenuItem> projectMenu() {
    return kProjectMainMenu;
}
std::span<const MenuItem> barsMenu() {
    return kBarsMenu;
}
std::span<const MenuItem> imageContextMenu(CDyeworksView::ContextMenu menu) {
    switch (menu) {
    case CDyeworksView::ContextMenu::Selection:
        return kSelectionMenu;
    case CDyeworksView::ContextMenu::Tools:
        return kToolsMenu;
    case CDyeworksView::ContextMenu::ToolsToReplace:
        return std::span(kToolsMenu).first(kToolsMenu.size() - 1);
    case CDyeworksView::ContextMenu::Zoom:
        return kZoomMenu;
    case CDyeworksView::ContextMenu::None:
        break;
    }
    return {};
}
std::span<const MenuItem> noPaletteMenu() {
    return kNoPaletteMenu;
}
std::span<const MenuItem> nodeMenu() {
    return kNodeMenu;
}
std::span<const MenuItem> toolBarItems() {
    return kToolBar;
}
std::span<const MenuItem> viewBarItems() {
    return kViewBar;
}
std::span<const MenuItem> drawBarItems() {
    return kDrawBar;
}
std::span<const MenuItem> brushBarItems() {
    return kBrushBar;
}

} // namespace dyeworks
