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

    ChosenFileMissing,   ///< %1 file
    ReplaceFileQuestion, ///< %1 file

    BarTool,
    BarView,
    BarDraw,
    BarPalette,
    BarsMenu, ///< Submenu of what can be shown and hidden.
    NoPaletteOpen,
    OpenPalettes,
    PaletteColours,
    CurrentEntry,
    PaletteBank,
    PaletteBankTip,
    ImageViewName,
    AboutCaption,
    AboutVersion, ///< Before the number.
    AboutDescription,

    Count
};

} // namespace dyeworks
