#pragma once

#include "ui/palettebar/CPaletteBarControls.h"

#include <QWidget>

#include <utility>
#include <vector>

class QMenu;

namespace dyeworks {

/// The palette bar: the open palettes, the colours of the current one, and the entry that is edited. A window
/// of its own that floats above the main window and never becomes part of it.
class CPaletteBar : public QWidget {
    Q_OBJECT

public:
    /// `host` and `actions` must outlive the bar.
    CPaletteBar(PaletteBarHost& host, CommandActions& actions, QWidget& owner);

    /// Whether the bar shows while the main window does. Its close button turns that off.
    void setShown(bool shown);
    [[nodiscard]] bool isShown() const noexcept { return shown_; }

    [[nodiscard]] PaletteBarState& state() noexcept { return controls_->state(); }
    /// Puts a bar above the controls, in place of the one before, which is deleted; null: none.
    void setBar(QWidget* bar);
    [[nodiscard]] QWidget* bar() const noexcept { return bar_; }
    /// As the controls do it.
    void showRemarks(std::vector<EntryRemark> remarks) { controls_->showRemarks(std::move(remarks)); }
    void selectEntries(EntryRange range) { controls_->selectEntries(range); }
    /// As the controls do it; the bar takes a size that goes with it.
    void setCellsOnly(bool only);
    [[nodiscard]] bool cellsOnly() const noexcept { return controls_->cellsOnly(); }
    /// A small size that shows any palette with its fields beside the cells.
    [[nodiscard]] QSize compactSize() const;
    /// The commands that act on the entries of the palette.
    [[nodiscard]] PaletteBarCommands& commands() noexcept { return controls_->commands(); }
    [[nodiscard]] RangeCommands& rangeCommands() noexcept { return controls_->rangeCommands(); }

Q_SIGNALS:
    /// The palettes, the current one's values or the bank were shown anew.
    void shownAnew();
    /// The user dragged entries `first` to `last` so that the first of them is to become entry `place`.
    void entriesDropped(int first, int last, int place);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    [[nodiscard]] std::vector<QWidget*> controlsOf(const QKeyEvent& key) const;
    bool pressLetter(const QKeyEvent& key);
    void pressEnter();
    void takeKeysBack();

    CommandActions& actions_;
    CPaletteBarControls* controls_;
    QMenu* menu_;
    QWidget* bar_ = nullptr;
    bool shown_ = true;
    bool keysLent_ = false; ///< To dialogs that opened while the bar had the keys.
};

} // namespace dyeworks
