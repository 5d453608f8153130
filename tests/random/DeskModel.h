#pragma once

#include "PlainFiles.h"
#include "ProjectModel.h"
#include "ViewModel.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// An open palette.
struct PaletteModel {
    WholeStates<PlainTable> states;
    std::optional<PlainTable> inFile; ///< Nothing before it is saved.
    std::string path;
    std::string title; ///< With its mark, when it has one.
    bool modified = false;

    [[nodiscard]] const PlainTable& table() const { return states.now; }
    [[nodiscard]] bool unnamed() const { return path.front() == '*'; }
    [[nodiscard]] bool hasUnsavedChanges() const {
        return modified || states.number != states.saved || (inFile && *inFile != states.now);
    }
    void edit(PlainTable table);
    /// As a plug-in does it, which leaves the title as it is.
    void setEntries(PlainTable table);
    bool undo();
    bool redo();
    /// The file holds it now.
    void named(const std::string& file);

private:
    void followHistory();
};

/// What is answered to a question, and the file that is chosen when one is asked for.
struct Answers {
    int answer = 0; ///< 0 yes, 1 no, 2 cancel.
    std::string file;
};

/// Everything that is open in the program, and the files.
struct DeskModel {
    struct Remembered {
        int zoom;
        bool grid;
        std::string attached;
    };

    ToolModel shared;
    std::vector<std::unique_ptr<ViewModel>> images; ///< In the order in which they came.
    ViewModel* active = nullptr;
    ViewModel* lastActivated = nullptr;
    std::map<std::string, PaletteModel> palettes;
    std::string currentPalette;
    std::optional<ProjectModel> project;
    bool projectInFront = false;
    std::map<std::string, std::string> files;
    std::map<std::string, Remembered> remembered; ///< By the image's file.
    std::size_t messages = 0;                     ///< Shown so far.
    int untitled = 0;
    static inline int palettesMade = 0; ///< In the whole run of the program.

    [[nodiscard]] PaletteModel* current();
    [[nodiscard]] PaletteModel* paletteOf(const ViewModel& image);
    [[nodiscard]] std::string titleOf(const ViewModel& image);
    [[nodiscard]] ViewModel* imageOf(const std::string& path);
    /// Nothing for a command that it knows nothing about.
    [[nodiscard]] std::optional<bool> enabled(CommandId id);

    /// Images of palettes that are closed are attached to none from now on.
    void refreshImages();
    void openPalette(const std::string& path);
    void newPalette(int type, int count, int alpha);
    /// False when it stays open.
    bool closePalette(const Answers& answers);
    bool savePalette(bool ask, const std::string& file);

    ViewModel& openImage(const std::string& path);
    ViewModel& newImage(std::int32_t width, std::int32_t height, int bits);
    void activated(ViewModel& image);
    bool saveImage(ViewModel& image, bool ask, const std::string& file);
    /// False when it stays open.
    bool closeImage(ViewModel& image, const Answers& answers);
    void revert(ViewModel& image, int answer);
    void attach(ViewModel& image);

private:
    void rename(const std::string& key, const std::string& file);
};

} // namespace dyeworks
