#pragma once

namespace dyeworks {

/// Texts of the program that are not part of a menu or a form. Their English wording stands in the files that
/// TextTable.cpp names.
enum class StringId : int {
    // FileTexts.h
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
    FileIsOfOpenPalette, ///< %1 file
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
    FileEndsTooEarly,
    InterchangeDamaged,
    InterchangeDamagedWhere, ///< %3 where or why, in English
    InterchangeTooLarge,     ///< %1 width, %2 height
    InterchangeNoColours,
    InterchangeTooManyColours,     ///< %1 as many as can be
    InterchangeBadLine,            ///< %1 line, %3 its beginning
    InterchangeIndexWithoutColour, ///< %1 of a pixel, %2 colours
    InterchangeIndexTooHigh,       ///< %1 highest in the file, %2 highest possible
    InterchangeNoTexels,
    InterchangeCancelled,
    RecoveryCaption,
    RecoveryWords,
    RecoveryName,
    RecoveryFile,
    RecoveryNoFile,
    RecoveryTime,
    RecoveryRecover,
    RecoveryRecoverTip,
    RecoveryDiscard,
    RecoveryDiscardTip,
    RecoveryLater,
    RecoveryLaterTip,
    RecoveryDiscardQuestion, ///< %1 number
    RecoveryNotOpened,       ///< %1 titles, a line each
    RecoveryFailed,          ///< %1 reason
    OutsideChanged,          ///< %1 file, as all below
    OutsideChangedBoth,
    OutsideRemoved,
    OutsideBack,
    OutsideBackChanged,
    OutsideReload,
    OutsideReloadTip,
    OutsideReloadProjectTip,
    OutsideKeep,
    OutsideKeepTip,
    OutsideCompare,
    OutsideCompareTip,
    OutsideClose,
    OutsideCloseTip,
    OutsideShowsFile,
    OutsideShowsOwn,
    OutsideSizesDiffer, ///< %1, %2, %3 columns, rows and bits of the file's image, %4, %5, %6 of the other
    OutsideReloaded,    ///< %1 file
    OutsideBar,
    OutsideOverQuestion, ///< %1 file
    OptionsReloadUnchanged,
    OptionsReloadUnchangedTip,
    WrittenInPlaceBroke, ///< %1 file, %2 why
    // Why a file cannot be read or written, further reasons; what can be done about it.
    FileErrorNotRegular,
    FileErrorBrokenLink,
    SaveAdviceNotFound,
    SaveAdviceAccessDenied,
    SaveAdviceNotAFile,
    SaveAdviceNoSpace,
    SaveAdviceReadOnly,
    SaveAdviceNameTooLong,
    SaveAdviceMemory,
    SaveAdviceOther,
    OpenAdviceNotFound,
    OpenAdviceAccessDenied,
    OpenAdviceNotAFile,
    OpenAdviceNotRegular,
    OpenAdviceBrokenLink,
    OpenAdviceMemory,
    OpenAdviceOther,
    WorkStaysOpen,
    MemoryAdvice,
    ClipboardAdvice,
    RecoveryFolderAdvice,  ///< %1 folder
    SettingsDamaged,       ///< %1 file
    SettingsDamagedAdvice, ///< %1 the copy
    SettingsNotReadable,   ///< %1 file
    SettingsNotWritable,   ///< %1 file
    SettingsAdvice,
    WaitingForFile,     ///< %1 file
    WaitingForFileRead, ///< %1 file, %2 and %3 megabytes
    WaitingStop,
    PlugInHangs, ///< %1 file, %2 seconds
    PlugInHangsAdvice,
    PlugInHangsWait,
    PlugInHangsEnd,
    ReadingPicture,
    MatchingColours,
    PictureOpened, ///< %1 name, %2 and %3 numbers
    PastedName,    ///< Of an image from the clipboard.
    PastedColoursDiffer,

