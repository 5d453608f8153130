#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace dyeworks {

class CDyeworksDoc;
class CTPFDocument;
class ProjectPlugIns;

/// What a new project is called and where it keeps its files, as it was typed. Folders of images and palettes
/// may be several, separated by ";".
struct ProjectSettings {
    std::string name;
    std::string projectDirectory;
    std::string imageDirectories;
    std::string paletteDirectories;
};

/// What the dialog of a picture shows and gives back. File names are as they were typed: relative to the
/// project's folders, or with a folder of their own.
struct PictureSettings {
    std::string name;
    std::string imageFile;
    std::string paletteFile;
    std::int32_t paletteNumber = 0; ///< 0 to 15.
    std::string imageDirectories;   ///< Where relative names are looked for, separated by ";".
    std::string paletteDirectories;
};

/// A field of the picture dialog.
enum class PictureField { None, Name, Image, Palette };

/// What the project document and its tree ask of the application.
class ProjectHost {
public:
    virtual ~ProjectHost() = default;

    [[nodiscard]] virtual ProjectPlugIns& projectPlugIns() = 0;

    /// The open project, or null.
    [[nodiscard]] virtual CTPFDocument* projectDocument() const = 0;
    /// The document is the open project now; null: there is none, nor a chosen picture.
    virtual void setProjectDocument(CTPFDocument* project) = 0;
    /// Closes the open project after the question about its changes. True when none is open afterwards.
    virtual bool CloseProject() = 0;
    /// Shows what the open project is, after its pictures have changed.
    virtual void ProjectChanged() = 0;
    /// The open project's title is another one.
    virtual void ProjectRenamed() = 0;
    /// Makes the picture the chosen one.
    virtual void SelectPicture(const std::string& name) = 0;

    // Dialogs. They start with what the argument holds; true when they were accepted, and the argument then
    // holds what was entered.
    virtual bool askNewProject(ProjectSettings& settings) = 0;
    /// The name and the project's own folder are only shown.
    virtual bool askProjectProperties(ProjectSettings& settings) = 0;
    /// `check` is asked before the dialog closes, and answers which field the user has been told to change.
    virtual bool askPicture(PictureSettings& settings,
                            const std::function<PictureField(const PictureSettings&)>& check) = 0;

    /// Opens the palette. False when it could not be opened, which has been reported.
    virtual bool openPalette(const std::string& path) = 0;
    /// Opens the image. Null when it could not be opened, which has been reported.
    virtual CDyeworksDoc* openImage(const std::string& path) = 0;
    /// The files of the images and palettes that are open; more may be among them.
    [[nodiscard]] virtual std::vector<std::string> openFiles() = 0;
    /// Closes the images and palettes of these paths that are open, if the user agrees. False, with all of
    /// them still open, when the user cancels a question about their changes, or when `mayGoOn`, which is
    /// asked last and also when nothing is to be closed, answers so.
    virtual bool ClosePictureDocuments(const std::vector<std::string>& paths,
                                       const std::function<bool()>& mayGoOn) = 0;
    /// Shows the active image through this bank of the current palette.
    virtual void SetPaletteBarNumber(std::int32_t number) = 0;

    /// Runs a command of the program, by its number, as if it had been chosen in a menu.
    virtual void runCommand(std::uint32_t command) = 0;
};

} // namespace dyeworks
