#pragma once

#include "platform/Files.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// What a run of the program that did not end in order has left. Held: no other run is offered it as long as
/// this lives, and whoever starts after it has gone is offered it again, unless it was discarded.
class LeftState {
public:
    virtual ~LeftState() = default;

    /// In the order of their names.
    [[nodiscard]] virtual std::vector<std::string> names() const = 0;
    [[nodiscard]] virtual Result<ByteBuffer, FileError> read(const std::string& name) const = 0;
    /// Its first bytes: so many, or all there are.
    [[nodiscard]] virtual Result<ByteBuffer, FileError> readStart(const std::string& name,
                                                                  std::size_t most) const = 0;
    /// Takes one file away for ever.
    virtual void remove(const std::string& name) = 0;
    /// Takes all of it away for ever.
    virtual void discard() = 0;
};

/// Where this run of the program keeps what must outlive it, apart from the user's own files. Each of several
/// programs that run at a time has a folder of its own. It is made when it is first written to.
class StateFolder {
public:
    virtual ~StateFolder() = default;

    /// The folder in which runs of the program have theirs, as people write it.
    [[nodiscard]] virtual std::string location() const = 0;
    /// Replaces the file `name`, a plain name, in one step. May be called on any thread, as `remove`.
    [[nodiscard]] virtual std::optional<FileError> write(const std::string& name, FilePieces pieces) = 0;
    /// Nothing when there is no such file.
    virtual void remove(const std::string& name) = 0;
    /// This run ends in order: takes its folder away with all that is in it.
    virtual void discard() = 0;

    /// What other runs have left, the oldest first.
    [[nodiscard]] virtual std::vector<std::unique_ptr<LeftState>> left() = 0;
};

} // namespace dyeworks
