#include "platform/fake/FakeShell.h"

#include <utility>

namespace dyeworks {

bool FakeShell::deliverOpenRequest(const std::vector<std::string>& paths) {
    if (!receiver_)
        return false;
    receiver_(paths);
    return true;
}

bool FakeShell::openWithDefaultProgram(const std::string& path) {
    opened.push_back(path);
    return opens;
}

bool FakeShell::registerFileTypes(const std::vector<FileTypeRegistration>& types) {
    registered.insert(registered.end(), types.begin(), types.end());
    return registers;
}

bool FakeShell::unregisterFileTypes() {
    ++unregistered;
    if (registers)
        registered.clear();
    return registers;
}

bool FakeShell::handToRunningInstance(const std::vector<std::string>& paths) {
    if (otherInstanceRuns)
        handedOver.push_back(paths);
    return otherInstanceRuns;
}

bool FakeShell::listenForOpenRequests(std::function<void(const std::vector<std::string>&)> receiver) {
    if (otherInstanceRuns)
        return false;
    receiver_ = std::move(receiver);
    return true;
}

} // namespace dyeworks
