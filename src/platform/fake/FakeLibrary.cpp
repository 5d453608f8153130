#include "platform/fake/FakeLibrary.h"

#include "platform/posix/LibraryHandle.h"
#include "platform/posix/OwnSymbol.h"

#include <utility>
#include <variant>

namespace dyeworks {

namespace {

class FakeLoadedLibrary final : public LoadedLibrary {
public:
    using Contents = std::variant<FakeLibrary::Symbols, LibraryHandle>;

    FakeLoadedLibrary(Contents contents, std::shared_ptr<int> loaded)
        : contents_(std::move(contents))
        , loaded_(std::move(loaded)) {
        ++*loaded_;
    }
    ~FakeLoadedLibrary() override { --*loaded_; }
    FakeLoadedLibrary(const FakeLoadedLibrary&) = delete;
    FakeLoadedLibrary& operator=(const FakeLoadedLibrary&) = delete;

    [[nodiscard]] void* find(const std::string& name) const override {
        const std::string plain = undecorated(name);
        if (const LibraryHandle* real = std::get_if<LibraryHandle>(&contents_))
            return ownSymbol(real->get(), plain.c_str());
        const auto& symbols = std::get<FakeLibrary::Symbols>(contents_);
        const auto found = symbols.find(plain);
        return found == symbols.end() ? nullptr : found->second;
    }

private:
    Contents contents_;
    std::shared_ptr<int> loaded_;
};

} // namespace

void FakeLibrary::forget(const std::string& path) {
    symbols_.erase(path);
    files_.erase(path);
}

std::unique_ptr<LoadedLibrary> FakeLibrary::load(const std::string& path) {
    requests_.push_back(path);
    if (const auto made = symbols_.find(path); made != symbols_.end())
        return std::make_unique<FakeLoadedLibrary>(made->second, loaded_);
    const auto file = files_.find(path);
    if (file == files_.end())
        return nullptr;
    LibraryHandle real = openLibrary(file->second);
    return real == nullptr ? nullptr : std::make_unique<FakeLoadedLibrary>(std::move(real), loaded_);
}

} // namespace dyeworks
