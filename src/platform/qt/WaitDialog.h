#pragma once

#include <chrono>
#include <functional>
#include <string>

class QProgressDialog;
class QWidget;

namespace dyeworks {

/// What answers sooner needs no dialog.
inline constexpr std::chrono::milliseconds kWaitPatience{400};

/// Waits in a dialog with Stop, which says `words`, until `isDone`; `tell` may show how far it is now and
/// then. False when the user has stopped it before. For the thread of the windows; `owner` may be null.
[[nodiscard]] bool waitInDialog(const std::string& words, QWidget* owner, const std::function<bool()>& isDone,
                                const std::function<void(QProgressDialog&)>& tell = {});

} // namespace dyeworks
