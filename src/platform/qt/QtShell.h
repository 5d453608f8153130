#pragma once

#include "platform/Shell.h"
#include "platform/qt/OpenRequests.h"

#include <optional>

namespace dyeworks {

class Files;

/// The desktop around the program: default programs, file types, the program's other instances.
class QtShell : public Shell {
public:
    /// `files` must outlive this object. `settingsFile` is the host path of the settings: instances that keep
    /// different ones have nothing to do with each other.
    QtShell(Files& files, std::string settingsFile)
        : files_(files)
        , settingsFile_(std::move(settingsFile)) {}

    bool openWithDefaultProgram(const std::string& path) override;
    bool registerFileTypes(const std::vector<FileTypeRegistration>& types) override;
    bool unregisterFileTypes() override;
    /// Relative paths are made full first: the other instance has a current directory of its own.
    bool handToRunningInstance(const std::vector<std::string>& paths) override;
    bool listenForOpenRequests(std::function<void(const std::vector<std::string>&)> receiver) override;

private:
    OpenRequests& requests();

    Files& files_;
    std::string settingsFile_;
    std::optional<OpenRequests> requests_;
};

} // namespace dyeworks
