#pragma once

#include "platform/Messages.h"
#include "platform/qt/WindowContext.h"

namespace dyeworks {

/// Message boxes of the desktop. When nobody can answer, the text goes to the standard error stream and the
/// answer is the one that closing the box would give.
class QtMessages : public Messages {
public:
    /// `windows` must outlive this object.
    explicit QtMessages(const WindowContext& windows)
        : windows_(windows) {}

    MessageAnswer show(const Message& message) override;

private:
    const WindowContext& windows_;
};

} // namespace dyeworks
