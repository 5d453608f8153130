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
    bool stale = false; ///< Images do not show it yet.

    [[nodiscard]] const PlainTable& table() const { return states.now; }
    [[nodiscard]] bool unnamed() const { return path.front() == '*'; }
    [[nodiscard]] bool hasUnsavedChanges() const {
        return modified || states.number != states.saved || (inFile && *inFile != states.now);
    }
    void edit(PlainTable table);
    /// As a plug-in does it, which leaves the title as it is.
    void setEntries(PlainTable table);
    /// In a joint step.
    void move(PlainTable table, long joint);
    bool undo();
    bool redo();
    void reload(PlainTable table);
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

/// The file of something that is open, and what others make of it.
struct FileModel {
    std::string known;               ///< That was read or written last.
    std::optional<std::string> seen; ///< Nothing: it has been removed.
    bool answered = false;           ///< What is seen is to stay the file's affair.
    bool isBack = false;             ///< As it was, after it had been removed.

    void look(const std::optional<std::string>& now);
    [[nodiscard]] bool offersReload() const { return seen && seen != known; }
    [[nodiscard]] bool asks() const { return !answered && (isBack || seen != known); }
};

/// Everything that is open in the program, and the files.
struct DeskModel {
    struct Remembered {
        int zoom;
        bool grid;
        std::string attached;
        bool repeated = false;
    };

    ToolModel shared;
    std::vector<std::unique_ptr<ViewModel>>
        images; ///< Their windows; images stand in the order in which they came.
    ViewModel* active = nullptr;
    const ImageModel* lastActivated = nullptr;
    std::map<std::string, PaletteModel> palettes;
    std::string currentPalette;
    std::optional<ProjectModel> project;
    bool projectInFront = false;
    std::map<std::string, std::string> files;
    std::map<std::string, FileModel> outside;     ///< By path, of what is open.
    bool savesOver = false;                       ///< What others have made of a file.
    std::map<std::string, Remembered> remembered; ///< By the image's file.
    std::size_t messages = 0;                     ///< Shown so far.
    std::vector<std::uint32_t> copiedCells;
    std::map<long, std::size_t> joint; ///< Steps that are one, and of how many things.
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
    /// The same of those that have been replaced.
    void refreshReplaced();
    void openPalette(const std::string& path);
    void newPalette(int type, int count, int alpha);
    /// False when it stays open.
    bool closePalette(const Answers& answers);
    bool savePalette(bool ask, const std::string& file);

    /// How many questions come when the program is left, each of which is answered with No.
    [[nodiscard]] std::size_t unsaved();
    /// The program is left. What its settings keep stays.
    void leave();

    ViewModel& openImage(const std::string& path);
    ViewModel& newImage(std::int32_t width, std::int32_t height, int bits);
    /// Another window of the active image.
    void newWindow();
    void activated(ViewModel& image);
    bool saveImage(ViewModel& image, bool ask, const std::string& file);
    /// False when it stays open.
    bool closeImage(ViewModel& image, const Answers& answers);
    void revert(ViewModel& image, int answer);
    void attach(ViewModel& image);

    /// What is open holds now what the file does.
    void knows(const std::string& path);
    /// Whether the file may be saved over. Where others have changed it that is a question.
    bool mayReplace(const std::string& path);
    [[nodiscard]] bool asksToReplace(const std::string& path) const;
    /// Files of what is open.
    [[nodiscard]] std::vector<std::string> openFiles() const;
    [[nodiscard]] bool isUnsaved(const std::string& path);
    /// `answer` is for the question of a project with unsaved changes.
    void reload(const std::string& path, int answer);
    void keep(const std::string& path);

    void openProject(const std::string& path);
    bool saveProject();

    /// Undo and Redo of an image. `answer`, 0 for yes, is for the question that comes where others have to go
    /// along, or are no longer there to go along.
    void undoImage(ViewModel& image, bool back, int answer);
    void undoPalette(bool back, int answer);
    /// Whether the entries of the current palette can be moved without a word: every image has a texel's
    /// entry.
    [[nodiscard]] bool movesSilently();
    /// Moves an entry to another place; the texels of all images of the palette follow.
    void moveEntry(std::size_t entry, std::size_t place);

private:
    void begin(ViewModel& view);
    void remember(const ViewModel& image);
    /// What has a history, and how far it has to go.
    struct Leg {
        ViewModel* image;
        PaletteModel* palette;
        std::size_t steps = 0;

        [[nodiscard]] std::size_t wayThrough(long joint, bool back) const;
        [[nodiscard]] long jointAt(std::size_t n, bool back) const;
        void go(bool back);
    };
    void move(const void* first, bool back, int answer);
    void rename(const std::string& key, const std::string& file);
};

} // namespace dyeworks
