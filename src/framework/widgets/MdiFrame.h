#pragma once

#include "framework/CommandTarget.h"
#include "framework/Menu.h"
#include "framework/WindowTiling.h"

#include <QMainWindow>
#include <QPointer>

#include <map>
#include <memory>
#include <span>
#include <vector>

class QMdiArea;
class QMenu;

namespace dyeworks {

class CDocument;
class ChildFrame;
class CommandActions;

/// A main window whose middle is an area of child frames.
class MdiFrame : public QMainWindow, public CommandTarget {
    Q_OBJECT

public:
    MdiFrame();
    ~MdiFrame() override;

    [[nodiscard]] QMdiArea& area() const noexcept { return *area_; }

    /// What the menu bar shows: the menus of the active child frame, or these while there is none or it has
    /// none of its own. Items and actions must outlive the frame. A kWindowList lists the child frames.
    void setMenus(std::span<const MenuItem> menus, CommandActions& actions);

    /// Takes the frame in, lets its view set itself up, shows and activates it.
    ChildFrame& addChild(std::unique_ptr<ChildFrame> child);

    /// The frame that commands go to, also while another window of the program has the focus. Null when
    /// there is none.
    [[nodiscard]] ChildFrame* activeChild() const;
    /// The active frame first, then from the front to the back.
    [[nodiscard]] std::vector<ChildFrame*> childFrames() const;
    /// The foremost frame of the document, or null.
    [[nodiscard]] ChildFrame* frameOf(const CDocument& document) const;
    /// Brings the frame to the front, out of its minimized state if need be.
    void activateChild(ChildFrame& child);

    /// What a command reaches from here, in routing order: active view, its document, its frame, this frame.
    [[nodiscard]] std::vector<CommandTarget*> commandTargets();

    /// The title bar's text, to which the active document's title is added.
    void setCaption(const QString& caption);

    /// Closes all child frames, each asking for its document. False, leaving the rest open, at the first that
    /// refuses.
    bool closeChildren();
    /// Closes them without asking, for callers who have asked.
    void closeChildrenUnasked();

Q_SIGNALS:
    /// Null when the last frame has gone.
    void activeChildChanged(ChildFrame* child);

protected:
    /// Refuses while a child frame refuses to close.
    void closeEvent(QCloseEvent* event) override;
    /// Composes the title bar's text anew; called whenever a part of it may have changed.
    virtual void OnUpdateFrameTitle();

private:
    void OnWindowNew();
    void OnUpdateWindowNew(CommandUi& ui);
    void OnWindowCascade();
    void OnWindowTileHorz();
    void OnWindowTileVert();
    void OnWindowArrange();
    void OnUpdateWindow(CommandUi& ui);
    void OnUpdateWindowArrange(CommandUi& ui);

    void childActivated();
    void showMenus(std::span<const MenuItem> menus);
    void tile(TileDirection direction);
    /// Puts minimized frames in rows along the bottom. The height that they take there.
    int arrangeMinimized();

    QMdiArea* area_;
    QPointer<QObject> activated_; ///< The child that was last. It may be going just now, and a frame no more.
    CommandActions* actions_ = nullptr;
    std::span<const MenuItem> menus_; ///< While no child frame has others.
    /// The menus made so far, by the list they are made of. They stay, because a change of the menu bar often
    /// comes from a command of one of them.
    std::map<const MenuItem*, std::vector<QMenu*>> madeMenus_;
    const MenuItem* shownMenus_ = nullptr;
    QString caption_;
};

} // namespace dyeworks
