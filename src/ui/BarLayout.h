#pragma once

class QByteArray;
class QMainWindow;

namespace dyeworks {

class CPaletteBar;

// Where the bars of the main window stand and which are shown, in the settings, section "BarState".

void saveBarLayout(QMainWindow& frame, CPaletteBar& paletteBar);

/// Puts the bars where they were. What cannot be read leaves its bars as they are; a palette bar without a
/// place of its own gets its first one.
void restoreBarLayout(QMainWindow& frame, CPaletteBar& paletteBar);

/// Puts the bars where they are at first, all of them; `docked` is the state of the docked ones then, as the
/// frame saves it.
void resetBarLayout(QMainWindow& frame, CPaletteBar& paletteBar, const QByteArray& docked);

} // namespace dyeworks
