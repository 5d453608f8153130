#pragma once

#include "core/PaletteSetListener.h"
#include "ui/PalettePanelHost.h"
#include "ui/PalettePanelState.h"

#include <QDockWidget>

class QAction;
class QComboBox;
class QLabel;
class QSpinBox;
class QStackedWidget;

namespace dyeworks {

class SwatchGrid;

/// The panel "Palette": which of the open palettes is current, its colours, and the entry to draw with.
class PalettePanel : public QDockWidget, public PaletteSetListener {
    Q_OBJECT

public:
    /// `host` must outlive the panel. `openPalette` is offered while no palette is open.
    PalettePanel(PalettePanelHost& host, QAction* openPalette, QWidget* parent = nullptr);
    ~PalettePanel() override;

    void tabsChanged() override;
    void currentPaletteChanged() override;

    void selectCell(std::int32_t cell);
    [[nodiscard]] std::int32_t cell() const noexcept { return state_.cell(); }
    [[nodiscard]] std::int32_t firstEntry() const noexcept { return state_.firstEntry(); }

private:
    QWidget* makePalettePage();
    QWidget* makeEmptyPage(QAction* openPalette);
    [[nodiscard]] const TextureLookupTable* currentPalette() const;
    void choosePalette(int index);
    void chooseCell(int cell);
    void chooseBank(int bank);
    void showCell();

    PalettePanelHost& host_;
    PalettePanelState state_;
    QStackedWidget* pages_;
    QComboBox* palettes_ = nullptr;
    SwatchGrid* grid_ = nullptr;
    QLabel* entry_ = nullptr;
    QWidget* bankRow_ = nullptr;
    QSpinBox* bank_ = nullptr;
};

} // namespace dyeworks
