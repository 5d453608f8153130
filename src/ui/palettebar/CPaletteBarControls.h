#pragma once

#include "palette/EntryUsage.h"
#include "palette/PaletteBarCommands.h"
#include "palette/PaletteBarHost.h"
#include "palette/PaletteBarState.h"
#include "palette/RangeCommands.h"
#include "ui/palettebar/PaletteGridControl.h"

#include <QWidget>

#include <array>
#include <memory>
#include <string>
#include <vector>

class QAction;
class QBoxLayout;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabBar;

namespace dyeworks {

class CPaletteBarChannel;
class CommandActions;
class ColourButton;
class CSwatchGrid;
class IntegerField;

/// The controls of the palette bar. They show what the bar's state says and report to it what the user does.
///
/// The cells take the room that is there: they stand beside the fields where that makes them larger, above
/// them otherwise.
class CPaletteBarControls : public QWidget, private PaletteBarView, private RangeView {
    Q_OBJECT

public:
    /// `host` and `actions` must outlive the controls.
    CPaletteBarControls(PaletteBarHost& host, CommandActions& actions);
    ~CPaletteBarControls() override;

    [[nodiscard]] PaletteBarState& state() noexcept { return state_; }
    [[nodiscard]] PaletteBarCommands& commands() noexcept { return commands_; }
    [[nodiscard]] RangeCommands& rangeCommands() noexcept { return rangeCommands_; }

    /// Shows on the cells, and says of them, what is remarked of the entries; none: nothing.
    void showRemarks(std::vector<EntryRemark> remarks);

    /// Selects a range of entries in the grid.
    void selectEntries(EntryRange range);

    /// Shows nothing but the palettes' tabs and the cells, which takes little of a small screen.
    void setCellsOnly(bool only);
    [[nodiscard]] bool cellsOnly() const noexcept { return cellsOnly_; }
    /// Little room for any palette, with the fields beside it.
    [[nodiscard]] QSize compactSize() const { return compactSize_; }
    /// Room for a palette of 256 colours, with the fields beside it.
    [[nodiscard]] QSize sizeHint() const override { return preferredSize_; }
    /// The smallest width at all, and the smallest height at the present width.
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Its texts that wrap do not shape it.
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }

Q_SIGNALS:
    /// The palettes, the current one's values or the bank were shown anew.
    void shownAnew();
    /// The user dragged entries `first` to `last` so that the first of them is to become entry `place`.
    void entriesDropped(int first, int last, int place);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    // PaletteBarView
    void valuesChanged() override;
    void layoutChanged() override;
    void tabsChanged() override;
    std::optional<std::uint16_t> askEntry(ColourType type, std::uint16_t start) override;
    // RangeView
    bool askAdjustment(RangeAdjustment& adjustment) override;

    // What the controls are made of, from above to below.
    void makeTabs();
    QWidget* makeEmptyNotice();
    QWidget* makeGrid();
    QWidget* makeFields();
    QBoxLayout* makeButtons();
    QBoxLayout* makeViewRow();
    QBoxLayout* makeEntryRow();
    QWidget* makeChannels();
    QWidget* makeStrip();

    /// The window that a dialog is for: the bar's commands also come from a menu, while the bar is hidden.
    [[nodiscard]] QWidget* dialogOwner() const;
    void arrange();
    [[nodiscard]] QSize smallestCells() const;
    [[nodiscard]] QSize smallestBeside() const;
    [[nodiscard]] QSize smallestAbove() const;
    [[nodiscard]] int heightOfOthers() const;
    void showEntry();
    void showBank();
    void showGlyphs();
    [[nodiscard]] QString cellTip(int cell) const;
    [[nodiscard]] std::string remarkOf(int cell) const;

    CommandActions& actions_;
    PaletteBarState state_;
    PaletteBarCommands commands_;
    RangeCommands rangeCommands_;
    QTabBar* tabs_ = nullptr;
    QWidget* emptyNotice_ = nullptr;
    QBoxLayout* body_ = nullptr;
    QWidget* gridArea_ = nullptr;
    CSwatchGrid* grid_ = nullptr;
    QWidget* fields_ = nullptr;
    QRadioButton* rgb_ = nullptr;
    QRadioButton* alpha_ = nullptr;
    QLabel* numberLabel_ = nullptr;
    IntegerField* number_ = nullptr;
    ColourButton* edit_ = nullptr;
    QLabel* cell_ = nullptr;
    QLineEdit* entry_ = nullptr;
    QAction* mark_ = nullptr; ///< In the entry edit, while its text is none.
    QCheckBox* preview_ = nullptr;
    QPushButton* apply_ = nullptr;
    std::array<std::unique_ptr<CPaletteBarChannel>, kChannelCount> channels_;
    QWidget* stripRow_ = nullptr;
    CSwatchGrid* strip_ = nullptr;
    std::unique_ptr<PaletteGridControl> gridControl_;
    std::unique_ptr<PaletteGridControl> stripControl_;
    std::vector<EntryRemark> remarks_;
    QSize preferredSize_;
    QSize compactSize_;
    bool cellsOnly_ = false;
};

} // namespace dyeworks
