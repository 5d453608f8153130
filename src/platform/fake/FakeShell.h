#pragma once

#include "platform/Shell.h"

#include <functional>
#include <string>
#include <vector>

namespace dyeworks {

/// A desktop that only remembers what was asked of it.
class FakeShell final : public Shell {
public:
    bool opens = true;              ///< What `openWithDefaultProgram` answers.
    bool registers = true;          ///< What `registerFileTypes` and `unregisterFileTypes` answer.
    bool otherInstanceRuns = false; ///< Another instance takes requests, and this one cannot listen.

    std::vector<std::string> opened;              ///< Paths opened with their default program.
    std::vector<FileTypeRegistration> registered; ///< In the order of the calls; none after unregistering.
    int unregistered = 0;                         ///< Calls of `unregisterFileTypes`.
    std::vector<std::vector<std::string>> handedOver; ///< One element for each call that found an instance.

    /// Plays another instance that hands paths to this one. False when nobody listens.
    bool deliverOpenRequest(const std::vector<std::string>& paths);

    bool openWithDefaultProgram(const std::string& path) override;
    bool registerFileTypes(const std::vector<FileTypeRegistration>& types) override;
    bool unregisterFileTypes() override;
    bool handToRunningInstance(const std::vector<std::string>& paths) override;
    bool listenForOpenRequests(std::function<void(const std::vector<std::string>&)> receiver) override;

private:
    std::function<void(const std::vector<std::string>&)> receiver_;
};

} // namespace dyeworks