    // OrderTexts.h
    JointUndo,
    JointRedo,
    JointGone,         ///< %1 lines of names
    JointLaterSteps,   ///< %1 lines of names with numbers
    JointEarlierSteps, ///< The same
    JointStepCount,    ///< %1 name, %2 number
    JointUndoAll,
    JointRedoAll,
    JointUndoRest,
    JointRedoRest,
    PicturesNameOtherNumber, ///< %1 number of pictures, %2 the first one, %3 palette number
    OrderMoveCaption,
    OrderSwapCaption,
    OrderSortCaption,
    OrderTwinsCaption,
    OrderCompactCaption,
    OrderPalette,
    OrderFirst,
    OrderFirstTip,
    OrderLast,
    OrderLastTip,
    OrderTarget,
    OrderTargetTip,
    OrderKey,
    OrderKeyTip,
    OrderLightness,
    OrderHue,
    OrderUse,
    OrderValue,
    OrderReversed,
    OrderReversedTip,
    OrderKept,
    OrderKeptTip,
    OrderBanks,
    OrderBanksTip,
    OrderImages,
    OrderImagesTip,
    OrderFollows,    ///< %1 name
    OrderUnaffected, ///< %1 name
    OrderBeyond,     ///< %1 name, %2 number
    OrderLeaves,     ///< %1 name, %2 and %3 numbers
    OrderClosed,     ///< %1 name
    OrderNoImages,
    OrderOpen,
    OrderOpenTip,
    OrderCannot,
    OrderUseBanks,
    OrderRefused,
    OrderNothing,
    OrderMoved,  ///< %1 number
    OrderMerged, ///< %1 number

    // ExchangeTexts.h
    ImportPaletteCaption,
    ImportColourCount, ///< %1 number
    ImportAsNew,
    ImportAsNewTip,
    ImportInto,
    ImportIntoTip,
    ImportFirstTip,
    PaletteImported, ///< %1 file, %2 to %4 numbers
    PaletteExported, ///< %1 file, %2 number
    ExportPaletteCaption,
    ExportFormat,
    ExportFormatTip,
    ExportEntries,
    ExportAll, ///< %1 number
    ExportAllTip,
    ExportBank,
    ExportBankTip,
    PaletteFormatGimp,
    PaletteFormatJasc,
    PaletteFormatAct,
    PaletteFormatHex,
    PaletteFormatPng,
    PaletteFilesOfOthers, ///< Of a file dialog's filter.
    AllFiles,             ///< Of a file dialog's filter.
    ReduceCaption,
    ReduceCaptionOf, ///< %1 picture
    ReduceBefore,
    ReduceAfter,
    ReduceBits,
    Reduce4Bit,
    Reduce8Bit,
    ReduceBitsTip,
    ReducePalette,
    ReduceNewPalette,
    ReduceCurrentPalette,
    ReduceBank,
    ReducePaletteTip,
    ReduceBankNumber,
    ReduceBankTip,
    ReduceColours,
    ReduceColoursTip,
    ReduceType,
    ReduceRgba,
    ReduceIa,
    ReduceTypeTip,
    ReduceKeep,
    ReduceKeepTip,
    ReduceKeepNone,
    ReduceKeepWrong,
    ReduceThreshold,
    ReduceThresholdTip,
    ReduceDither,
    ReduceDitherNone,
    ReduceDitherOrdered,
    ReduceDitherDiffusion,
    ReduceDitherTip,
    ReduceActualSize,
    ReduceActualSizeTip,
    ReduceNote, ///< %1 and %2 numbers
    ReduceProgress,

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

    // ImageTexts.h
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
    ResizeCaption,
    ScaleCaption,
    ShiftCaption,
    DepthCaption,
    ImageWorkWidthTip,
    ImageWorkHeightTip,
    ImageWorkTakes,
    ImageWorkTakesTip,
    ImageWorkTooLarge,
    ResizeAnchor,
    AnchorTopLeft,
    AnchorTop,
    AnchorTopRight,
    AnchorLeft,
    AnchorMiddle,
    AnchorRight,
    AnchorBottomLeft,
    AnchorBottom,
    AnchorBottomRight,
    ResizeFill,
    ResizeFillTip, ///< %1 highest
    ScaleMultiple,
    ScaleMultipleTip,
    ScaleAnySize,
    ScaleLock,
    ScaleLockTip,
    ShiftRight,
    ShiftRightTip,
    ShiftDown,
    ShiftDownTip,
    DepthBank,
    DepthBankTip,
    DepthOutside, ///< %1 number, %2 of how many
    DepthNearest,
    DepthNearestTip,
    DepthRefuse,
    DepthRefuseTip,
    PrintingFailed,
    PrintingProgress, ///< %1 page, %2 pages

