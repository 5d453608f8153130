#pragma once

#include <initializer_list>

namespace dyeworks {

/// Texts of the program that are not part of a menu or a form. Their English wording stands in TextTable.cpp.
enum class StringId {
    ApplicationTitle,

    FileErrorNotFound,
    FileErrorAccessDenied,
    FileErrorNotAFile,
    FileErrorNoSpace,
    FileErrorReadOnly,
    FileErrorNameTooLong,
    FileErrorTooLarge,
    FileErrorOther,

    CannotSaveFile,      ///< %1 file, %2 why
    SaveChangesQuestion, ///< %1 document
    SavePaletteQuestion, ///< %1 title
    CannotReadFile,      ///< %1 file
    PaletteOpenFailed,   ///< %1 file
    FileIsOpenElsewhere, ///< %1 file
    RevertQuestion,      ///< %1 document
    WithoutUndoQuestion,
    UndoBufferQuestion,
    NotEnoughMemory,
    CannotCopy,
    CannotPaste,

    FormatOpenFailed,     ///< Of the palette and image formats: %1 file
    TlfHeaderSize,        ///< %1 file
    TlfHeaderInformation, ///< %1 file
    TlfCreateFailed,      ///< %1 file
    TlfBodySize,          ///< %1 file
    TlfIllegalCount,      ///< %1 number
    PaletteCreateFailed,  ///< %1 number of entries, %2 colour type
    LogPaletteFailed,
    TmfReadFailed,  ///< %1 file
    TmfImproperTag, ///< %1 tag, %2 bits
    TmfNoMemory,

    InterchangeUnknownFormat,
    InterchangeDamaged,
    InterchangeDamagedWhere, ///< %3 where or why, in English
    InterchangeTooLarge,     ///< %1 width, %2 height
    InterchangeNoColours,
    InterchangeBadLine,            ///< %1 line, %3 its beginning
    InterchangeIndexWithoutColour, ///< %1 of a pixel, %2 colours
    InterchangeIndexTooHigh,       ///< %1 highest in the file, %2 highest possible
    InterchangeNoTexels,
    InterchangeCancelled,

    BmpErrorNotABitmap,
    BmpErrorTruncated,
    BmpErrorBadSize,
    BmpErrorCompressed,
    DepthTakesABitmap, ///< %1 bits
    BitmapFiles,       ///< Of a file dialog's filter.
    ImportBmpCaption,
    ExportBmpCaption,

    ChosenFileMissing,   ///< %1 file
    ReplaceFileQuestion, ///< %1 file

    BarTool,
    BarView,
    BarDraw,
    BarPalette,
    NoPaletteOpen,
    OpenPalettes,
    PaletteUnsaved,
    PaletteTabUnsaved, ///< %1 title
    PaletteColours,
    PaletteBank,
    PaletteBankTip,
    ImageViewName,
    AboutCaption,
    AboutVersion, ///< Before the number.
    AboutDescription,

    IntegerOutOfRange, ///< %1 lowest, %2 highest
    NewSheetCaption,
    NewImageTab,
    NewImageWidth,
    NewImageHeight,
    NewImageBitMode,
    NewImage4Bit,
    NewImage8Bit,
    NewImageSize,
    NewImageBytes, ///< %1 number
    NewImageWidthTip,
    NewImageHeightTip,
    NewImage4BitTip,
    NewImage8BitTip,
    NewImageSizeTip,
    PrintingFailed,
    PrintingProgress, ///< %1 page, %2 pages

    BarProject,
    BarBrush,
    BrushSize,
    BrushSizeTip,
    ProjectBarAdd,
    ProjectBarChange,
    ProjectBarRemove,
    ProjectPictures,
    ProjectNotOpenYet,
    NoPicture,
    OpenChosenPicture,
    HelpToolBar,
    HelpViewBar,
    HelpDrawBar,
    HelpBrushBar,
    HelpProjectBar,
    HelpPaletteBar,
    HelpMessagePane,
    HelpPositionPane,
    HelpSizePane,
    HelpDocumentArea,
    HelpImageView,

    ObjectServicesFailed,
    ResumeFailed,
    HelpFailed,
    NeededControlMissing, ///< %1 file; the program ends.
    ControlMissing,       ///< %1 file

