#pragma once

#include "framework/Menu.h"
#include "framework/widgets/CommandActions.h"
#include "framework/widgets/MdiFrame.h"
#include "platform/StringId.h"
#include "ui/PrintCommands.h"

#include <array>
#include <map>
#include <span>
#include <string>

class QLabel;
class QMenu;

namespace dyeworks {

class CDyeworksApp;
class CDyeworksDoc;
class ImageView;
class PalettePanel;

/// The main window: image windows in the middle, menus and bars around them, the palette panel at the side.
/// What it shows follows the application; where its parts stand is kept in the settings, section "Window".
class CMainFrame : public MdiFrame {
    Q_OBJECT

public:
    static constexpr QSize kFirstSize{1024, 720}; ///< Where the screen has room for it.

    /// The application must outlive the window.
    explicit CMainFrame(CDyeworksApp& application);
    ~CMainFrame() override;

    [[nodiscard]] CommandActions& commandActions() noexcept { return actions_; }
    [[nodiscard]] PalettePanel& palettePanel() noexcept { return *palettePanel_; }
    [[nodiscard]] PrintCommands& printing() noexcept { return printing_; }

    /// Opens a window with a view of the document and makes it the active one.
    void openImageWindow(CDyeworksDoc& document);
    /// Brings a window of the document to the front.
    void activateWindowOf(const CDocument& document);
    /// The view in the active window; null when there is none.
    [[nodiscard]] ImageView* activeImageView() const;

    /// Pane 0 is the message pane, 1 the pointer position, 2 the size of the image.
    void SetStatusText(const std::string& text, int pane);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    QMenu* createPopupMenu() override;

private:
    void makeToolBar(const char* name, CommandId id, StringId title, std::span<const MenuItem> items);
    /// The bar is shown and hidden by this command.
    void addBar(CommandId id, QWidget& bar);
    void OnToggleBar(CommandId id);
    void OnUpdateBar(CommandUi& ui);
    void makeStatusBar();
    void restoreLayout();
    void saveLayout() const;

    CDyeworksApp& application_;
    CommandActions actions_;
    PrintCommands printing_;
    PalettePanel* palettePanel_;
    std::map<CommandId, QWidget*> bars_; ///< By the commands that show and hide them.
    std::array<QLabel*, 2> panes_{};     ///< Panes 1 and 2.
};

} // namespace dyeworks
