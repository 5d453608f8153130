#include "platform/Text.h"

#include <array>
#include <cassert>
#include <cstddef>

// The name by which the translation tools find the texts; what it wraps stays as it is.
#define QT_TRANSLATE_NOOP(context, text) text

namespace dyeworks {

namespace {

struct Row {
    StringId id;
    const char* english;
};

constexpr std::array kRows{
    Row{StringId::ApplicationTitle, QT_TRANSLATE_NOOP("Text", "Orrery Dyeworks")},

    Row{StringId::FileErrorNotFound, QT_TRANSLATE_NOOP("Text", "The file or its folder does not exist.")},
    Row{StringId::FileErrorAccessDenied, QT_TRANSLATE_NOOP("Text", "You do not have permission to use it.")},
    Row{StringId::FileErrorNotAFile, QT_TRANSLATE_NOOP("Text", "The name is that of a folder.")},
    Row{StringId::FileErrorNoSpace, QT_TRANSLATE_NOOP("Text", "There is no space left on the disk.")},
    Row{StringId::FileErrorReadOnly, QT_TRANSLATE_NOOP("Text", "The disk can only be read.")},
    Row{StringId::FileErrorNameTooLong, QT_TRANSLATE_NOOP("Text", "The name is too long.")},
    Row{StringId::FileErrorTooLarge, QT_TRANSLATE_NOOP("Text", "The file does not fit into memory.")},
    Row{StringId::FileErrorOther, QT_TRANSLATE_NOOP("Text", "The disk reported an error.")},

    Row{StringId::CannotSaveFile, QT_TRANSLATE_NOOP("Text", "Cannot save \"%1\".\n%2")},
    Row{StringId::SaveChangesQuestion, QT_TRANSLATE_NOOP("Text", "Save changes to %1?")},
    Row{StringId::CannotReadFile, QT_TRANSLATE_NOOP("Text", "Cannot read \"%1\".")},
    Row{StringId::FileIsOpenElsewhere, QT_TRANSLATE_NOOP("Text", "\"%1\" is open in another window.")},
    Row{StringId::RevertQuestion,
        QT_TRANSLATE_NOOP("Text", "Go back to the saved file?\nThe changes to \"%1\" will be lost.")},
    Row{StringId::WithoutUndoQuestion,
        QT_TRANSLATE_NOOP(
            "Text", "There is not enough memory to undo this later.\nDo you want to do it all the same?")},
    Row{StringId::NotEnoughMemory, QT_TRANSLATE_NOOP("Text", "There is not enough memory for this.")},
    Row{StringId::CannotCopy, QT_TRANSLATE_NOOP("Text", "The selection cannot be put on the clipboard.")},
    Row{StringId::CannotPaste, QT_TRANSLATE_NOOP("Text", "The bitmap on the clipboard cannot be pasted.")},

    Row{StringId::BmpErrorNotABitmap,
        QT_TRANSLATE_NOOP("Text", "The file is not a bitmap, or one of an unknown kind.")},
    Row{StringId::BmpErrorTruncated,
        QT_TRANSLATE_NOOP("Text", "The file is damaged or ends before the bitmap does.")},
    Row{StringId::BmpErrorBadSize,
        QT_TRANSLATE_NOOP("Text", "The width or height of the bitmap is out of range.")},
    Row{StringId::DepthTakesABitmap,
        QT_TRANSLATE_NOOP("Text", "A TMF image has 4 or 8 bits for each texel, and this one has %1.\n"
                                  "Give it a name that ends in .bmp.")},
    Row{StringId::BitmapFiles, QT_TRANSLATE_NOOP("Text", "Bitmap Files")},
    Row{StringId::ImportBmpCaption, QT_TRANSLATE_NOOP("Text", "Import BMP")},
    Row{StringId::ExportBmpCaption, QT_TRANSLATE_NOOP("Text", "Export BMP")},

    Row{StringId::ChosenFileMissing,
        QT_TRANSLATE_NOOP("Text", "\"%1\" does not exist.\nPlease check the name.")},
    Row{StringId::ReplaceFileQuestion,
        QT_TRANSLATE_NOOP("Text", "\"%1\" exists already.\nDo you want to replace it?")},

    Row{StringId::BarTool, QT_TRANSLATE_NOOP("Text", "Tool")},
    Row{StringId::BarView, QT_TRANSLATE_NOOP("Text", "View")},
    Row{StringId::BarDraw, QT_TRANSLATE_NOOP("Text", "Draw")},
    Row{StringId::BarPalette, QT_TRANSLATE_NOOP("Text", "Palette")},
    Row{StringId::NoPaletteOpen, QT_TRANSLATE_NOOP("Text", "No palette is open.")},
    Row{StringId::OpenPalettes, QT_TRANSLATE_NOOP("Text", "Open palettes")},
    Row{StringId::PaletteUnsaved, QT_TRANSLATE_NOOP("Text", "It has unsaved changes.")},
    Row{StringId::PaletteTabUnsaved, QT_TRANSLATE_NOOP("Text", "%1, unsaved changes")},
    Row{StringId::PaletteColours, QT_TRANSLATE_NOOP("Text", "Palette colours")},
    Row{StringId::PaletteBank, QT_TRANSLATE_NOOP("Text", "Ban&k")},
    Row{StringId::PaletteBankTip,
        QT_TRANSLATE_NOOP("Text", "The 16 entries of the palette that the image is shown through")},
    Row{StringId::ImageViewName, QT_TRANSLATE_NOOP("Text", "Image")},
    Row{StringId::AboutCaption, QT_TRANSLATE_NOOP("Text", "Version (Orrery Dyeworks)")},
    Row{StringId::AboutVersion, QT_TRANSLATE_NOOP("Text", "Orrery Dyeworks Version")},
    Row{StringId::AboutDescription, QT_TRANSLATE_NOOP("Text", "Editor for colour-indexed console textures")},

    Row{StringId::IntegerOutOfRange, QT_TRANSLATE_NOOP("Text", "Please enter an integer between %1 and %2.")},
    Row{StringId::NewSheetCaption, QT_TRANSLATE_NOOP("Text", "New")},
    Row{StringId::NewImageTab, QT_TRANSLATE_NOOP("Text", "Texture")},
    Row{StringId::NewImageWidth, QT_TRANSLATE_NOOP("Text", "&Width")},
    Row{StringId::NewImageHeight, QT_TRANSLATE_NOOP("Text", "&Height")},
    Row{StringId::NewImageBitMode, QT_TRANSLATE_NOOP("Text", "Bit mode")},
    Row{StringId::NewImage4Bit, QT_TRANSLATE_NOOP("Text", "&4bit (16colors)")},
    Row{StringId::NewImage8Bit, QT_TRANSLATE_NOOP("Text", "&8bit (256colors)")},
    Row{StringId::NewImageSize, QT_TRANSLATE_NOOP("Text", "Size")},
    Row{StringId::NewImageBytes, QT_TRANSLATE_NOOP("Text", "%1 bytes")},
    Row{StringId::NewImageWidthTip, QT_TRANSLATE_NOOP("Text", "Width of the image in texels, 0 to 1024")},
    Row{StringId::NewImageHeightTip, QT_TRANSLATE_NOOP("Text", "Height of the image in texels, 0 to 1024")},
    Row{StringId::NewImage4BitTip,
        QT_TRANSLATE_NOOP("Text", "Each texel is one of the 16 colours of a palette bank")},
    Row{StringId::NewImage8BitTip,
        QT_TRANSLATE_NOOP("Text", "Each texel is one of the 256 colours of a palette")},
    Row{StringId::NewImageSizeTip, QT_TRANSLATE_NOOP("Text", "Memory that the texels of the image take")},
    Row{StringId::PrintingFailed, QT_TRANSLATE_NOOP("Text", "The document could not be printed.")},
    Row{StringId::PrintingProgress, QT_TRANSLATE_NOOP("Text", "Printing page %1 of %2...")},

    Row{StringId::BarProject, QT_TRANSLATE_NOOP("Text", "Project")},
    Row{StringId::ProjectBarAdd, QT_TRANSLATE_NOOP("Text", "&Add")},
    Row{StringId::ProjectBarChange, QT_TRANSLATE_NOOP("Text", "&Change")},
    Row{StringId::ProjectBarRemove, QT_TRANSLATE_NOOP("Text", "&Remove")},
    Row{StringId::ProjectPictures, QT_TRANSLATE_NOOP("Text", "Pictures of the project")},
    Row{StringId::OpenChosenPicture, QT_TRANSLATE_NOOP("Text", "Open the chosen picture")},
    Row{StringId::HelpToolBar,
        QT_TRANSLATE_NOOP("Text", "Buttons for documents, undo and redo, the clipboard, printing and help. "
                                  "Drag the handle to move the bar to another side of the window.")},
    Row{StringId::HelpViewBar,
        QT_TRANSLATE_NOOP("Text", "Buttons for the palette bar, the grid and the previews. Drag the handle "
                                  "to move the bar to another side of the window.")},
    Row{StringId::HelpDrawBar,
        QT_TRANSLATE_NOOP("Text",
                          "The drawing tools. The chosen one draws with the colour that is selected in the "
                          "palette bar. Drag the handle to move the bar to another side of the window.")},
    Row{StringId::HelpProjectBar,
        QT_TRANSLATE_NOOP("Text", "The pictures of the open project. Choose one in the list; the button on "
                                  "the right opens it, the others change the list.")},
    Row{StringId::HelpPaletteBar,
        QT_TRANSLATE_NOOP(
            "Text",
            "The open palettes and the colours of the current one. Click the colour to draw with; change it "
            "with the bars, the numbers or the entry in hexadecimal, then press Apply.")},
    Row{StringId::HelpMessagePane, QT_TRANSLATE_NOOP("Text", "What the command under the pointer does.")},
    Row{StringId::HelpPositionPane,
        QT_TRANSLATE_NOOP("Text",
                          "The texel under the pointer, counted from the top left corner, and the zoom.")},
    Row{StringId::HelpSizePane, QT_TRANSLATE_NOOP("Text", "Width, height and depth of the active image.")},
    Row{StringId::HelpDocumentArea,
        QT_TRANSLATE_NOOP("Text",
                          "The windows of the open documents. Files that are dropped here are opened.")},
    Row{StringId::HelpImageView,
        QT_TRANSLATE_NOOP("Text", "The image. The chosen tool draws where you press and drag; the wheel with "
                                  "Ctrl changes the zoom.")},

    Row{StringId::ObjectServicesFailed,
        QT_TRANSLATE_NOOP("Text", "OLE initialization failed.  Make sure that the OLE libraries are the "
                                  "correct version.")},
    Row{StringId::ResumeFailed, QT_TRANSLATE_NOOP("Text", "Some documents failed to resume.")},
    Row{StringId::HelpFailed, QT_TRANSLATE_NOOP("Text", "can not open help. Please, check exist help file, "
                                                        "and check browser installed.")},

    Row{StringId::RgbaDialogCaption, QT_TRANSLATE_NOOP("Text", "RGBA Palette")},
    Row{StringId::IaDialogCaption, QT_TRANSLATE_NOOP("Text", "IA Palette")},
    Row{StringId::EntryRed, QT_TRANSLATE_NOOP("Text", "&R")},
    Row{StringId::EntryGreen, QT_TRANSLATE_NOOP("Text", "&G")},
    Row{StringId::EntryBlue, QT_TRANSLATE_NOOP("Text", "&B")},
    Row{StringId::EntryAlpha, QT_TRANSLATE_NOOP("Text", "&A")},
    Row{StringId::EntryIntensity, QT_TRANSLATE_NOOP("Text", "&I")},
    Row{StringId::ChannelRed, QT_TRANSLATE_NOOP("Text", "Red")},
    Row{StringId::ChannelGreen, QT_TRANSLATE_NOOP("Text", "Green")},
    Row{StringId::ChannelBlue, QT_TRANSLATE_NOOP("Text", "Blue")},
    Row{StringId::ChannelAlpha, QT_TRANSLATE_NOOP("Text", "Alpha")},
    Row{StringId::ChannelIntensity, QT_TRANSLATE_NOOP("Text", "Intensity")},
    Row{StringId::EntryChannelTip, QT_TRANSLATE_NOOP("Text", "%1, 0 to %2")},
    Row{StringId::EntryReadOutTip, QT_TRANSLATE_NOOP("Text", "%1 in hexadecimal")},
    Row{StringId::EntrySwatch, QT_TRANSLATE_NOOP("Text", "Colour of the entry")},
    Row{StringId::GradientLeftTip,
        QT_TRANSLATE_NOOP("Text", "Take this colour as the left end of the gradient")},
    Row{StringId::GradientRightTip,
        QT_TRANSLATE_NOOP("Text", "Take this colour as the right end of the gradient")},
    Row{StringId::GradientStepTip, QT_TRANSLATE_NOOP("Text", "Gradient step %1")},
    Row{StringId::PaletteNotOpenYet, QT_TRANSLATE_NOOP("Text", "Palette is not open yet.")},
    Row{StringId::PaletteViewRgb, QT_TRANSLATE_NOOP("Text", "&RGB")},
    Row{StringId::PaletteViewAlpha, QT_TRANSLATE_NOOP("Text", "&Alpha")},
    Row{StringId::PaletteViewRgbTip, QT_TRANSLATE_NOOP("Text", "Show the colours, here and in the images")},
    Row{StringId::PaletteViewAlphaTip,
        QT_TRANSLATE_NOOP("Text", "Show the alpha plane, here and in the images")},
    Row{StringId::PalettePreview, QT_TRANSLATE_NOOP("Text", "Preview")},
    Row{StringId::PalettePreviewTip,
        QT_TRANSLATE_NOOP("Text", "Show the entry in the images while it is edited")},
    Row{StringId::PaletteApply, QT_TRANSLATE_NOOP("Text", "Apply")},
    Row{StringId::PaletteApplyTip, QT_TRANSLATE_NOOP("Text", "Write the edited entry into the palette")},
    Row{StringId::PaletteCellTip, QT_TRANSLATE_NOOP("Text", "Number of the current entry")},
    Row{StringId::PaletteEntryName, QT_TRANSLATE_NOOP("Text", "Entry")},
    Row{StringId::PaletteEntryTip, QT_TRANSLATE_NOOP("Text", "The edited entry in hexadecimal")},
    Row{StringId::PaletteEntryWrong,
        QT_TRANSLATE_NOOP("Text", "Please enter one to four hexadecimal digits.")},
    Row{StringId::PaletteGradient, QT_TRANSLATE_NOOP("Text", "Gradient")},

    Row{StringId::NewProjectTab, QT_TRANSLATE_NOOP("Text", "Project")},
    Row{StringId::NewProjectName, QT_TRANSLATE_NOOP("Text", "TPF &Name")},
    Row{StringId::NewProjectDirectory, QT_TRANSLATE_NOOP("Text", "TPF &Dir")},
    Row{StringId::NewProjectImages, QT_TRANSLATE_NOOP("Text", "&TMF Dir")},
    Row{StringId::NewProjectPalettes, QT_TRANSLATE_NOOP("Text", "T&LF Dir")},
    Row{StringId::NewProjectNameTip, QT_TRANSLATE_NOOP("Text", "Name of the project, and of its file")},
    Row{StringId::NewProjectDirectoryTip, QT_TRANSLATE_NOOP("Text", "Folder that the project's file is in")},
    Row{StringId::NewProjectImagesTip,
        QT_TRANSLATE_NOOP("Text", "Folder of the images; the project's own when nothing is entered")},
    Row{StringId::NewProjectPalettesTip,
        QT_TRANSLATE_NOOP("Text", "Folder of the palettes; the project's own when nothing is entered")},
    Row{StringId::BrowseProjectTip, QT_TRANSLATE_NOOP("Text", "Choose the folder of the project")},
    Row{StringId::BrowseImagesTip, QT_TRANSLATE_NOOP("Text", "Choose the folder of the images")},
    Row{StringId::BrowsePalettesTip, QT_TRANSLATE_NOOP("Text", "Choose the folder of the palettes")},
    Row{StringId::BrowseMissingTip,
        QT_TRANSLATE_NOOP("Text", "Folders can only be typed, because FolderPick.ocx is not found")},
    Row{StringId::ProjectSheetCaption, QT_TRANSLATE_NOOP("Text", "Project Property")},
    Row{StringId::NewPaletteTab, QT_TRANSLATE_NOOP("Text", "Palette")},
    Row{StringId::NewPalette8Bit, QT_TRANSLATE_NOOP("Text", "&8bit (256Colors)")},
    Row{StringId::NewPalette4BitTip, QT_TRANSLATE_NOOP("Text", "A palette of 16 entries")},
    Row{StringId::NewPalette8BitTip, QT_TRANSLATE_NOOP("Text", "A palette of 256 entries")},
    Row{StringId::NewPaletteType, QT_TRANSLATE_NOOP("Text", "Colour type")},
    Row{StringId::NewPaletteRgba, QT_TRANSLATE_NOOP("Text", "16bit &RGBA")},
    Row{StringId::NewPaletteIa, QT_TRANSLATE_NOOP("Text", "16bit &IA")},
    Row{StringId::NewPaletteRgbaTip,
        QT_TRANSLATE_NOOP("Text", "Red, green and blue of 5 bits each, alpha of 1 bit")},
    Row{StringId::NewPaletteIaTip, QT_TRANSLATE_NOOP("Text", "Intensity and alpha of 8 bits each")},
    Row{StringId::NewPaletteAlpha, QT_TRANSLATE_NOOP("Text", "Default &Alpha")},
    Row{StringId::NewPaletteAlphaTip,
        QT_TRANSLATE_NOOP("Text", "Alpha that all entries begin with, 0 to %1")},
    Row{StringId::NewPaletteSizeTip, QT_TRANSLATE_NOOP("Text", "Size of the palette's file")},
    Row{StringId::OptionsSheetCaption, QT_TRANSLATE_NOOP("Text", "Options Setting Dialog")},
    Row{StringId::OptionsGeneralTab, QT_TRANSLATE_NOOP("Text", "General")},
    Row{StringId::OptionsAskUseProject,
        QT_TRANSLATE_NOOP("Text", "&When TMF was created, ask about using the project.")},
    Row{StringId::OptionsAskUseProjectTip,
        QT_TRANSLATE_NOOP(
            "Text", "Whether a new image brings the question about using a project, while none is open")},
    Row{StringId::UseProjectCaption, QT_TRANSLATE_NOOP("Text", "Do you use project?")},
    Row{StringId::UseProjectQuestion,
        QT_TRANSLATE_NOOP("Text", "You can add the pair of TMF(Image)+TLF(Palette) as picture to the "
                                  "project.\nDo you use project?")},
    Row{StringId::UseProjectNew, QT_TRANSLATE_NOOP("Text", "&New")},
    Row{StringId::UseProjectOpen, QT_TRANSLATE_NOOP("Text", "&Open")},
    Row{StringId::UseProjectNotify, QT_TRANSLATE_NOOP("Text", "No&tify next time")},
    Row{StringId::UseProjectNewTip, QT_TRANSLATE_NOOP("Text", "Make a new project")},
    Row{StringId::UseProjectOpenTip, QT_TRANSLATE_NOOP("Text", "Open a project from its file")},
    Row{StringId::UseProjectCancelTip, QT_TRANSLATE_NOOP("Text", "Go on without a project")},
    Row{StringId::UseProjectNotifyTip,
        QT_TRANSLATE_NOOP("Text", "Ask again when the next image has been made")},
    Row{StringId::ProjectAlreadyOpened,
        QT_TRANSLATE_NOOP("Text",
                          "Project already opened.\n(You can use only one Project.)\nDo you close it?\n")},
    Row{StringId::IncorrectParameter, QT_TRANSLATE_NOOP("Text", "Incorrect parameter.")},
    Row{StringId::NewFileNameMissing, QT_TRANSLATE_NOOP("Text", "Please specify new file name.")},
    Row{StringId::FileNameExists,
        QT_TRANSLATE_NOOP("Text", "File name has already existed.\nPlease give unique name.")},
    Row{StringId::FileIsNotFoundIgnore,
        QT_TRANSLATE_NOOP("Text", "%1 is not found.\nDo you ignore error to continue?")},
    Row{StringId::ProjectFileExists, QT_TRANSLATE_NOOP("Text", "%1 file already exists.\nOver write?")},
    Row{StringId::CannotOpenFile, QT_TRANSLATE_NOOP("Text", "Cannot open \"%1\".\n%2")},
    Row{StringId::CannotSaveProject, QT_TRANSLATE_NOOP("Text", "Cannot save the project as \"%1\".")},
    Row{StringId::ProjectCannotHoldFolder,
        QT_TRANSLATE_NOOP(
            "Text", "A project cannot keep the folder \"%1\": its path is too long or has a \"#\" in it.")},
    Row{StringId::DriveIsNotMapped,
        QT_TRANSLATE_NOOP(
            "Text",
            "\"%1\" is not found.\nThe program does not know what folder drive %2 stands for. Start it "
            "once with\n--drive %2=FOLDER")},
    Row{StringId::FileIsNotFound, QT_TRANSLATE_NOOP("Text", "\"%1\" is not found.")},
    Row{StringId::PictureNameCannotBeHeld,
        QT_TRANSLATE_NOOP(
            "Text",
            "A picture needs a name, which begins with no blank and has none of , # = \\ and $( in it.")},
    Row{StringId::FileNameCannotBeHeld,
        QT_TRANSLATE_NOOP("Text",
                          "A project cannot keep the file name \"%1\": it has one of , # and $( in it.")},
    Row{StringId::PictureNamesAreTooLong,
        QT_TRANSLATE_NOOP("Text", "The names of the picture and of its files are too long together.")},
    Row{StringId::ReplacePictureQuestion,
        QT_TRANSLATE_NOOP("Text", "There is a picture \"%1\" already.\nDo you want to replace it?")},
    Row{StringId::SavePaletteForProject,
        QT_TRANSLATE_NOOP("Text", "Please save the palette that is added to the project.")},
    Row{StringId::PictureCaption, QT_TRANSLATE_NOOP("Text", "Picture")},
    Row{StringId::PictureName, QT_TRANSLATE_NOOP("Text", "Picture &name")},
    Row{StringId::PictureImage, QT_TRANSLATE_NOOP("Text", "Texture (TMF)")},
    Row{StringId::PicturePalette, QT_TRANSLATE_NOOP("Text", "Palette (TLF)")},
    Row{StringId::PicturePaletteNumber, QT_TRANSLATE_NOOP("Text", "Palette N&o.")},
    Row{StringId::PictureNewFile, QT_TRANSLATE_NOOP("Text", "New...")},
    Row{StringId::PictureNameTip, QT_TRANSLATE_NOOP("Text", "What the picture is called in the project")},
    Row{StringId::PictureImageTip,
        QT_TRANSLATE_NOOP("Text", "A file in the project's image folder, or one with a folder of its own")},
    Row{StringId::PicturePaletteTip,
        QT_TRANSLATE_NOOP("Text", "A file in the project's palette folder, or one with a folder of its own")},
    Row{StringId::PicturePaletteNumberTip,
        QT_TRANSLATE_NOOP("Text",
                          "The 16 entries of a large palette that a 4-bit image is shown through, 0 to 15")},
    Row{StringId::PictureBrowseImageTip, QT_TRANSLATE_NOOP("Text", "Choose an image file")},
    Row{StringId::PictureBrowsePaletteTip, QT_TRANSLATE_NOOP("Text", "Choose a palette file")},
    Row{StringId::PictureNewImageTip, QT_TRANSLATE_NOOP("Text", "Make a new image file of this name")},
    Row{StringId::PictureNewPaletteTip, QT_TRANSLATE_NOOP("Text", "Make a new palette file of this name")},
    Row{StringId::PicturePreview, QT_TRANSLATE_NOOP("Text", "Preview")},
    Row{StringId::PicturePreviewTip, QT_TRANSLATE_NOOP("Text", "The image in the colours of the palette")},
    Row{StringId::HelpProjectTree,
        QT_TRANSLATE_NOOP(
            "Text",
            "The project and its pictures, each an image with a palette. Double-click a picture to open "
            "it; drag it to another place, with Ctrl for a copy.")},
    Row{StringId::PlugInFailed, QT_TRANSLATE_NOOP("Text", "The plug-in %1 failed.")},
    Row{StringId::AboutPlugIns, QT_TRANSLATE_NOOP("Text", "PlugIns")},
    Row{StringId::AboutPlugInsTip,
        QT_TRANSLATE_NOOP("Text", "The folder of the plug-ins, which the program reads when it starts")},
    Row{StringId::AboutName, QT_TRANSLATE_NOOP("Text", "Name")},
    Row{StringId::AboutType, QT_TRANSLATE_NOOP("Text", "Type")},
    Row{StringId::AboutFile, QT_TRANSLATE_NOOP("Text", "File")},
    Row{StringId::AboutVersionColumn, QT_TRANSLATE_NOOP("Text", "Version")},
    Row{StringId::AboutInformation, QT_TRANSLATE_NOOP("Text", "Information")},
    Row{StringId::AboutCompany, QT_TRANSLATE_NOOP("Text", "Company")},
    Row{StringId::AboutPlugInList, QT_TRANSLATE_NOOP("Text", "The plug-ins that are loaded")},
};

static_assert(kRows.size() == static_cast<std::size_t>(StringId::Count), "every StringId needs its text");

constexpr bool rowsStandAtTheirNumber() {
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        if (static_cast<std::size_t>(kRows[i].id) != i)
            return false;
    }
    return true;
}
static_assert(rowsStandAtTheirNumber(), "the texts stand in the order of StringId");

} // namespace

const char* englishText(StringId id) {
    const auto index = static_cast<std::size_t>(id);
    assert(index < kRows.size());
    return kRows[index].english;
}

} // namespace dyeworks