    RgbaDialogCaption,
    IaDialogCaption,
    EntryRed,
    EntryGreen,
    EntryBlue,
    EntryAlpha,
    EntryIntensity,
    ChannelRed,
    ChannelGreen,
    ChannelBlue,
    ChannelAlpha,
    ChannelIntensity,
    EntryChannelTip, ///< %1 channel, %2 highest value
    EntryReadOutTip, ///< %1 channel
    EntrySwatch,
    GradientLeftTip,
    GradientRightTip,
    GradientStepTip, ///< %1 number
    PaletteNotOpenYet,
    PaletteViewRgb,
    PaletteViewAlpha,
    PaletteViewRgbTip,
    PaletteViewAlphaTip,
    PalettePreview,
    PalettePreviewTip,
    PaletteApply,
    PaletteApplyTip,
    PaletteCellTip,
    PaletteEntryName,
    PaletteEntryTip,
    PaletteEntryWrong,
    PaletteGradient,

    NewProjectTab,
    NewProjectName,
    NewProjectDirectory,
    NewProjectImages,
    NewProjectPalettes,
    NewProjectNameTip,
    NewProjectDirectoryTip,
    NewProjectImagesTip,
    NewProjectPalettesTip,
    BrowseProjectTip,
    BrowseImagesTip,
    BrowsePalettesTip,
    BrowseMissingTip,
    ProjectSheetCaption,
    NewPaletteTab,
    NewPalette8Bit,
    NewPalette4BitTip,
    NewPalette8BitTip,
    NewPaletteType,
    NewPaletteRgba,
    NewPaletteIa,
    NewPaletteRgbaTip,
    NewPaletteIaTip,
    NewPaletteAlpha,
    NewPaletteAlphaTip, ///< %1 highest
    NewPaletteSizeTip,
    OptionsSheetCaption,
    OptionsGeneralTab,
    OptionsAskUseProject,
    OptionsAskUseProjectTip,
    UseProjectCaption,
    UseProjectQuestion,
    UseProjectNew,
    UseProjectOpen,
    UseProjectNotify,
    UseProjectNewTip,
    UseProjectOpenTip,
    UseProjectCancelTip,
    UseProjectNotifyTip,
    ProjectAlreadyOpened,
    CloseAllPicturesQuestion,
    IncorrectParameter,
    NewFileNameMissing,
    FileNameExists,
    FileIsNotFoundIgnore,    ///< %1 file
    ProjectFileExists,       ///< %1 file
    CannotOpenFile,          ///< %1 file, %2 why
    CannotSaveProject,       ///< %1 file
    ProjectCannotHoldFolder, ///< %1 folders
    FoldersDoNotExist,       ///< %1 folders, each with its name
    FoldersJoint,            ///< Between the folders.
    DriveIsNotMapped,        ///< %1 file, %2 letter
    FileIsNotFound,          ///< %1 file
    PictureNameCannotBeHeld,
    FileNameCannotBeHeld, ///< %1 file
    PictureNamesAreTooLong,
    ReplacePictureQuestion, ///< %1 name
    SavePaletteForProject,
    SaveImageForProject,
    NotAddedToProject,
    AttachForProjectQuestion,
    NoActivePalette,
    PictureCaption,
    PictureName,
    PictureImage,
    PicturePalette,
    PicturePaletteNumber,
    PictureNewFile,
    PictureNameTip,
    PictureImageTip,
    PicturePaletteTip,
    PicturePaletteNumberTip,
    PictureBrowseImageTip,
    PictureBrowsePaletteTip,
    PictureNewImageTip,
    PictureNewPaletteTip,
    PicturePreview,
    PicturePreviewTip,
    HelpProjectTree,
    PlugInFailed, ///< %1 file
    ImportPlugInMissing,
    ImportEntryMissing,
    ExportPlugInMissing,
    ExportEntryMissing,
    PreviewPlugInMissing,
    PreviewEntryMissing,
    ProjectExportPlugInMissing,
    ProjectExportEntryMissing,
    AboutPlugIns,
    AboutPlugInsTip,
    AboutName,
    AboutType,
    AboutFile,
    AboutVersionColumn,
    AboutInformation,
    AboutCompany,
    AboutPlugInList,

    Count
};

} // namespace dyeworks
