#pragma once

#include <string>

class QWidget;

namespace dyeworks {

/// Waits until the file's first bytes have been read, or it is known that they cannot be; of a file that
/// comes slowly, until it has come as a whole, so that opening it finds it at hand. A dialog over `owner`
/// shows how far that is once it takes a while, and the program goes on living under it. False: the user has
/// stopped it.
[[nodiscard]] bool waitForFile(const std::string& path, QWidget* owner);

} // namespace dyeworks
