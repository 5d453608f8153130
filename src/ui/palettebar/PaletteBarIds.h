#pragma once

namespace dyeworks {

/// A control of the palette bar: its number, which the widget keeps as its property "controlId", and its
/// name, by which the widget is found. Buttons that stand for a command have the command's instead.
struct PaletteBarId {
    int number;
    const char* name;
};

// NOLINTBEGIN(readability-identifier-naming)
inline constexpr PaletteBarId IDC_PALETTE_TABS{1000, "IDC_PALETTE_TABS"};
inline constexpr PaletteBarId IDC_PALETTE_GRID{1001, "IDC_PALETTE_GRID"};
inline constexpr PaletteBarId IDC_PALETTE_NUMBER{1067, "IDC_PALETTE_NUMBER"};
inline constexpr PaletteBarId IDC_PALETTE_NUMBER_SPIN{1068, "IDC_PALETTE_NUMBER_SPIN"};
inline constexpr PaletteBarId IDC_RED{1072, "IDC_RED"};
inline constexpr PaletteBarId IDC_GREEN{1073, "IDC_GREEN"};
inline constexpr PaletteBarId IDC_BLUE{1076, "IDC_BLUE"};
inline constexpr PaletteBarId IDC_ALPHA{1078, "IDC_ALPHA"};
inline constexpr PaletteBarId IDC_RED_HEX{1080, "IDC_RED_HEX"};
inline constexpr PaletteBarId IDC_GREEN_HEX{1081, "IDC_GREEN_HEX"};
inline constexpr PaletteBarId IDC_BLUE_HEX{1082, "IDC_BLUE_HEX"};
inline constexpr PaletteBarId IDC_ALPHA_HEX{1083, "IDC_ALPHA_HEX"};
inline constexpr PaletteBarId IDC_VIEW_RGB{1106, "IDC_VIEW_RGB"};
inline constexpr PaletteBarId IDC_VIEW_ALPHA{1107, "IDC_VIEW_ALPHA"};
inline constexpr PaletteBarId IDC_RED_TRACK{1108, "IDC_RED_TRACK"};
inline constexpr PaletteBarId IDC_GREEN_TRACK{1109, "IDC_GREEN_TRACK"};
inline constexpr PaletteBarId IDC_RED_SPIN{1110, "IDC_RED_SPIN"};
inline constexpr PaletteBarId IDC_GREEN_SPIN{1111, "IDC_GREEN_SPIN"};
inline constexpr PaletteBarId IDC_RED_LABEL{1112, "IDC_RED_LABEL"};
inline constexpr PaletteBarId IDC_GREEN_LABEL{1113, "IDC_GREEN_LABEL"};
inline constexpr PaletteBarId IDC_BLUE_LABEL{1114, "IDC_BLUE_LABEL"};
inline constexpr PaletteBarId IDC_BLUE_TRACK{1115, "IDC_BLUE_TRACK"};
inline constexpr PaletteBarId IDC_BLUE_SPIN{1116, "IDC_BLUE_SPIN"};
inline constexpr PaletteBarId IDC_ALPHA_LABEL{1117, "IDC_ALPHA_LABEL"};
inline constexpr PaletteBarId IDC_ALPHA_TRACK{1118, "IDC_ALPHA_TRACK"};
inline constexpr PaletteBarId IDC_ALPHA_SPIN{1119, "IDC_ALPHA_SPIN"};
inline constexpr PaletteBarId IDC_GRADIENT_LEFT{1120, "IDC_GRADIENT_LEFT"};
inline constexpr PaletteBarId IDC_GRADIENT_RIGHT{1121, "IDC_GRADIENT_RIGHT"};
inline constexpr PaletteBarId IDC_ENTRY{1125, "IDC_ENTRY"};
inline constexpr PaletteBarId IDC_GRADIENT{1127, "IDC_GRADIENT"};
inline constexpr PaletteBarId IDC_APPLY{1128, "IDC_APPLY"};
inline constexpr PaletteBarId IDC_PREVIEW{1134, "IDC_PREVIEW"};
inline constexpr PaletteBarId IDC_RED_SLIDER{1137, "IDC_RED_SLIDER"};
inline constexpr PaletteBarId IDC_GREEN_SLIDER{1138, "IDC_GREEN_SLIDER"};
inline constexpr PaletteBarId IDC_BLUE_SLIDER{1139, "IDC_BLUE_SLIDER"};
inline constexpr PaletteBarId IDC_ALPHA_SLIDER{1140, "IDC_ALPHA_SLIDER"};
// NOLINTEND(readability-identifier-naming)

} // namespace dyeworks
