#pragma once

#include <memory>
#include <string>

namespace dyeworks {

/// A loaded library; destroying it unloads the library.
class LoadedLibrary {
public:
    virtual ~LoadedLibrary() = default;

    /// Address of an exported function or object, or null. `name` may be decorated ("_DWPI_import@8"); a
    /// host whose linker does not decorate looks for the plain name ("DWPI_import").
    [[nodiscard]] virtual void* find(const std::string& name) const = 0;

    template <typename Function>
    [[nodiscard]] Function* findFunction(const std::string& name) const {
        return reinterpret_cast<Function*>(find(name));
    }
};

class Library {
public:
    virtual ~Library() = default;

    /// Null when there is no such library or it cannot be loaded. A name without folder is looked for in the
    /// program's folder.
    [[nodiscard]] virtual std::unique_ptr<LoadedLibrary> load(const std::string& path) = 0;

    /// The host's extension for libraries, with its full stop (".so").
    [[nodiscard]] virtual std::string extension() const = 0;
};

/// "DWPI_import" from "_DWPI_import@8": a leading "_" goes when an "@" and digits end the name, and they go
/// with it. Other names stay as they are.
std::string undecorated(const std::string& name);

} // namespace dyeworks
