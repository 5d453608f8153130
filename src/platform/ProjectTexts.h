#pragma once

#include "platform/TextRow.h"

namespace dyeworks {

/// Texts of projects, their pictures and plug-ins.
inline constexpr TextRow kProjectTexts[] = {
    TextRow{StringId::UseProjectCaption, QT_TRANSLATE_NOOP("Text", "Do you use project?")},
    TextRow{StringId::UseProjectQuestion,
            QT_TRANSLATE_NOOP("Text", "You can add the pair of TMF(Image)+TLF(Palette) as picture to the "
                                      "project.\nDo you use project?")},
    TextRow{StringId::UseProjectNew, QT_TRANSLATE_NOOP("Text", "&New")},
    TextRow{StringId::UseProjectOpen, QT_TRANSLATE_NOOP("Text", "&Open")},
    TextRow{StringId::UseProjectNotify, QT_TRANSLATE_NOOP("Text", "No&tify next time")},
    TextRow{StringId::UseProjectNewTip, QT_TRANSLATE_NOOP("Text", "Make a new project")},
    TextRow{StringId::UseProjectOpenTip, QT_TRANSLATE_NOOP("Text", "Open a project from its file")},
    TextRow{StringId::UseProjectCancelTip, QT_TRANSLATE_NOOP("Text", "Go on without a project")},
    TextRow{StringId::UseProjectNotifyTip,
            QT_TRANSLATE_NOOP("Text", "Ask again when the next image has been made")},
    TextRow{StringId::ProjectAlreadyOpened,
            QT_TRANSLATE_NOOP(
                "Text", "Project already opened.\n(You can use only one Project.)\nDo you close it?\n")},
    TextRow{StringId::CloseAllPicturesQuestion, QT_TRANSLATE_NOOP("Text", "Do you close all pictures?")},
    TextRow{StringId::IncorrectParameter, QT_TRANSLATE_NOOP("Text", "Incorrect parameter.")},
    TextRow{StringId::NewFileNameMissing, QT_TRANSLATE_NOOP("Text", "Please specify new file name.")},
    TextRow{StringId::FileNameExists,
            QT_TRANSLATE_NOOP("Text", "File name has already existed.\nPlease give unique name.")},
    TextRow{StringId::FileIsNotFoundIgnore,
            QT_TRANSLATE_NOOP("Text", "%1 is not found.\nDo you ignore error to continue?")},
    TextRow{StringId::ProjectFileExists, QT_TRANSLATE_NOOP("Text", "%1 file already exists.\nOver write?")},
    TextRow{StringId::CannotOpenFile, QT_TRANSLATE_NOOP("Text", "Cannot open \"%1\".\n%2")},
    TextRow{StringId::CannotSaveProject, QT_TRANSLATE_NOOP("Text", "Cannot save the project as \"%1\".")},
    TextRow{
        StringId::ProjectCannotHoldFolder,
        QT_TRANSLATE_NOOP(
            "Text", "A project cannot keep the folder \"%1\": its path is too long or has a \"#\" in it.")},
    TextRow{StringId::FoldersDoNotExist, QT_TRANSLATE_NOOP("Text", "%1is\nnot exist directory.")},
    TextRow{StringId::FoldersJoint, QT_TRANSLATE_NOOP("Text", "and,\n")},
    TextRow{StringId::DriveIsNotMapped,
            QT_TRANSLATE_NOOP(
                "Text",
                "\"%1\" is not found.\nThe program does not know what folder drive %2 stands for. Start it "
                "once with\n--drive %2=FOLDER")},
    TextRow{StringId::FileIsNotFound, QT_TRANSLATE_NOOP("Text", "\"%1\" is not found.")},
    TextRow{StringId::PictureNameCannotBeHeld,
            QT_TRANSLATE_NOOP(
                "Text",
                "A picture needs a name, which begins with no blank and has none of , # = \\ and $( in it.")},
    TextRow{StringId::FileNameCannotBeHeld,
            QT_TRANSLATE_NOOP("Text",
                              "A project cannot keep the file name \"%1\": it has one of , # and $( in it.")},
    TextRow{StringId::PictureNamesAreTooLong,
            QT_TRANSLATE_NOOP("Text", "The names of the picture and of its files are too long together.")},
    TextRow{StringId::ReplacePictureQuestion,
            QT_TRANSLATE_NOOP("Text", "There is a picture \"%1\" already.\nDo you want to replace it?")},
    TextRow{StringId::SavePaletteForProject,
            QT_TRANSLATE_NOOP("Text", "Please save the palette that is added to the project.")},
    TextRow{StringId::SaveImageForProject,
            QT_TRANSLATE_NOOP("Text", "Please save document that adds to project.")},
    TextRow{StringId::NotAddedToProject, QT_TRANSLATE_NOOP("Text", "not add to project.")},
    TextRow{StringId::AttachForProjectQuestion,
            QT_TRANSLATE_NOOP(
                "Text", "You must attach a palette before add to project.\nattach to active palette now?\n")},
    TextRow{StringId::NoActivePalette,
            QT_TRANSLATE_NOOP("Text", "An active palette not found.\nYou must open or create a palette.\n")},
    TextRow{StringId::PictureCaption, QT_TRANSLATE_NOOP("Text", "Picture")},
    TextRow{StringId::PictureName, QT_TRANSLATE_NOOP("Text", "Picture &name")},
    TextRow{StringId::PictureImage, QT_TRANSLATE_NOOP("Text", "Texture (TMF)")},
    TextRow{StringId::PicturePalette, QT_TRANSLATE_NOOP("Text", "Palette (TLF)")},
    TextRow{StringId::PicturePaletteNumber, QT_TRANSLATE_NOOP("Text", "Palette N&o.")},
    TextRow{StringId::PictureNewFile, QT_TRANSLATE_NOOP("Text", "New...")},
    TextRow{StringId::PictureNameTip, QT_TRANSLATE_NOOP("Text", "What the picture is called in the project")},
    TextRow{
        StringId::PictureImageTip,
        QT_TRANSLATE_NOOP("Text", "A file in the project's image folder, or one with a folder of its own")},
    TextRow{
        StringId::PicturePaletteTip,
        QT_TRANSLATE_NOOP("Text", "A file in the project's palette folder, or one with a folder of its own")},
    TextRow{StringId::PicturePaletteNumberTip,
            QT_TRANSLATE_NOOP(
                "Text", "The 16 entries of a large palette that a 4-bit image is shown through, 0 to 15")},
    TextRow{StringId::PictureBrowseImageTip, QT_TRANSLATE_NOOP("Text", "Choose an image file")},
    TextRow{StringId::PictureBrowsePaletteTip, QT_TRANSLATE_NOOP("Text", "Choose a palette file")},
    TextRow{StringId::PictureNewImageTip, QT_TRANSLATE_NOOP("Text", "Make a new image file of this name")},
    TextRow{StringId::PictureNewPaletteTip,
            QT_TRANSLATE_NOOP("Text", "Make a new palette file of this name")},
    TextRow{StringId::PicturePreview, QT_TRANSLATE_NOOP("Text", "Preview")},
    TextRow{StringId::PicturePreviewTip,
            QT_TRANSLATE_NOOP("Text", "The image in the colours of the palette")},
    TextRow{StringId::HelpProjectTree,
            QT_TRANSLATE_NOOP(
                "Text",
                "The project and its pictures, each an image with a palette. Double-click a picture to open "
                "it; drag it to another place, with Ctrl for a copy.")},
    TextRow{StringId::PlugInFailed, QT_TRANSLATE_NOOP("Text", "The plug-in %1 failed.")},
    TextRow{StringId::ImportPlugInMissing, QT_TRANSLATE_NOOP("Text", "TMF Import Plug-In not installed.\n")},
    TextRow{StringId::ImportEntryMissing, QT_TRANSLATE_NOOP("Text", "TMF import entry not found")},
    TextRow{StringId::ExportPlugInMissing, QT_TRANSLATE_NOOP("Text", "TMF Export Plug-In not installed.\n")},
    TextRow{StringId::ExportEntryMissing, QT_TRANSLATE_NOOP("Text", "TMF export entry not found.")},
    TextRow{StringId::PreviewPlugInMissing,
            QT_TRANSLATE_NOOP("Text", "TMF Preview Plug-In not installed.\n")},
    TextRow{StringId::PreviewEntryMissing, QT_TRANSLATE_NOOP("Text", "TMF preview entry not found")},
    TextRow{StringId::ProjectExportPlugInMissing,
            QT_TRANSLATE_NOOP("Text", "TPF Export Plug-In not installed.\n")},
    TextRow{StringId::ProjectExportEntryMissing, QT_TRANSLATE_NOOP("Text", "TPF export entry not found.")},
    TextRow{StringId::AboutPlugIns, QT_TRANSLATE_NOOP("Text", "PlugIns")},
    TextRow{StringId::AboutPlugInsTip,
            QT_TRANSLATE_NOOP("Text", "The folder of the plug-ins, which the program reads when it starts")},
    TextRow{StringId::AboutName, QT_TRANSLATE_NOOP("Text", "Name")},
    TextRow{StringId::AboutType, QT_TRANSLATE_NOOP("Text", "Type")},
    TextRow{StringId::AboutFile, QT_TRANSLATE_NOOP("Text", "File")},
    TextRow{StringId::AboutVersionColumn, QT_TRANSLATE_NOOP("Text", "Version")},
    TextRow{StringId::AboutInformation, QT_TRANSLATE_NOOP("Text", "Information")},
    TextRow{StringId::AboutCompany, QT_TRANSLATE_NOOP("Text", "Company")},
    TextRow{StringId::AboutPlugInList, QT_TRANSLATE_NOOP("Text", "The plug-ins that are loaded")},
};

} // namespace dyeworks
