#pragma once

#include <functional>
#include <string>
#include <vector>

namespace dyeworks {

/// Notices when something happens to files. It does not tell what: whoever listens looks at the files, as it
/// must where the host tells nothing, as on a file system of another machine.
class FileWatcher {
public:
    virtual ~FileWatcher() = default;

    /// The files to be watched from now on, in place of those before; they need not exist. One that is
    /// replaced, removed or comes back is watched on.
    virtual void watch(const std::vector<std::string>& paths) = 0;

    /// Called from the event loop, maybe several times for one change and for changes of others in the same
    /// folders. Null: nobody listens.
    virtual void setListener(std::function<void()> listener) = 0;

    /// How long files are left alone after that before they are looked at, in milliseconds.
    [[nodiscard]] virtual int patience() const { return 250; }
};

} // namespace dyeworks
