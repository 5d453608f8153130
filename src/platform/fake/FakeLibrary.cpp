#include "platform/fake/FakeLibrary.h"

#include <utility>

namespace dyeworks {

namespace {

class FakeLoadedLibrary final : public LoadedLibrary {
public:
    FakeLoadedLibrary(FakeLibrary::Symbols symbols, std::shared_ptr<int> loaded)
        : symbols_(std::move(symbols))
        , loaded_(std::move(loaded)) {
        ++*loaded_;
    }
    ~FakeLoadedLibrary() override { --*loaded_; }
    FakeLoadedLibrary(const FakeLoadedLibrary&) = delete;
    FakeLoadedLibrary& operator=(const FakeLoadedLibrary&) = delete;

    [[nodiscard]] void* find(const std::string& name) const override {
        const auto found = symbols_.find(undecorated(name));
        return found == symbols_.end() ? nullptr : found->second;
    }

private:
    FakeLibrary::Symbols symbols_;
    std::shared_ptr<int> loaded_;
};

} // namespace

std::unique_ptr<LoadedLibrary> FakeLibrary::load(const std::string& path) {
    requests_.push_back(path);
    const auto found = symbols_.find(path);
    if (found == symbols_.end())
        return nullptr;
    return std::make_unique<FakeLoadedLibrary>(found->second, loaded_);
}

} // namespace dyeworks
