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
    Row{StringId::PaletteColours, QT_TRANSLATE_NOOP("Text", "Palette colours")},
    Row{StringId::CurrentEntry, QT_TRANSLATE_NOOP("Text", "Entry to draw with: number, value and channels")},
    Row{StringId::PaletteBank, QT_TRANSLATE_NOOP("Text", "&Bank")},
    Row{StringId::PaletteBankTip,
        QT_TRANSLATE_NOOP("Text", "The 16 entries of the palette that the image is shown through")},
    Row{StringId::ImageViewName, QT_TRANSLATE_NOOP("Text", "Image")},
    Row{StringId::AboutCaption, QT_TRANSLATE_NOOP("Text", "Version (Orrery Dyeworks)")},
    Row{StringId::AboutVersion, QT_TRANSLATE_NOOP("Text", "Orrery Dyeworks Version")},
    Row{StringId::AboutDescription, QT_TRANSLATE_NOOP("Text", "Editor for colour-indexed console textures")},

    Row{StringId::IntegerOutOfRange, QT_TRANSLATE_NOOP("Text", "Enter an integer between %1 and %2.")},
    Row{StringId::NewSheetCaption, QT_TRANSLATE_NOOP("Text", "New")},
    Row{StringId::NewImageTab, QT_TRANSLATE_NOOP("Text", "Texture")},
    Row{StringId::NewImageWidth, QT_TRANSLATE_NOOP("Text", "&Width:")},
    Row{StringId::NewImageHeight, QT_TRANSLATE_NOOP("Text", "&Height:")},
    Row{StringId::NewImageBitMode, QT_TRANSLATE_NOOP("Text", "Bit mode:")},
    Row{StringId::NewImage4Bit, QT_TRANSLATE_NOOP("Text", "&4bit (16colors)")},
    Row{StringId::NewImage8Bit, QT_TRANSLATE_NOOP("Text", "&8bit (256colors)")},
    Row{StringId::NewImageSize, QT_TRANSLATE_NOOP("Text", "Size:")},
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
