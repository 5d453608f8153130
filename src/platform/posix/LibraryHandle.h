#pragma once

#include <memory>
#include <string>

namespace dyeworks {

struct LibraryCloser {
    void operator()(void* handle) const noexcept;
};

/// A handle of the dynamic loader; the library is unloaded with its last one.
using LibraryHandle = std::unique_ptr<void, LibraryCloser>;

/// Null when the library cannot be loaded. `hostPath` is absolute; an empty one names nothing.
[[nodiscard]] LibraryHandle openLibrary(const std::string& hostPath);

} // namespace dyeworks
