#pragma once

#include "core/TlutData.h"
#include "paint/TextureCanvas.h"
#include "project/EqualFiles.h"
#include "project/PictureEntry.h"
#include "project/ProjectFinding.h"
#include "project/RuleCheck.h"
#include "project/TextureFolders.h"
#include "project/TextureRules.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace dyeworks {

class CTPFFile;

/// Checks a project with its folders and files, by and by. Of images it reads the header alone, unless a rule
/// or the depth asks for the texels; it never holds more than one of them, whatever the number of pictures.
class ProjectCheck {
public:
    /// `project` is looked at here alone, and need not be that of a file. `rules` are what its images must
    /// keep to.
    ProjectCheck(const CTPFFile& project, const TextureRules& rules);

    /// Looks at the next folder, picture or file, or at a part of it. False when all is done.
    bool step();
    /// How far it is, 0 to 1000.
    [[nodiscard]] int thousandths() const;
    /// When all is done: what is wrong with the folders, then with the pictures in the project's order, then
    /// with files that no picture names.
    [[nodiscard]] const std::vector<ProjectFinding>& findings() const noexcept { return findings_; }

private:
    enum class Phase { Folders, Search, Pictures, SearchBeside, Missing, EqualFiles, Rest, Done };

    struct Picture {
        std::string name;
        PictureEntry entry;
    };
    struct Found {
        std::size_t place; ///< In the order of the findings.
        ProjectFinding finding;
    };
    struct Missing {
        std::size_t picture;
        bool palette;
        std::string file;
    };
    /// An image whose texels are being checked.
    struct OpenImage {
        std::string path;
        std::unique_ptr<TextureCanvas> canvas;
        std::unique_ptr<RuleCheck> check;
    };

    void add(std::size_t place, ProjectFinding finding);
    void addToPicture(std::size_t index, ProjectFinding finding);
    void checkFolders();
    void checkFolder(const std::string& folder, bool ofPalettes);
    void checkPicture(std::size_t index);
    void checkTwins(std::size_t index, const std::string& image, const std::string& palette);
    [[nodiscard]] std::optional<std::string> find(std::size_t index, bool palette);
    [[nodiscard]] std::optional<ImageShape> readShape(std::size_t index, const std::string& path);
    [[nodiscard]] std::optional<TlutData> readTable(std::size_t index, const std::string& path);
    void checkTexels(std::size_t index, const std::string& path, const TlutData* table, std::int32_t first);
    void report(std::size_t index, const std::string& path, const RuleReport& report);
    void searchBeside();
    void settleMissing();
    void startEqualFiles();
    void addEqualFiles();
    void checkRest();
    void finish();
    [[nodiscard]] bool isInFolders(const TextureFolders::File& file) const;
    [[nodiscard]] const std::string& nameOf(std::size_t picture) const;

    std::string tpfDir_;
    std::vector<std::string> imageFolders_; ///< Full paths.
    std::vector<std::string> paletteFolders_;
    std::string imageDirectories_;
    std::string paletteDirectories_;
    TextureRules rules_;
    std::vector<Picture> pictures_;

    Phase phase_ = Phase::Folders;
    std::size_t next_ = 0; ///< Picture.
    OpenImage open_;
    TextureFolders inside_;
    TextureFolders beside_;
    /// Files that exist and are named, in the host's form: the first picture that names each.
    std::unordered_map<std::string, std::size_t> namedBy_;
    std::vector<std::string> named_; ///< The same files, each once.
    std::unordered_map<std::string, std::size_t> pairs_;
    std::unordered_map<std::u32string, std::size_t> foldedNames_;
    std::vector<Missing> missing_;
    std::unordered_set<std::string> moved_; ///< Files that are offered for missing ones, in the host's form.
    std::optional<EqualFiles> equal_;
    std::vector<Found> found_;
    std::vector<ProjectFinding> findings_;
};

/// The same in one go. Nothing when `goesOn`, which is told now and then how many thousandths are done, says
/// no.
[[nodiscard]] std::optional<std::vector<ProjectFinding>>
checkProject(const CTPFFile& project, const TextureRules& rules,
             const std::function<bool(int thousandths)>& goesOn = {});

} // namespace dyeworks
