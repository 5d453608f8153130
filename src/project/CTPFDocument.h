#pragma once

#include "framework/CDocument.h"
#include "framework/CommandTarget.h"
#include "paint/OpenProject.h"
#include "project/CTPFFile.h"
#include "project/PathHelpers.h"
#include "project/ProjectHost.h"
#include "project/ProjectNodes.h"
#include "project/ProjectPlugIns.h"
#include "project/TextureRules.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// The document of a project, of which at most one is open. Nodes of its tree are named by their paths, such
/// as "\Project\Picture\sky".
class CTPFDocument : public CDocument, public OpenProject {
public:
    // Hints that views are updated with.
    static constexpr int kHintSelection = 0; ///< The chosen picture is to be shown.
    static constexpr int kHintPictures = 1;  ///< Besides, the pictures have changed.
    static constexpr int kHintPlugIns = 2;   ///< Besides, the plug-ins have begun anew.

    /// `host` must outlive the document.
    explicit CTPFDocument(ProjectHost& host, DocumentTemplate* documentTemplate = nullptr);

    [[nodiscard]] ProjectHost& host() const noexcept { return host_; }
    [[nodiscard]] const CTPFFile& projectFile() const noexcept { return projectFile_; }
    [[nodiscard]] CTPFFile& projectFile() noexcept { return projectFile_; }
    /// What the plug-ins that handle nodes keep for this project.
    [[nodiscard]] const PlugInHandles& plugInHandles() const noexcept { return plugInHandles_; }

    /// Asks what the project is to be like and writes its file at once.
    bool onNewDocument() override;
    bool onOpenDocument(const std::string& path) override;
    /// Opens what was kept of the file, as if it were its contents. False when the project that is open
    /// stays.
    bool Recover(const std::string& path, std::span<const std::byte> contents);
    /// The project begins anew, which cannot be undone; asks when it has unsaved changes.
    bool reloadFile() override;
    /// Saved under another name, the project is that file's.
    bool onSaveDocument(const std::string& path) override;
    /// Asks about the project's changes, then closes the images and palettes of its pictures after a
    /// question, then tells the plug-ins of the end. When they change the project thereby, that is asked
    /// about, too.
    bool mayClose() override;
    void onCloseDocument() override;
    /// Tells the plug-ins that the project ends; further calls do nothing.
    void EndPlugIns();
    /// Lets them begin anew, because the project stays open.
    void RestartPlugIns();
    /// Titles the project by its file without folder and extension, with a mark while it has changes.
    void setPathName(const std::string& path) override;
    void setModified(bool modified) override;
    [[nodiscard]] std::string displayName() const override;

    // Pictures. What the user is shown may be cancelled; the result is then false, else the project was
    // changed.
    [[nodiscard]] std::string imageDirectory() const override { return firstFolder(projectFile_.tmfDir); }
    [[nodiscard]] std::string paletteDirectory() const override { return firstFolder(projectFile_.tlfDir); }
    /// In the project's order.
    [[nodiscard]] std::vector<std::string> pictureNames() const { return projectFile_.order; }
    /// False when there is no such picture.
    [[nodiscard]] bool GetPicture(const std::string& name, PictureEntry& entry) const {
        return projectFile_.GetPicture(name, entry);
    }
    struct PictureFiles {
        std::string image; ///< Full paths; empty where there is no such file.
        std::string palette;
    };
    [[nodiscard]] PictureFiles FilesOf(const std::string& name) const;
    [[nodiscard]] std::vector<std::string> PicturesOfOtherNumber(const std::string& imageFile,
                                                                 std::int32_t paletteNumber) const override;
    bool AddPicture(const std::optional<std::string>& name, const std::optional<std::string>& imageFile,
                    const std::optional<std::string>& paletteFile, std::int32_t paletteNumber,
                    const std::optional<std::string>& after, bool silent) override;
    bool ChangePicture(const std::string& name);
    bool RemovePicture(const std::string& name);
    bool EditProperties();
    /// What the project's images must keep to. All off while it has no file.
    [[nodiscard]] TextureRules rules() const;
    /// Other rules than before count as unsaved.
    void SetRules(const TextureRules& rules);
    // What a check repairs. The project before its first repair is kept, and only one of them.
    /// The next repair is the first one.
    void BeginCheck() noexcept { isFirstRepair_ = true; }
    void Repair(const ProjectRepair& change);
    /// Counts what has changed since `before` as a repair.
    void KeepForRevert(ProjectState before);
    [[nodiscard]] bool mayRevertCheck() const noexcept { return beforeCheck_.has_value(); }
    /// The project is that from before its repairs; reverting again repeats them.
    [[nodiscard]] bool isReverted() const noexcept { return isReverted_; }
    /// Takes pictures and folders back to before the repairs, or forth again.
    void RevertCheck();
    /// Whether the file, in full, is the image of a picture.
    [[nodiscard]] bool holdsImage(const std::string& path) const;
    /// Opens the picture's palette and image, as far as they can be opened, which is reported, and attaches
    /// one to the other. False when there is no such picture.
    bool OpenPicture(const std::string& name);