    BarProject,
    BarBrush,
    BrushSize,
    BrushSizeTip,

    // FindingTexts.h
    FindingsCaption,
    FindingsHelp,
    FindingsImage,
    FindingsRule,
    FindingsPlace,
    FindingsReason,
    FindingsNoRule,
    FindingsNone,
    FindingsRules,
    FindingsRulesTip,
    FindingLargestSize, ///< The rules' names in the list.
    FindingPowersOfTwo,
    FindingTexelBytes,
    FindingBytesWithColours,
    FindingBlockColours,
    FindingFirstEntryTransparent,
    FindingIndexesInPalette,
    FindingAlphaZeroOrFull,
    FindingWholeImage,
    FindingEntry,             ///< %1 entry
    FindingTexel,             ///< %1, %2 texel
    FindingTexels,            ///< %1, %2 the first, %3, %4 the last
    FindingTooLarge,          ///< %1, %2 size, %3, %4 largest
    FindingNotPowers,         ///< %1, %2 size
    FindingTooManyBytes,      ///< %1 bytes, %2 most
    FindingTooManyColours,    ///< %1 colours, %2 most
    FindingNotTransparent,    ///< %1 alpha
    FindingMissingEntry,      ///< %1 index, %2 texels, %3 entries
    FindingMissingEntryOfOne, ///< %1 index, %2 entries; one texel alone
    FindingHalfTransparent,   ///< %1 alpha
    FindingMore,              ///< %1 how many are not listed
    ProjectFolderMissing,     ///< What a check of a project looks for.
    ProjectFolderOutside,
    ProjectFileMissing,
    ProjectFileMoved,
    ProjectFileUnreadable,
    ProjectCase,
    ProjectPaletteNumber,
    ProjectDepth,
    ProjectSamePicture,
    ProjectEqualFile,
    ProjectUnused,
    ProjectAtPicture, ///< %1 picture
    ProjectNoFolder,  ///< Why it is listed.
    ProjectLiesOutside,
    ProjectFileLiesOutside, ///< %1 file
    ProjectNoImage,
    ProjectNoPalette,
    ProjectNotThere,          ///< %1 file
    ProjectFoundAt,           ///< %1 file, %2 where it may be
    ProjectUnreadableBecause, ///< %1 file, %2 why
    ProjectHoldsNoImage,      ///< %1 file
    ProjectHoldsNoPalette,    ///< %1 file
    ProjectSpelledOtherwise,  ///< %1 name on the disk
    ProjectNumberBeyond,      ///< %1 number, %2 how many there are
    ProjectTooFewEntries,     ///< %1 highest index, %2 entries
    ProjectSameAs,            ///< %1 picture
    ProjectEqualTo,           ///< %1 file, %2 its like
    ProjectTwinOf,            ///< %1 name, %2 its like
    ProjectNotNamed,
    ProjectRuleAndMore, ///< %1 reason, %2 how many more places
    ProjectChecking,    ///< Of the dock. Qt puts the per cent in.
    ProjectCheckButton,
    ProjectCheckButtonTip,
    ProjectCheckStop,
    ProjectCheckStopTip,
    ProjectRelink,
    ProjectRelinkTip,
    ProjectRemove,
    ProjectRemoveTip,
    ProjectAdd,
    ProjectAddTip,
    ProjectFindingsNone,
    ProjectFindingsCount, ///< %1 findings
    RelinkCaption,
    RelinkQuestion, ///< %1 files
    RelinkColumnOld,
    RelinkColumnNew,
    RelinkOk,
    RelinkCannotHold, ///< %1 file
    AddFolderCaption,
    AddFolderQuestion, ///< %1 pairs, %2 folder
    AddFolderNone,     ///< %1 folder
    AddFolderLeft,     ///< %1 known, %2 without palette, %3 names that cannot be held
    AddFolderColumnPicture,
    AddFolderColumnImage,
    AddFolderColumnPalette,
    AddFolderOk,
    CheckListAll,
    CheckListAllTip,
    CheckListNone,
    CheckListNoneTip,
    ProjectRepeatChanges, ///< In the place of the command, once it was used.

