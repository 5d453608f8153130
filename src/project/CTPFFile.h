#pragma once

#include "project/CKeyValueStore.h"
#include "project/PictureEntry.h"
#include "project/ProjectRepair.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace dyeworks {

/// The pictures and folders of a project, to go back to.
struct ProjectState {
    std::unordered_map<std::string, PictureEntry> pictures;
    std::vector<std::string> order;
    std::string tmfDir;
    std::string tlfDir;
    std::unordered_set<std::string> keys; ///< Of lines that stand for pictures in the store.
};

/// A project in memory: its folders, its pictures in their order, and whatever else stands in its file.
class CTPFFile {
public:
    /// A new project in these folders; for images and palettes, empty means the project's own. False when a
    /// folder does not exist, which the user has been told.
    bool Create(const std::string& path, const std::string& tpfFolder, const std::string& tmfFolder,
                const std::string& tlfFolder);
    /// Forgets the file. Pictures and folders stay.
    void Clear();
    /// Reads a project. False when there are unsaved changes, which it would overwrite, and when the file
    /// cannot be read, the reason then in `why`.
    bool Read(const std::string& path, std::optional<FileError>* why = nullptr);
    /// Writes the project, which is then that file's. False when it has nothing to write, when an entry is
    /// too long to be read again, or when the file cannot be written, the reason then in `why`.
    bool Write(const std::string& path, std::optional<FileError>* why = nullptr);

    /// What `Write` to its own path would put into the file; nothing where that would fail.
    [[nodiscard]] std::optional<std::string> fileText() const;
    /// Takes these bytes for those of the file of that name, which is not read and need not exist. They count
    /// as unsaved.
    void Restore(const std::string& path, std::span<const std::byte> bytes);

    /// Sets the folders that exist. Of others it tells the user, and returns false.
    bool SetDirectories(const std::string& tpfFolder, const std::string& tmfFolder,
                        const std::string& tlfFolder);

    /// Puts a picture behind the one called `after`, or at the head, in the place of one of its own name. Its
    /// file names become relative to the project's folders, in `entry` too. Always true.
    bool SetPicture(const std::string& name, PictureEntry& entry, const std::optional<std::string>& after);
    /// False when there is no such picture.
    bool RemovePicture(const std::string& name);
    [[nodiscard]] bool GetPicture(const std::string& name, PictureEntry& entry) const;
    /// In their order. The result is their number.
    std::size_t GetPictureNames(std::vector<std::string>& names) const;

    /// Makes the change. Pictures that there were keep their places.
    void repair(const ProjectRepair& change);
    [[nodiscard]] ProjectState state() const;
    /// Goes to the state, which becomes the one from before. Everything else in the file stays.
    void exchange(ProjectState& state);

    [[nodiscard]] bool IsModified() const noexcept { return modified; }
    void SetModified(bool isModified) noexcept { modified = isModified; }

    /// Whether a file in the folder can hold these folders of images or palettes.
    [[nodiscard]] static bool holdsFolders(const std::string& tpfFolder, const std::string& directories);
    /// Whether the file can hold a picture like this one and give it back.
    [[nodiscard]] static bool holdsPicture(const std::string& name, const PictureEntry& entry);

    std::unordered_map<std::string, PictureEntry> pictures;
    std::vector<std::string> order;
    std::string pathName;
    std::string tpfDir; ///< The project file's folder.
    std::string tmfDir; ///< Absolute; several folders, separated by ";", are all looked in.
    std::string tlfDir;
    std::unique_ptr<CKeyValueStore> store; ///< Null while there is no file.
    std::string projectName;
    bool modified = false;

private:
    /// The assignments that stand for folders and pictures in a file of that folder; nothing when one is too
    /// long to be read again.
    using Values = std::vector<std::pair<std::string, std::string>>;
    [[nodiscard]] std::optional<Values> valuesIn(const std::string& folder) const;
    void takeStore();
    void takeFolder(const char* entry, const std::string& folder, std::string& directory,
                    std::string& errors);
    void readFolder(const char* entry, std::string& directory) const;
    void readPictures();
    void readPicture(const std::string& value);
    [[nodiscard]] std::string expanded(const std::string& value) const;
};

} // namespace dyeworks
