#pragma once

#include "interchange/Progress.h"

#include <QString>

#include <chrono>
#include <functional>

class QWidget;

namespace dyeworks {

/// What is done sooner needs no bar that shows how far it is.
inline constexpr std::chrono::milliseconds kProgressPatience{300};
/// Of such a bar, when all is done.
inline constexpr int kProgressWhole = 1000;

/// Carries `work` out on a thread of its own and returns when it has ended. When it takes a while, a dialog
/// over `owner` that says `what` shows how far it is; its Cancel stops the work through the progress.
void runLongWork(QWidget* owner, const QString& what, const std::function<void(const Progress&)>& work);

} // namespace dyeworks