    // BarTexts.h
    BarBanks,
    BanksTab,
    PalettesTab,
    BankName,       ///< %1 number
    BankTip,        ///< %1 number, %2 and %3 first and last entry
    BankPaletteTip, ///< %1 title
    BanksNoImage,
    BanksNoPalette,
    BanksEightBits,
    BanksSmallPalette,
    UsageNone,
    UsageOneTexel,
    UsageTexels,    ///< %1 number
    UsageTwin,      ///< %1 entry; follows another text
    UsageClear,     ///< Follows another text.
    ShowTexelsNone, ///< %1 entry
    // Read out, and shown in the status line, where keys walk over texels and entries.
    ColourToldRgba, ///< %1 red, %2 green, %3 blue, %4 alpha
    ColourToldIa,   ///< %1 intensity, %2 alpha
    ColourToldNone,
    EntryTold,      ///< %1 entry, %2 its colour
    TexelTold,      ///< %1, %2 place, %3 value
    TexelToldEntry, ///< %1, %2 place, %3 entry, %4 its colour
    MoreOfBar,      ///< Button of a tool bar that is too narrow; %1 title of the bar
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
    HelpBanksBar,
    HelpProjectBar,
    HelpPaletteBar,
    HelpMessagePane,
    HelpPositionPane,
    HelpSizePane,
    HelpDocumentArea,
    HelpImageView,

    UndoListCaption,
    HelpUndoList,
    UndoListImage, ///< Also the switch between the two lists
    UndoListPalette,
    UndoListOf, ///< %1 Image or Palette, %2 name of the document
    UndoListSwitch,
    UndoListNoImage,
    UndoListNoPalette,
    UndoListRow, ///< %1 row, %2 rows, %3 step
    UndoListRowCurrent,
    UndoListRowUndone,
    UndoListFloats,

    // StepTexts.h
    StepNew, ///< Names of steps in the undo list; the first three are the state before the first one
    StepOpened,
    StepEarlier,
    StepUnnamed,
    StepPixel,
    StepPen,
    StepLine,
    StepBox,
    StepBoxFill,
    StepCircle,
    StepCircleFill,
    StepPaint,
    StepReplacer,
    StepLift,
    StepPlace,
    StepCut,
    StepPaste,
    StepPasteMatching,
    StepPlugInPiece,
    StepFlipX,
    StepFlipY,
    StepTurnLeft,
    StepTurnRight,
    StepTurnHalf,
    StepResize,
    StepScale,
    StepCrop,
    StepShift,
    StepShiftHalf,
    StepTo4Bits,
    StepTo8Bits,
    StepReload,
    StepPlugIn,
    StepApplyEntry,
    StepEditEntry,
    StepPasteEntries,
    StepRamp,
    StepAdjust,
    StepInvert,
    StepReverse,
    StepFillEntries,
    StepImportPalette,
    StepMoveEntries,
    StepSwapEntries,
    StepSortEntries,
    StepMergeTwins,
    StepCompact,

    StartPageName,
    HelpStartPage,
    StartRecent,
    StartSamples,
    StartFirstSteps,
    StartFirstStepsTip,
    StartAtEmpty,
    StartAtEmptyTip,
    NewTextureCaption,
    NewTexturePalette,
    NewTexturePaletteTip,
    NewTextureRgba,
    NewTextureIa,
    ImageHasNoPalette,
    FullScreenHint,

    // The search for commands, and why one cannot be used now.
    CommandSearchTitle,
    CommandSearchField,
    CommandSearchHint,
    CommandSearchList,
    ClearField,
    CommandSearchNone,
    HelpCommandSearch,
    CommandPlace,    ///< Menus around a command: %1 the outer, %2 the inner
    CommandDisabled, ///< %1 why

    // ReasonTexts.h
    WhyNoImage,
    WhyImageBehind,
    WhyNoDocument,
    WhyNoTree,
    WhyNoProject,
    WhyNoPicture,
    WhyNoPalette,
    WhyNoEntry,
    WhyNothingSelected,
    WhyToolSelectsNothing,
    WhyNothingToUndo,
    WhyNothingToRedo,
    WhyNoBitmap,
    WhyNothingCopied,
    WhyZoomLargest,
    WhyZoomSmallest,
    WhyZoomsListed,
    WhyNotEightBits,
    WhyNotFourBits,
    WhyNoTexels,
    WhyAttachedAlready,
    WhyHasPalette,
    WhyNeverSaved,
    WhyUnchanged,
    WhyBrushLargest,
    WhyBrushSmallest,
    WhyBlockSelected,
    WhyFewEntries,
    WhyEntryTextWrong,
    WhyPaletteSize,
    WhyNoImageShows,
    WhyNoMinimized,
    WhyNothingRepaired,
    WhyNothingRecent,
    WhyNoNode,
    WhyNodeCannot,

