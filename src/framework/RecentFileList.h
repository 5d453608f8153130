#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace dyeworks {

/// The files of one kind that were opened last, the latest first. Kept in a section of the user's settings as
/// the entries "File1" to "File4".
class RecentFileList {
public:
    static constexpr std::size_t kCapacity = 4;
    /// Characters of a display name.
    static constexpr std::size_t kDisplayLength = 30;

    explicit RecentFileList(std::string section)
        : section_(std::move(section)) {}

    /// Full paths.
    [[nodiscard]] const std::vector<std::string>& paths() const noexcept { return paths_; }

    /// Puts the full form of `path` first. An entry that differs in case only counts as the same file.
    void add(const std::string& path);
    /// Takes out the first entry that equals `path` exactly. False when there is none.
    bool remove(const std::string& path);

    void load();
    void save() const;

    /// The entry's path as people read it: relative to the current directory when it lies inside, shortened
    /// in its middle when it is longer than kDisplayLength.
    [[nodiscard]] std::string displayName(std::size_t index) const;
    /// The entry as a menu shows it: "&1 " and the display name, its "&" doubled.
    [[nodiscard]] std::string menuLabel(std::size_t index) const;

private:
    std::string section_;
    std::vector<std::string> paths_;
};

} // namespace dyeworks
