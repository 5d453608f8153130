#include "platform/posix/LibraryHandle.h"

#include <dlfcn.h>

namespace dyeworks {

void LibraryCloser::operator()(void* handle) const noexcept {
    (void)::dlclose(handle);
}

LibraryHandle openLibrary(const std::string& hostPath) {
    // The loader takes an empty name for the program itself.
    if (hostPath.empty())
        return nullptr;
    // Everything is bound at once, so that a library which lacks something fails here and not in a call.
    return LibraryHandle(::dlopen(hostPath.c_str(), RTLD_NOW | RTLD_LOCAL));
}

} // namespace dyeworks