    ObjectServicesFailed,
    ResumeFailed,
    HelpFailed,
    NeededControlMissing, ///< %1 file; the program ends.
    ControlMissing,       ///< %1 file

    // PaletteTexts.h
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
    RangeSelected, ///< %1 and %2 numbers
    BlockSelected, ///< %1 number
    AdjustCaption,
    AdjustEntries, ///< %1 and %2 numbers
    AdjustHue,
    AdjustHueTip,
    AdjustSaturation,
    AdjustSaturationTip,
    AdjustBrightness,
    AdjustBrightnessTip,
    AdjustChannel,
    AdjustChannelTip,
    AdjustIntensity,
    AdjustAlpha,
    AdjustStepsTip,
    AdjustReset,
    AdjustResetTip,

    // SheetTexts.h
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
    OptionsRulesTab,

    // ShortcutTexts.h
    ShortcutsTab,
    ShortcutsFind,
    ShortcutsFindTip,
    ShortcutsPreset,
    ShortcutsPresetTip,
    ShortcutsPresetOwn,
    ShortcutsPresetCommon,
    ShortcutsPresetOther,
    ShortcutsList,
    ShortcutsColumnCommand,
    ShortcutsColumnKeys,
    ShortcutsColumnChanged,
    ShortcutsOtherGroup,
    ShortcutsChanged,
    ShortcutsNotChanged,
    ShortcutsNoKeys,
    ShortcutsNewKeys,
    ShortcutsNewKeysTip,
    ShortcutsPress,
    ShortcutsSet,
    ShortcutsSetTip,
    ShortcutsAdd,
    ShortcutsAddTip,
    ShortcutsRemove,
    ShortcutsRemoveTip,
    ShortcutsReset,
    ShortcutsResetTip,
    ShortcutsResetAll,
    ShortcutsResetAllTip,
    ShortcutsImport,
    ShortcutsImportTip,
    ShortcutsExport,
    ShortcutsExportTip,
    ShortcutsFilter,
    ShortcutsTakenFrom,   ///< %1 keys, %2 command
    ShortcutsHasThem,     ///< %1 keys, %2 command
    ShortcutsFree,        ///< %1 keys
    ShortcutsUnknown,     ///< %1 how many
    KeysMoveAbout,        ///< %1 keys
    KeysOpenMenus,        ///< %1 keys
    KeysZoomImages,       ///< %1 keys
    ShortcutFileNotTaken, ///< %1 file, %2 why
    ShortcutFileNone,
    ShortcutFileNewer,
    ShortcutFileLine,     ///< %1 line
    ShortcutFileKeys,     ///< %1 line, %2 keys
    ShortcutFileReserved, ///< %1 line, %2 keys
    ShortcutFileTwice,    ///< %1 line, %2 keys or nothing

    // RuleTexts.h
    RulesCaption,
    RulesForPictures,
    RulesForOthers,
    RuleLargestSize,
    RuleLargestSizeHint,
    RulePowersOfTwo,
    RulePowersOfTwoHint,
    RuleTexelBytes,
    RuleTexelBytesHint,
    RuleBytesWithColours,
    RuleBytesWithColoursHint,
    RuleBlockColours,
    RuleBlockColoursHint,
    RuleFirstEntryTransparent,
    RuleFirstEntryTransparentHint,
    RuleIndexesInPalette,
    RuleIndexesInPaletteHint,
    RuleAlphaZeroOrFull,
    RuleAlphaZeroOrFullHint,
    RuleLargestWidthTip,
    RuleLargestHeightTip,
    RuleBytesTip,
    RuleColoursTip,
    RuleBlockSideTip,
    RuleTexelsUnit,
    RuleBytesUnit,
    RuleColoursUnit,
    RuleBlockUnit,

    // ProjectTexts.h
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
