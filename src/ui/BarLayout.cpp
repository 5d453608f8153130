#include "ui/BarLayout.h"

#include "framework/widgets/WidgetPlacement.h"
#include "platform/Platform.h"
#include "ui/palettebar/CPaletteBar.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QMainWindow>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

namespace {

constexpr const char* kBarSection = "BarState";
constexpr const char* kDockedEntry = "Docked";
constexpr const char* kStatusBarEntry = "StatusBar"; // Which the state of the docked bars leaves out.
constexpr const char* kPaletteBarEntry = "PaletteBar";
constexpr const char* kCellsOnlyEntry = "PaletteCellsOnly";
constexpr const char* kBrushBarEntry = "BrushBar"; // Whether the state tells of it; older ones do not.

/// Of the state of the docked bars: it grows with each change of the bars that makes older states useless.
constexpr int kVersion = 1;

constexpr QPoint kFirstPlace{512, 400}; // Of the palette bar, on the screen.

QByteArray sealOf(const QByteArray& state) {
    return QCryptographicHash::hash(state, QCryptographicHash::Md5);
}

/// Empty unless the bytes are those that were saved: Qt believes the numbers in a damaged state, and may make
/// millions of bars.
QByteArray readDocked() {
    const std::string text = platform().profile().textOr(kBarSection, kDockedEntry, "");
    const QByteArray bytes = QByteArray::fromBase64(QByteArray::fromStdString(text));
    const qsizetype sealSize = sealOf({}).size();
    const QByteArray state = bytes.mid(sealSize);
    return bytes.left(sealSize) == sealOf(state) ? state : QByteArray();
}

/// On a small screen, and on one whose windows are large, the bar would hide the main window: it begins as
/// small as it can be there, if need be without the fields.
void placeFirst(CPaletteBar& bar) {
    const auto area = [](QSize size) { return std::int64_t{size.width()} * size.height(); };
    const std::int64_t screen = area(bar.screen()->availableSize());
    bar.setCellsOnly(3 * area(bar.compactSize()) > screen);
    if (!bar.cellsOnly() && 2 * area(bar.size()) > screen)
        bar.resize(bar.compactSize());
    placeInsideScreen(bar, kFirstPlace);
}

} // namespace

void saveBarLayout(QMainWindow& frame, CPaletteBar& paletteBar) {
    Profile& settings = platform().profile();
    const QByteArray state = frame.saveState(kVersion);
    settings.setText(kBarSection, kDockedEntry, (sealOf(state) + state).toBase64().toStdString());
    settings.setInteger(kBarSection, kBrushBarEntry, 1);
    settings.setInteger(kBarSection, kCellsOnlyEntry, paletteBar.cellsOnly() ? 1 : 0);
    settings.setInteger(kBarSection, kStatusBarEntry, frame.statusBar()->isHidden() ? 0 : 1);
    WindowPlacement placement = windowPlacement(paletteBar);
    if (!paletteBar.isShown())
        placement.showCommand = WindowPlacement::kHidden;
    settings.setText(kBarSection, kPaletteBarEntry, formatWindowPlacement(placement));
}

void restoreBarLayout(QMainWindow& frame, CPaletteBar& paletteBar) {
    const Profile& settings = platform().profile();
    const bool restored = frame.restoreState(readDocked(), kVersion);
    // A bar that the state does not tell of comes to the end of the last row, without room for its buttons.
    auto* const brushBar = frame.findChild<QToolBar*>(QStringLiteral("ID_VIEW_BRUSHBAR"));
    if (restored && brushBar != nullptr && settings.integer(kBarSection, kBrushBarEntry, 0) == 0)
        frame.insertToolBarBreak(brushBar);
    frame.statusBar()->setVisible(settings.integer(kBarSection, kStatusBarEntry, 1) != 0);
    const std::optional<WindowPlacement> placement =
        parseWindowPlacement(settings.textOr(kBarSection, kPaletteBarEntry, ""));
    if (placement && placement->hasRectangle()) {
        paletteBar.setCellsOnly(settings.integer(kBarSection, kCellsOnlyEntry, 0) != 0);
        setWindowPlacement(paletteBar, *placement);
    } else
        placeFirst(paletteBar);
    paletteBar.setShown(!placement || placement->showCommand != WindowPlacement::kHidden);
}

void resetBarLayout(QMainWindow& frame, CPaletteBar& paletteBar, const QByteArray& docked) {
    frame.restoreState(docked);
    frame.statusBar()->show();
    paletteBar.setCellsOnly(false);
    paletteBar.resize(paletteBar.sizeHint());
    placeFirst(paletteBar);
    paletteBar.setShown(true);
}

} // namespace dyeworks
