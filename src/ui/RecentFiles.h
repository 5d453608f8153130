#pragma once

#include "framework/CommandTarget.h"
#include "framework/RecentFileList.h"

#include <functional>
#include <string>

namespace dyeworks {

/// The files of each kind that were opened last, and the commands that open them again.
class RecentFiles : public CommandTarget {
public:
    /// Opens a file of any kind and reports its own failures.
    using Open = std::function<void(const std::string& path)>;

    explicit RecentFiles(Open open);

    [[nodiscard]] const RecentFileList& projects() const noexcept { return projects_; }
    [[nodiscard]] const RecentFileList& images() const noexcept { return images_; }
    [[nodiscard]] const RecentFileList& palettes() const noexcept { return palettes_; }

    /// Puts the path first in the list of its kind.
    void add(const std::string& path);
    /// Takes a path that equals `path` exactly out of the list of its kind.
    void remove(const std::string& path);

    void load();
    void save() const;

private:
    [[nodiscard]] RecentFileList& listFor(const std::string& path);
    void openEntry(const RecentFileList& list, std::size_t index);
    void OnRecentProject(CommandId id);
    void OnUpdateRecentProject(CommandUi& ui);
    void OnRecentImage(CommandId id);
    void OnUpdateRecentImage(CommandUi& ui);
    void OnRecentPalette(CommandId id);
    void OnUpdateRecentPalette(CommandUi& ui);

    Open open_;
    RecentFileList projects_{"Recent TPF List"};
    RecentFileList images_{"Recent TMF List"};
    RecentFileList palettes_{"Recent TLF List"};
    RecentFileList others_{"Recent File List"};
};

} // namespace dyeworks
