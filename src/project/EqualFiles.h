#pragma once

#include "platform/Files.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

/// Finds files of equal bytes, by and by. Only files of the same size are read, each once; what is compared
/// are 128 bits made of all their bytes. Files that cannot be read and empty ones are equal to none.
class EqualFiles {
public:
    explicit EqualFiles(std::vector<std::string> paths);

    /// Looks at the size of the next file, or reads some more. False when there was nothing left.
    bool step();
    /// How far it is, 0 to 1000.
    [[nodiscard]] int thousandths() const;
    [[nodiscard]] const std::vector<std::string>& paths() const noexcept { return paths_; }

    struct Pair {
        std::size_t file;
        std::size_t first; ///< The first of the files with these bytes.
    };
    /// For each file that has an equal one before it, when all is done. Both are indexes of `paths`.
    [[nodiscard]] std::vector<Pair> pairs() const;

private:
    struct File {
        std::uint64_t size;
        std::array<std::uint64_t, 2> mark; ///< Of its bytes.
        std::size_t index;
    };

    void keepTwins();
    void readOn();

    std::vector<std::string> paths_;
    std::vector<File> files_;
    std::size_t sized_ = 0;
    std::size_t next_ = 0; ///< The file whose bytes are read.
    std::unique_ptr<FileReader> reader_;
    std::uint64_t read_ = 0; ///< Bytes of it.
    std::vector<std::byte> room_;
};

} // namespace dyeworks
