#pragma once

#include "platform/Library.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

/// Libraries that are made up of functions of the test, or stand in real files that it names.
class FakeLibrary final : public Library {
public:
    /// Addresses by plain name ("DWPI_import").
    using Symbols = std::map<std::string, void*>;

    /// Lets `path` load, exactly as the program spells it, and export `symbols`. Libraries loaded already
    /// keep what they had. No file is needed, but a folder that is searched shows only files.
    void define(const std::string& path, Symbols symbols) { symbols_[path] = std::move(symbols); }

    /// Lets `path` load the real library of this host path, as long as there is one.
    void defineFile(const std::string& path, const std::string& hostPath) { files_[path] = hostPath; }
    /// `path` does not load any more. Libraries loaded already stay.
    void forget(const std::string& path);

    template <typename Function>
    [[nodiscard]] static void* address(Function* function) {
        return reinterpret_cast<void*>(function);
    }

    /// Paths asked for, oldest first, whether they loaded or not.
    [[nodiscard]] const std::vector<std::string>& requests() const noexcept { return requests_; }
    /// Libraries that are loaded at this moment.
    [[nodiscard]] int loadedCount() const noexcept { return *loaded_; }

    [[nodiscard]] std::unique_ptr<LoadedLibrary> load(const std::string& path) override;
    [[nodiscard]] std::string extension() const override { return ".so"; }

private:
    std::map<std::string, Symbols> symbols_;
    std::map<std::string, std::string> files_; // Host path by path.
    std::vector<std::string> requests_;
    // Shared with the loaded libraries, which may outlive this object.
    std::shared_ptr<int> loaded_ = std::make_shared<int>(0);
};

} // namespace dyeworks
