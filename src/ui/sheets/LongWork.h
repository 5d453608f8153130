#pragma once

#include "interchange/Progress.h"

#include <QString>

#include <functional>

class QWidget;

namespace dyeworks {

/// Carries `work` out on a thread of its own and returns when it has ended. When it takes a while, a dialog
/// over `owner` that says `what` shows how far it is; its Cancel stops the work through the progress.
void runLongWork(QWidget* owner, const QString& what, const std::function<void(const Progress&)>& work);

} // namespace dyeworks
