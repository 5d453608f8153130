#pragma once

#include <cstdint>

namespace dyeworks {

/// Number of a command. Those below 32768 + 300 and from 57344 on are given; 33100 to 57343 is the range for
/// commands of our own.
using CommandId = std::uint32_t;

// NOLINTBEGIN(readability-identifier-naming)
inline constexpr CommandId ID_FILE_NEW = 57600;
inline constexpr CommandId ID_FILE_OPEN = 57601;
inline constexpr CommandId ID_FILE_CLOSE = 57602;
inline constexpr CommandId ID_FILE_SAVE = 57603;
inline constexpr CommandId ID_FILE_SAVE_AS = 57604;
inline constexpr CommandId ID_FILE_PRINT_SETUP = 57606;
inline constexpr CommandId ID_FILE_PRINT = 57607;
inline constexpr CommandId ID_FILE_PRINT_DIRECT = 57608;
inline constexpr CommandId ID_FILE_PRINT_PREVIEW = 57609;
inline constexpr CommandId ID_EDIT_COPY = 57634;
inline constexpr CommandId ID_EDIT_CUT = 57635;
inline constexpr CommandId ID_EDIT_PASTE = 57637;
inline constexpr CommandId ID_EDIT_SELECT_ALL = 57642;
inline constexpr CommandId ID_EDIT_UNDO = 57643;
inline constexpr CommandId ID_EDIT_REDO = 57644;
inline constexpr CommandId ID_WINDOW_NEW = 57648;
inline constexpr CommandId ID_WINDOW_ARRANGE = 57649;
inline constexpr CommandId ID_WINDOW_CASCADE = 57650;
inline constexpr CommandId ID_WINDOW_TILE_HORZ = 57651;
inline constexpr CommandId ID_WINDOW_TILE_VERT = 57652;
inline constexpr CommandId ID_APP_ABOUT = 57664;
inline constexpr CommandId ID_APP_EXIT = 57665;
inline constexpr CommandId ID_HELP_INDEX = 57667;
inline constexpr CommandId ID_CONTEXT_HELP = 57669;
inline constexpr CommandId ID_HELP = 57670;
inline constexpr CommandId ID_DEFAULT_HELP = 57671;

// The bars: the number of each is the command that shows and hides it.
inline constexpr CommandId ID_VIEW_PALETTEBAR = 103;
inline constexpr CommandId ID_VIEW_PROJECTBAR = 106;
inline constexpr CommandId ID_VIEW_TOOLBAR = 59392;
inline constexpr CommandId ID_VIEW_STATUS_BAR = 59393;
inline constexpr CommandId ID_VIEW_DRAWBAR = 59396;
inline constexpr CommandId ID_VIEW_VIEWBAR = 59397;

inline constexpr CommandId ID_TOOL_PIXEL = 32771;
inline constexpr CommandId ID_TOOL_BOX = 32772;
inline constexpr CommandId ID_TOOL_BOX_FILL = 32773;
inline constexpr CommandId ID_TOOL_CIRCLE = 32774;
inline constexpr CommandId ID_TOOL_CIRCLE_FILL = 32775;
inline constexpr CommandId ID_TOOL_PAINT = 32776;
inline constexpr CommandId ID_ZOOM_IN = 32777;
inline constexpr CommandId ID_ZOOM_OUT = 32778;
inline constexpr CommandId ID_TOOL_PEN = 32780;
inline constexpr CommandId ID_TOOL_LINE = 32781;
inline constexpr CommandId ID_TOOL_SELECT = 32782;
inline constexpr CommandId ID_VIEW_GRID = 32793;
inline constexpr CommandId ID_TOOL_SPUIT = 32794;
inline constexpr CommandId ID_FLIP_X = 32795;
inline constexpr CommandId ID_FLIP_Y = 32796;
inline constexpr CommandId ID_PREVIEW1 = 32799;
inline constexpr CommandId ID_PREVIEW2 = 32800;
inline constexpr CommandId ID_PICTURE_ADD = 32807;
inline constexpr CommandId ID_PICTURE_REMOVE = 32808;
inline constexpr CommandId ID_PICTURE_CHANGE = 32809;
inline constexpr CommandId ID_PROJECT_CLOSE = 32812;
inline constexpr CommandId ID_PROJECT_SAVE = 32813;
inline constexpr CommandId ID_PROJECT_SAVE_AS = 32814;
inline constexpr CommandId ID_PROJECT_PROPERTY = 32815;
inline constexpr CommandId ID_PALETTE_CLOSE = 32816;
inline constexpr CommandId ID_PALETTE_SAVE = 32817;
inline constexpr CommandId ID_PALETTE_SAVE_AS = 32818;
inline constexpr CommandId ID_PALETTE_EDIT = 32819;
inline constexpr CommandId ID_PROJECT_NEW = 32821;
inline constexpr CommandId ID_PROJECT_OPEN = 32822;
inline constexpr CommandId ID_PALETTE_NEW = 32823;
inline constexpr CommandId ID_PALETTE_OPEN = 32824;

// The recent files: entry n of a list is the list's first command + n.
inline constexpr CommandId ID_RECENT_PROJECT_FIRST = 32825;
inline constexpr CommandId ID_RECENT_PROJECT_LAST = 32840;
inline constexpr CommandId ID_RECENT_PALETTE_FIRST = 32841;
inline constexpr CommandId ID_RECENT_PALETTE_LAST = 32856;
inline constexpr CommandId ID_RECENT_IMAGE_FIRST = 32985;
inline constexpr CommandId ID_RECENT_IMAGE_LAST = 33000;

/// Plug-in number n of the import (export) list is command ID_IMPORT_FIRST + n (ID_EXPORT_FIRST + n).
inline constexpr CommandId ID_IMPORT_FIRST = 32857;
inline constexpr CommandId ID_IMPORT_LAST = 32872;
inline constexpr CommandId ID_EXPORT_FIRST = 32874;
inline constexpr CommandId ID_EXPORT_LAST = 32889;

inline constexpr CommandId ID_IMAGE_ATTACH = 32890;

/// Zoom factor n is command ID_ZOOM_BASE + n.
inline constexpr CommandId ID_ZOOM_BASE = 32900;
inline constexpr CommandId ID_ZOOM_SPECIFY = 32900;
inline constexpr CommandId ID_ZOOM_X1 = 32901;
inline constexpr CommandId ID_ZOOM_X2 = 32902;
inline constexpr CommandId ID_ZOOM_X3 = 32903;
inline constexpr CommandId ID_ZOOM_X4 = 32904;
inline constexpr CommandId ID_ZOOM_X6 = 32906;
inline constexpr CommandId ID_ZOOM_X8 = 32908;
inline constexpr CommandId ID_ZOOM_X12 = 32912;
inline constexpr CommandId ID_ZOOM_X16 = 32916;
inline constexpr CommandId ID_TOOL_ZOOM_LENS = 32935;
inline constexpr CommandId ID_PALETTE_COPY = 32936;
inline constexpr CommandId ID_PALETTE_PASTE = 32937;
inline constexpr CommandId ID_PALETTE_UNDO = 32942;
inline constexpr CommandId ID_PALETTE_REDO = 32943;
inline constexpr CommandId ID_IMAGE_ADD_TO_PROJECT = 32944;
inline constexpr CommandId ID_NODE_ADD = 32962;
inline constexpr CommandId ID_NODE_EDIT = 32963;
inline constexpr CommandId ID_NODE_REMOVE = 32964;
inline constexpr CommandId ID_NODE_PROPERTY = 32965;
inline constexpr CommandId ID_TOOL_REPLACER = 32978;
inline constexpr CommandId ID_CANCEL_SELECTION = 32981;
inline constexpr CommandId ID_OPTIONS = 33002;

inline constexpr CommandId ID_FILE_REVERT = 33100;
inline constexpr CommandId ID_FILE_IMPORT_BMP = 33101;
inline constexpr CommandId ID_FILE_EXPORT_BMP = 33102;
inline constexpr CommandId ID_PALETTE_IMPORT = 33103;
inline constexpr CommandId ID_PALETTE_EXPORT = 33104;
inline constexpr CommandId ID_EDIT_PASTE_NEW = 33105;
inline constexpr CommandId ID_EDIT_PASTE_MATCHING = 33106;

inline constexpr CommandId ID_IMAGE_RESIZE = 33120;
inline constexpr CommandId ID_IMAGE_SCALE = 33121;
inline constexpr CommandId ID_IMAGE_CROP = 33122;
inline constexpr CommandId ID_IMAGE_SHIFT = 33123;
inline constexpr CommandId ID_IMAGE_SHIFT_HALF = 33124;
inline constexpr CommandId ID_IMAGE_TURN_LEFT = 33125;
inline constexpr CommandId ID_IMAGE_TURN_RIGHT = 33126;
inline constexpr CommandId ID_IMAGE_TURN_HALF = 33127;
inline constexpr CommandId ID_IMAGE_TO_4_BITS = 33128;
inline constexpr CommandId ID_IMAGE_TO_8_BITS = 33129;

inline constexpr CommandId ID_DRAW_WRAP = 33160;
inline constexpr CommandId ID_VIEW_REPEAT = 33161;
inline constexpr CommandId ID_VIEW_BRUSHBAR = 33162;
inline constexpr CommandId ID_BRUSH_SMALLER = 33163;
inline constexpr CommandId ID_BRUSH_LARGER = 33164;
inline constexpr CommandId ID_BRUSH_SQUARE = 33165;
inline constexpr CommandId ID_BRUSH_ROUND = 33166;
inline constexpr CommandId ID_MIRROR_ACROSS = 33167;
inline constexpr CommandId ID_MIRROR_DOWN = 33168;

inline constexpr CommandId ID_RANGE_RAMP = 33180;
inline constexpr CommandId ID_RANGE_ADJUST = 33181;
inline constexpr CommandId ID_RANGE_INVERT = 33182;
inline constexpr CommandId ID_RANGE_REVERSE = 33183;
inline constexpr CommandId ID_RANGE_FILL = 33184;

inline constexpr CommandId ID_PALETTE_MOVE = 33190;
inline constexpr CommandId ID_PALETTE_SWAP = 33191;
inline constexpr CommandId ID_PALETTE_SORT = 33192;
inline constexpr CommandId ID_PALETTE_MERGE_TWINS = 33193;
inline constexpr CommandId ID_PALETTE_COMPACT = 33194;

inline constexpr CommandId ID_VIEW_USAGE = 33200;
inline constexpr CommandId ID_PALETTE_SHOW_TEXELS = 33201;
inline constexpr CommandId ID_VIEW_BANKSBAR = 33202;

inline constexpr CommandId ID_PROJECT_RULES = 33210;
inline constexpr CommandId ID_VIEW_FINDINGS = 33211;

inline constexpr CommandId ID_PROJECT_CHECK = 33230;
inline constexpr CommandId ID_PROJECT_ADD_FOLDER = 33231;
inline constexpr CommandId ID_PROJECT_REVERT_CHECK = 33232;

inline constexpr CommandId ID_COMMAND_SEARCH = 33242;
inline constexpr CommandId ID_VIEW_UNDO_LIST = 33244;

inline constexpr CommandId ID_ENTRY_PREVIOUS = 33250;
inline constexpr CommandId ID_ENTRY_NEXT = 33251;
inline constexpr CommandId ID_ENTRY_ROW_UP = 33252;
inline constexpr CommandId ID_ENTRY_ROW_DOWN = 33253;
inline constexpr CommandId ID_ENTRY_PICK = 33254;
inline constexpr CommandId ID_PANE_NEXT = 33255;
inline constexpr CommandId ID_PANE_PREVIOUS = 33256;

inline constexpr CommandId ID_TEXTURE_NEW = 33260;
inline constexpr CommandId ID_IMAGE_NEW_PALETTE = 33261;
inline constexpr CommandId ID_VIEW_FULL_SCREEN = 33262;
inline constexpr CommandId ID_VIEW_RESET_LAYOUT = 33263;
inline constexpr CommandId ID_VIEW_START_PAGE = 33264;
inline constexpr CommandId ID_VIEW_CELLS_ONLY = 33265;
// NOLINTEND(readability-identifier-naming)

} // namespace dyeworks
