#pragma once

#include "framework/CommandTarget.h"
#include "framework/DocumentView.h"

namespace dyeworks {

class ChildFrame;

/// What a child frame knows of the view in it. The view's widget implements it; the view itself may be a
/// plain class beside the widget.
class FrameView {
public:
    virtual ~FrameView() = default;

    /// Whom commands reach first while the frame is the active one.
    virtual CommandTarget& commandTarget() = 0;
    /// What the document tells its changes. The frame enters it at the document and takes it out again.
    virtual DocumentView& documentView() = 0;

    /// Once, when the view is in its frame, the frame is among the main frame's children and laid out, and
    /// neither has been shown yet.
    virtual void initialUpdate(ChildFrame& /*frame*/) {}
    /// The frame became the active one.
    virtual void activated(ChildFrame& /*frame*/) {}
    /// Asked before the frame goes while other frames keep the document open.
    virtual bool mayClose(ChildFrame& /*frame*/) { return true; }
    /// The frame goes; it and the document are still whole. The last moment to record where the window stood.
    virtual void closing(ChildFrame& /*frame*/) {}
};

} // namespace dyeworks
