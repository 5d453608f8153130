#include "platform/fake/FakeLibrary.h"

#include "platform/posix/LibraryHandle.h"
#include "platform/posix/OwnSymbol.h"

#include <utility>

namespace dyeworks {

namespace {

/// Counts itself while it lives.
class FakeLoadedLibrary : public LoadedLibrary {
public:
    explicit FakeLoadedLibrary(std::shared_ptr<int> loaded)
        : loaded_(std::move(loaded)) {
        ++*loaded_;
    }
    ~FakeLoadedLibrary() override { --*loaded_; }
    FakeLoadedLibrary(const FakeLoadedLibrary&) = delete;
    FakeLoadedLibrary& operator=(const FakeLoadedLibrary&) = delete;

private:
    std::shared_ptr<int> loaded_;
};

class MadeUpLibrary final : public FakeLoadedLibrary {
public:
    MadeUpLibrary(const FakeLibrary::Symbols& symbols, std::shared_ptr<int> loaded)
        : FakeLoadedLibrary(std::move(loaded))
        , symbols_(symbols) {}

    [[nodiscard]] void* find(const std::string& name) const override {
        const auto found = symbols_.find(undecorated(name));
        return found == symbols_.end() ? nullptr : found->second;
    }

private:
    FakeLibrary::Symbols symbols_;
};

class RealLibrary final : public FakeLoadedLibrary {
public:
    RealLibrary(LibraryHandle handle, std::shared_ptr<int> loaded)
        : FakeLoadedLibrary(std::move(loaded))
        , handle_(std::move(handle)) {}

    [[nodiscard]] void* find(const std::string& name) const override {
        return ownSymbol(handle_.get(), undecorated(name).c_str());
    }

private:
    LibraryHandle handle_;
};

} // namespace

void FakeLibrary::forget(const std::string& path) {
    symbols_.erase(path);
    files_.erase(path);
}

std::unique_ptr<LoadedLibrary> FakeLibrary::load(const std::string& path) {
    requests_.push_back(path);
    if (const auto made = symbols_.find(path); made != symbols_.end())
        return std::make_unique<MadeUpLibrary>(made->second, loaded_);
    const auto file = files_.find(path);
    if (file == files_.end())
        return nullptr;
    LibraryHandle real = openLibrary(file->second);
    return real == nullptr ? nullptr : std::make_unique<RealLibrary>(std::move(real), loaded_);
}

} // namespace dyeworks
