#pragma once

#include "core/PaletteSetListener.h"
#include "ui/PalettePanelHost.h"
#include "ui/PalettePanelState.h"

#include <QWidget>

class QAction;
class QComboBox;
class QLabel;
class QSpinBox;
class QStackedWidget;

namespace dyeworks {

class CSwatchGrid;

/// The panel "Palette": which of the open palettes is current, its colours, and the entry to draw with. A
/// window of its own that floats above the main window and never becomes part of it.
class PalettePanel : public QWidget, public PaletteSetListener {
    Q_OBJECT

public:
    /// `host` must outlive the panel. `openPalette` is offered while no palette is open.
    PalettePanel(PalettePanelHost& host, QAction* openPalette, QWidget& owner);
    ~PalettePanel() override;

    /// Whether the panel shows while the main window does. Its close button turns that off.
    void setShown(bool shown);
    [[nodiscard]] bool isShown() const noexcept { return shown_; }

    void tabsChanged() override;
    void currentPaletteChanged() override;

    void selectCell(std::int32_t cell);
    [[nodiscard]] std::int32_t cell() const noexcept { return state_.cell(); }
    [[nodiscard]] std::int32_t firstEntry() const noexcept { return state_.firstEntry(); }

    /// Room for a palette of 256 colours.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* makePalettePage();
    QWidget* makeEmptyPage(QAction* openPalette);
    [[nodiscard]] const TextureLookupTable* currentPalette() const;
    void choosePalette(int index);
    void chooseCell(int cell);
    void chooseBank(int bank);
    void showColours(const TextureLookupTable* palette);
    void showCell();

    PalettePanelHost& host_;
    bool shown_ = true;
    PalettePanelState state_;
    QStackedWidget* pages_;
    QComboBox* palettes_ = nullptr;
    CSwatchGrid* grid_ = nullptr;
    QLabel* entry_ = nullptr;
    QWidget* bankRow_ = nullptr;
    QSpinBox* bank_ = nullptr;
};

} // namespace dyeworks
