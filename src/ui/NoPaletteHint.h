#pragma once

#include <QObject>

namespace dyeworks {

class ChildFrame;
class MdiFrame;
class StatusPanes;

/// Tells in the status bar what to do about an active image that has no palette, until it has one.
class NoPaletteHint : public QObject {
public:
    /// Belongs to the frame.
    NoPaletteHint(MdiFrame& frame, StatusPanes& panes);

private:
    void activated(ChildFrame* child);
    void follow();

    MdiFrame& frame_;
    StatusPanes& panes_;
    bool tells_ = false;
};

} // namespace dyeworks
