#pragma once

#include "framework/CDocument.h"
#include "framework/CommandTarget.h"
#include "framework/Menu.h"
#include "framework/WindowPlacement.h"
#include "framework/widgets/FrameView.h"

#include <QMdiSubWindow>

#include <memory>
#include <span>

namespace dyeworks {

class ScrollView;

/// The window of one view inside the main frame. Titled like its document; where the document has several
/// windows, each has its number behind the title: "sky.tmf:2". Closing the last window of a
/// document asks whether to save it and then ends the document.
class ChildFrame : public QMdiSubWindow, public CommandTarget, private DocumentTitleListener {
    Q_OBJECT

public:
    /// `view` belongs to `widget`, which is the frame's from now on. The document must outlive the frame or
    /// be owned by its template.
    ChildFrame(CDocument& document, std::unique_ptr<QWidget> widget, FrameView& view);
    ~ChildFrame() override;

    /// Both null once the frame has closed; it stays for a moment until the event loop deletes it.
    [[nodiscard]] CDocument* document() const noexcept { return document_; }
    [[nodiscard]] FrameView* view() const noexcept { return view_; }

    /// The menu bar of the main frame while this frame is the active one; empty leaves it as it is without
    /// any. The items must outlive the frame.
    void setMenus(std::span<const MenuItem> menus) noexcept { menus_ = menus; }
    [[nodiscard]] std::span<const MenuItem> menus() const noexcept { return menus_; }

    /// Closes without the question about unsaved changes, for callers who have asked it.
    void closeUnasked();

    /// In pixels of the document area.
    [[nodiscard]] WindowPlacement placement() const;
    void setPlacement(const WindowPlacement& placement);

    /// Resizes the frame, without moving it, so that all of the view's contents show, but not beyond the
    /// right or bottom edge of the document area. A maximized or minimized frame keeps its size.
    void fitToContent(const ScrollView& view);

    /// Puts a bar above the view, in place of the one before, which is deleted; null: none. The frame owns it
    /// and is larger by it meanwhile, as far as there is room, so that as much of the view shows.
    void setBar(QWidget* bar);
    [[nodiscard]] QWidget* bar() const noexcept { return bar_; }

    /// Room for the buttons and for a dozen letters of the title.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void OnFileClose();
    void documentRenamed() override;
    [[nodiscard]] bool isLastOfDocument() const;
    void rememberNormalGeometry();
    void release();

    CDocument* document_;
    FrameView* view_;
    std::span<const MenuItem> menus_;
    QRect normalGeometry_;
    QWidget* bar_ = nullptr;
    QSize grown_{0, 0}; ///< By how much the frame is larger for the bar.
    bool asks_ = true;
    bool releasing_ = false; ///< The view is being given up.
};

} // namespace dyeworks