    // What the tree asks.
    /// Opens the picture, if the node is one.
    void OnNodeDoubleClick(const std::string& node);
    /// The node as the text that a drag carries, "path=values". False for a node that cannot be dragged.
    [[nodiscard]] bool NodeToString(const std::string& node, std::string& text) const;
    /// What dropping the data on the node would do (`drop_effect`). No data: nothing that is text.
    [[nodiscard]] std::uint32_t DragOverNode(const std::string& target,
                                             const std::optional<std::string>& data,
                                             std::uint32_t keyState) const;
    /// Carries out the drop of one line or several. False when nothing may be dropped there.
    bool DropOnNode(const std::string& target, const std::optional<std::string>& data, std::uint32_t effect);

    // What plug-ins ask. Changes count as unsaved.
    bool GetValue(const std::string& key, std::string& value) const;
    /// False, changing nothing, for a key that is none and for a line that would be too long.
    bool SetValue(const std::string& key, const std::string& value);
    /// False when there is no such key.
    bool RemoveKey(const std::string& key);
    // In every tree of the project; false as soon as one fails, and when there is no tree to find a node in.
    bool AddNode(const std::string& text, std::int32_t image, const std::optional<std::string>& parent,
                 const NodePlace& place);
    bool RenameNode(const std::string& text, const NodePlace& node, const std::optional<std::string>& parent);
    bool RemoveNode(const NodePlace& node, const std::optional<std::string>& parent);
    /// False for a picture that the file could not hold.
    bool SetPicture(const std::string& name, PictureEntry entry);

private:
    [[nodiscard]] bool closeOther();
    void becomeOpen();
    [[nodiscard]] bool create(const ProjectSettings& settings);
    [[nodiscard]] bool write(const std::string& path, std::optional<FileError>* why = nullptr);
    void updateTitle();
    [[nodiscard]] std::vector<std::string> openPictureFiles() const;
    [[nodiscard]] std::string findFile(const std::string& directories, const std::string& name) const;
    bool askForPicture(PictureSettings& settings, const std::string& ownName);
    [[nodiscard]] PictureField check(const PictureSettings& settings, const std::string& ownName) const;
    void picturesChanged();
    void dropLine(const std::string& target, const std::string& line, std::uint32_t effect);
    void dropPicture(const std::string& target, std::string_view name, const std::string& value,
                     std::uint32_t effect);
    template <typename Change>
    bool changeNodes(bool withoutTree, Change change);
    void OnExport(CommandId id);
    void OnUpdateExport(CommandUi& ui);

    ProjectHost& host_;
    CTPFFile projectFile_;
    PlugInHandles plugInHandles_;
    bool asksToClose_ = false;
    std::optional<ProjectState> beforeCheck_;
    bool isFirstRepair_ = true;
    bool isReverted_ = false;
};

} // namespace dyeworks
