#pragma once

#include "core/PaletteSetListener.h"
#include "framework/CommandTarget.h"
#include "ui/palettebar/CPaletteBarControls.h"

#include <QWidget>

#include <vector>

class QMenu;

namespace dyeworks {

/// The palette bar: the open palettes, the colours of the current one, and the entry that is edited. A window
/// of its own that floats above the main window and never becomes part of it. It takes the commands that act
/// on the entries of the palette.
class CPaletteBar : public QWidget, public CommandTarget, public PaletteSetListener {
    Q_OBJECT

public:
    /// `host` and `actions` must outlive the bar.
    CPaletteBar(PaletteBarHost& host, CommandActions& actions, QWidget& owner);

    /// Whether the bar shows while the main window does. Its close button turns that off.
    void setShown(bool shown);
    [[nodiscard]] bool isShown() const noexcept { return shown_; }

    void tabsChanged() override;
    void currentPaletteChanged() override { RefreshFromPalette(); }
    void titlesChanged() override { controls_->state().ReadTitles(); }

    void RefreshFromPalette() { controls_->state().RefreshFromPalette(); }
    /// The active image may be attached otherwise now.
    void ImageChanged() { controls_->state().ImageChanged(); }
    void SelectCell(std::int32_t cell) { controls_->state().SelectCell(cell); }
    /// The cell to draw with; negative when there is none.
    [[nodiscard]] std::int32_t CurrentCell() const { return controls_->state().CurrentCell(); }
    void SetPaletteNumber(std::int32_t number) { controls_->state().SetPaletteNumber(number); }
    [[nodiscard]] std::int32_t GetFirstEntry() const { return controls_->state().GetFirstEntry(); }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void OnEditPalette();
    void OnUpdateEditPalette(CommandUi& ui);
    void OnCopyPalette();
    void OnUpdateCopyPalette(CommandUi& ui);
    void OnPastePalette();
    void OnUpdatePastePalette(CommandUi& ui);
    void OnUndo();
    void OnUpdateUndo(CommandUi& ui);
    void OnRedo();
    void OnUpdateRedo(CommandUi& ui);

    [[nodiscard]] std::vector<QWidget*> controlsOf(const QKeyEvent& key) const;
    bool pressLetter(const QKeyEvent& key);
    void pressEnter();
    void takeKeysBack();

    PaletteBarHost& host_;
    CommandActions& actions_;
    CPaletteBarControls* controls_;
    QMenu* menu_;
    bool shown_ = true;
    bool keysLent_ = false; ///< To dialogs that opened while the bar had the keys.
};

} // namespace dyeworks
