#pragma once

#include "framework/Menu.h"
#include "framework/widgets/CommandActions.h"
#include "framework/widgets/MdiFrame.h"
#include "platform/Text.h"
#include "ui/BanksBar.h"
#include "ui/CommandSearching.h"
#include "ui/PrintCommands.h"
#include "ui/ShortcutOptions.h"
#include "ui/UndoListDock.h"

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>

class QMenu;

namespace dyeworks {

class CDyeworksDoc;
class CTPFDocument;
class CPaletteBar;
class CProjectBar;
class FindingsDock;
class FullScreen;
class ImageView;
class MainFrameHost;
class StatusPanes;

/// The main window: documents in the middle, menus, tool bars, project bar and status bar around them, the
/// palette bar floating above. What it shows follows the application; its place and that of its bars are
/// kept in the settings.
class CMainFrame : public MdiFrame, private BanksBarHost, private UndoListHost {
    Q_OBJECT

public:
    static constexpr QSize kFirstSize{1152, 760}; ///< Where the screen has room for it.

    /// The host must outlive the window.
    explicit CMainFrame(MainFrameHost& host);
    ~CMainFrame() override;

    [[nodiscard]] CommandActions& commandActions() noexcept { return actions_; }
    [[nodiscard]] CPaletteBar& paletteBar() noexcept { return *paletteBar_; }
    [[nodiscard]] PrintCommands& printing() noexcept { return printing_; }
    [[nodiscard]] CommandSearching& searching() noexcept { return searching_; }
    [[nodiscard]] FindingsDock& findings() noexcept { return *findings_; }

    // Each opens a window with a view of the document and makes it the active one.
    void openImageWindow(CDyeworksDoc& document);
    void openProjectWindow(CTPFDocument& document);
    /// Brings a window of the document to the front.
    void activateWindowOf(const CDocument& document);
    /// The view in the active window; null when there is none.
    [[nodiscard]] ImageView* activeImageView() const;

    /// Pane 0 is the message pane, 1 the pointer position, 2 the size of the image. The flags, those of
    /// StatusPanes, are for the message pane.
    void SetStatusText(const std::string& text, int pane, unsigned flags = 0);

    /// The open project, its title or its pictures are others now.
    void ProjectChanged();
    /// The open project's title is a part of the caption.
    void OnUpdateFrameTitle() override;
    /// Makes the picture of this name the one that is chosen in the project bar.
    void SelectPicture(const std::string& name);

    // The palette bar.
    /// Shows the current palette anew.
    void RefreshPaletteBar();
    /// Lists the open palettes anew.
    void FillPaletteBarList();
    /// Entry of the current palette that a 4-bit image's value 0 shows.
    [[nodiscard]] std::int32_t GetPaletteBarFirstEntry() const;
    /// The cell to draw with; negative when there is none.
    [[nodiscard]] std::int32_t GetPaletteBarCell() const;
    void SelectPaletteBarCell(std::int32_t cell);
    /// Shows the active image through another bank of the current palette.
    void SetPaletteBarNumber(std::int32_t number);

    /// What the image shows has changed, as `ImageHost::imageChanged` tells it.
    void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels);
    /// The palette shows in the colours of a passing copy.
    void palettePreviewed(const std::string& key, const TextureLookupTable& palette);

    /// Keeps the window's place, that of its bars and what is open, as closing it does.
    void keepLayout();

    /// The window as a picture, with the palette bar where it floats above it.
    [[nodiscard]] QPixmap picture();

    /// Shows and hides the palette bar along.
    void setVisible(bool visible) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    QMenu* createPopupMenu() override;

private:
    void popUpMenu(std::span<const MenuItem> items, const QPoint& place);
    void describeCommands();
    void makeToolBar(const char* name, CommandId id, StringId title, StringId help,
                     std::span<const MenuItem> items);
    void nameWhatQtMakes();
    void makePaletteBar();
    void makeProjectBar();
    void makeBrushBar();
    void makeFindings();
    void makeBanksBar();
    void makeUndoList();
    [[nodiscard]] CDyeworksDoc* activeImage() const override;
    [[nodiscard]] const PaletteSet& openPalettes() const override;
    void chooseBank(std::int32_t number) override;
    void attachActiveTo(const std::string& key) override;
    [[nodiscard]] JointDocument* stepsOf(StepOwner owner) override;
    [[nodiscard]] std::string nameOf(StepOwner owner) override;
    void goTo(StepOwner owner, std::int32_t position) override;
    [[nodiscard]] std::optional<StepOwner> ownerAt(const QWidget* widget) override;
    void restorePlacement();
    void savePlacement() const;
    /// What closing does before the window goes. False when the user cancels.
    bool OnClose();

    /// The bar is shown and hidden by this command.
    void addBar(CommandId id, QWidget& bar);
    /// Files that are dropped on the bar, wherever it stands, are opened as those on this window.
    void acceptFiles(QWidget& bar);
    void OnToggleBar(CommandId id);
    void OnUpdateBar(CommandUi& ui);
    void OnTogglePaletteBar();
    void OnUpdatePaletteBar(CommandUi& ui);
    void OnFullScreen();
    void OnUpdateFullScreen(CommandUi& ui);
    void OnResetLayout();
    void OnCellsOnly();
    void OnUpdateCellsOnly(CommandUi& ui);
    void fitBarsToScreen();
    void OnPictureButton() {}
    void OnUpdatePictureButton(CommandUi& ui);
    void OnHelpIndex();
    void OnHelp();
    void OnContextHelp();
    void OnWalkPanes(CommandId id);

    MainFrameHost& host_;
    CommandActions actions_;
    EntryFieldKeys entryFieldKeys_{actions_};
    PrintCommands printing_;
    CommandSearching searching_;
    bool closing_ = false; ///< While questions are asked and what is open is recorded.
    StatusPanes* panes_ = nullptr;
    CProjectBar* projectBar_ = nullptr;
    CPaletteBar* paletteBar_ = nullptr;
    FindingsDock* findings_ = nullptr;
    BanksBar* banksBar_ = nullptr;
    UndoListDock* undoList_ = nullptr;
    FullScreen* fullScreen_ = nullptr;
    QByteArray firstLayout_;             ///< Of the docked bars.
    std::map<CommandId, QWidget*> bars_; ///< By the commands that show and hide them.
};

} // namespace dyeworks
