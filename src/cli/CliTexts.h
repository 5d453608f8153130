#pragma once

#include <initializer_list>
#include <string>

namespace dyeworks {

/// Texts of the command line alone. Their English wording stands in CliTexts.cpp.
enum class CliText : int {
    ProgramSummary,
    ProgramFooter,
    PaletteSummary,
    HelpUsage,
    HelpOptionsMark,
    HelpCommandMark,
    HelpArguments,
    HelpOptions,
    HelpCommands,
    HelpRequired,
    HelpHelp,
    HelpVersion,
    HelpQuiet,
    WrongValue,      ///< %1 option, %2 value
    NumberOutside,   ///< %1 option, %2 value, %3 and %4 ends
    NoSuchChoice,    ///< %1 option, %2 value, %3 list
    ExtraArgument,   ///< %1 arguments
    MissingArgument, ///< %1 name
    MissingCommand,
    NoSuchCommand,      ///< %1 name
    OptionWithoutValue, ///< %1 option
    TryHelp,            ///< %1 program and command
    StandardOutput,
    OutOfMemory,
    FileCutOff,
    NoImage,
    NoPalette,
    ImageTooLarge,
    UnknownKind,
    InfoSummary,
    InfoFiles,
    InfoJson,
    InfoBetween,
    InfoSize, ///< %1 width, %2 height
    InfoBits,
    InfoUsed,
    InfoEntries,
    InfoBank,
    InfoPictures,
    InfoBytes,
    TypeOutput,
    TypeFile,
    TypeFormat,
    TypeNumber,
    TypeSize,
    TypePart,
    TypeWay,
    TypeName,
    NoPicture,
    BringsNoPalette,
    PaletteIsNoPicture,
    TooManyColours, ///< %1 number
    CropOutside,    ///< %1 width, %2 height
    DepthNeedsPalette,
    NoSuchBank, ///< %1 number
    FormatMissing,
    TwoFilesIntoOne,
    WrittenTwice, ///< %1 file
    NotTogether,  ///< %1, %2 options
    ManyIntoOne,
    ColoursRounded, ///< %1 number
    ConvertSummary,
    ConvertInputs,
    ConvertOutput,
    ConvertFormat, ///< %1 list
    ConvertPalette,
    ConvertBank,
    ConvertPaletteOut,
    ConvertCrop,
    ConvertResize,
    ConvertTurn,  ///< %1 list
    ConvertDepth, ///< %1 list
    ConvertColours,
    ConvertType,   ///< %1 list
    ConvertDither, ///< %1 list
    ConvertName,
    ConvertAlign,
    ConvertWholePalette,
    ConvertFooter,
    ConvertDone, ///< %1, %2 numbers
    TypeFolder,
    BuildSummary,
    BuildProject,
    BuildOutput,
    BuildFormat, ///< %1 list
    BuildJobs,
    BuildDryRun,
    BuildAll,
    BuildDepfile,
    BuildFooter,
    BuildSameName, ///< %1 picture
    BuildNameWithLine,
    BuildDone, ///< %1 to %4 numbers
    TypeRange,
    PaletteSortSummary,
    PaletteMergeSummary,
    PaletteCompactSummary,
    PaletteMoveSummary,
    PaletteSwapSummary,
    PaletteRampSummary,
    PaletteAdjustSummary,
    PaletteFile,
    PaletteImages,
    PaletteProject,
    PaletteRange,
    PaletteOutput,
    PaletteTo,
    PaletteBy, ///< %1 list
    PaletteReverse,
    PaletteInBanks,
    PaletteKeep,
    PaletteHue,
    PaletteSaturation,
    PaletteBrightness,
    PaletteChannel, ///< %1 list
    PaletteSteps,
    PaletteAlpha,
    PaletteNoSuchEntry, ///< %1 number
    PaletteNoPlace,
    PaletteLeavesBank, ///< %1 number
    PaletteTwoBanks,
    PaletteNoChannel,
    PaletteDone, ///< %1 number
    RenderSummary,
    RenderInput,
    RenderOutput,
    RenderPalette,
    RenderZoom,
    RenderGrid,
    RenderAlpha,
    RenderCheckerboard,
    RenderColumns,
    RenderSide,
    TypeDrive,
    HelpDrive,
    CheckSummary,
    CheckFiles,
    CheckLeast, ///< %1 list
    CheckRules,
    CheckPalette,
    CheckFooter,
    CheckTexelsMissing, ///< %1 number
    CheckWholeFile,
    CheckDone, ///< %1 number
    ThumbnailSummary,
    ThumbnailInput,
    ThumbnailOutput,
    ThumbnailSize,
    ThumbnailFooter,
    ThumbnailNotHere,
    ThumbnailNoPictures,
    ThumbnailTooLong,
};

/// The text in the user's language.
[[nodiscard]] std::string say(CliText id);
/// The same with each %1, %2 … replaced by the argument at that place.
[[nodiscard]] std::string say(CliText id, std::initializer_list<std::string> arguments);

} // namespace dyeworks
