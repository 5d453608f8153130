#include "platform/posix/PosixLibrary.h"

#include "platform/ProgramPath.h"
#include "platform/posix/LibraryHandle.h"
#include "platform/posix/OwnSymbol.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

class PosixLoadedLibrary final : public LoadedLibrary {
public:
    explicit PosixLoadedLibrary(LibraryHandle handle)
        : handle_(std::move(handle)) {}

    [[nodiscard]] void* find(const std::string& name) const override {
        return ownSymbol(handle_.get(), undecorated(name).c_str());
    }

private:
    LibraryHandle handle_;
};

bool hasFolder(const std::string& path) {
    return isRooted(path) || std::ranges::any_of(path, isSeparator);
}

} // namespace

std::unique_ptr<LoadedLibrary> PosixLibrary::load(const std::string& path) {
    if (path.empty())
        return nullptr;
    LibraryHandle handle =
        openLibrary(files_.hostPath(hasFolder(path) ? path : files_.programFolder() + path));
    if (!handle)
        return nullptr;
    return std::make_unique<PosixLoadedLibrary>(std::move(handle));
}

} // namespace dyeworks
