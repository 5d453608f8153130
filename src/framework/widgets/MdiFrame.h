#pragma once

#include "framework/CommandTarget.h"
#include "framework/WindowTiling.h"

#include <QMainWindow>

#include <memory>
#include <vector>

class QMdiArea;

namespace dyeworks {

class CDocument;
class ChildFrame;

/// A main window whose middle is an area of child frames.
class MdiFrame : public QMainWindow, public CommandTarget {
    Q_OBJECT

public:
    MdiFrame();
    ~MdiFrame() override;

    [[nodiscard]] QMdiArea& area() const noexcept { return *area_; }

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

private:
    void OnWindowCascade();
    void OnWindowTileHorz();
    void OnWindowTileVert();
    void OnWindowArrange();
    void OnUpdateWindow(CommandUi& ui);
    void OnUpdateWindowArrange(CommandUi& ui);

    void childActivated();
    void updateCaption();
    void tile(TileDirection direction);
    /// Puts minimized frames in rows along the bottom. The height that they take there.
    int arrangeMinimized();

    QMdiArea* area_;
    QString caption_;
};

} // namespace dyeworks
