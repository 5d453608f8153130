#pragma once

#include "framework/widgets/ChildFrame.h"

namespace dyeworks {

/// The frame of a project window; the tree takes all of it.
class CTPFChildFrame : public ChildFrame {
    Q_OBJECT

public:
    using ChildFrame::ChildFrame;
};

} // namespace dyeworks
