#pragma once

#include "platform/TextRow.h"

namespace dyeworks {

/// Texts of the bars beside the images.
inline constexpr TextRow kBarTexts[] = {
    TextRow{StringId::BarBanks, QT_TRANSLATE_NOOP("Text", "Banks")},
    TextRow{StringId::BanksTab, QT_TRANSLATE_NOOP("Text", "&Banks")},
    TextRow{StringId::PalettesTab, QT_TRANSLATE_NOOP("Text", "Pa&lettes")},
    TextRow{StringId::BankName, QT_TRANSLATE_NOOP("Text", "Bank %1")},
    TextRow{StringId::BankTip, QT_TRANSLATE_NOOP("Text", "Bank %1, entries %2 to %3; click to choose it")},
    TextRow{StringId::BankPaletteTip, QT_TRANSLATE_NOOP("Text", "%1; click to attach the image to it")},
    TextRow{StringId::BanksNoImage, QT_TRANSLATE_NOOP("Text", "No image is active.")},
    TextRow{StringId::BanksNoPalette, QT_TRANSLATE_NOOP("Text", "The image is attached to no palette.")},
    TextRow{StringId::BanksEightBits,
            QT_TRANSLATE_NOOP("Text",
                              "An image of 8 bits shows the whole palette and has no banks. The other "
                              "page shows it through the open palettes.")},
    TextRow{StringId::BanksSmallPalette,
            QT_TRANSLATE_NOOP("Text",
                              "A palette of 16 colours is a single bank. The other page shows the image "
                              "through the open palettes.")},
    TextRow{StringId::UsageNone, QT_TRANSLATE_NOOP("Text", "not used")},
    TextRow{StringId::UsageOneTexel, QT_TRANSLATE_NOOP("Text", "1 texel")},
    TextRow{StringId::UsageTexels, QT_TRANSLATE_NOOP("Text", "%1 texels")},
    TextRow{StringId::UsageTwin, QT_TRANSLATE_NOOP("Text", ", same as entry %1")},
    TextRow{StringId::UsageClear, QT_TRANSLATE_NOOP("Text", ", fully transparent")},
    TextRow{StringId::ShowTexelsNone, QT_TRANSLATE_NOOP("Text", "No texel shows entry %1.")},
    TextRow{StringId::ColourToldRgba, QT_TRANSLATE_NOOP("Text", "red %1, green %2, blue %3, alpha %4")},
    TextRow{StringId::ColourToldIa, QT_TRANSLATE_NOOP("Text", "intensity %1, alpha %2")},
    TextRow{StringId::ColourToldNone, QT_TRANSLATE_NOOP("Text", "not in the palette")},
    TextRow{StringId::EntryTold, QT_TRANSLATE_NOOP("Text", "Entry %1: %2")},
    TextRow{StringId::TexelTold, QT_TRANSLATE_NOOP("Text", "%1, %2: value %3")},
    TextRow{StringId::TexelToldEntry, QT_TRANSLATE_NOOP("Text", "%1, %2: entry %3, %4")},
    TextRow{StringId::MoreOfBar, QT_TRANSLATE_NOOP("Text", "More of the bar %1")},
    TextRow{StringId::ProjectBarAdd, QT_TRANSLATE_NOOP("Text", "&Add")},
    TextRow{StringId::ProjectBarChange, QT_TRANSLATE_NOOP("Text", "&Change")},
    TextRow{StringId::ProjectBarRemove, QT_TRANSLATE_NOOP("Text", "&Remove")},
    TextRow{StringId::ProjectPictures, QT_TRANSLATE_NOOP("Text", "Pictures of the project")},
    TextRow{StringId::ProjectNotOpenYet, QT_TRANSLATE_NOOP("Text", "Project is not open yet.")},
    TextRow{StringId::NoPicture, QT_TRANSLATE_NOOP("Text", "(no picture)")},
    TextRow{StringId::OpenChosenPicture, QT_TRANSLATE_NOOP("Text", "Open the chosen picture")},
    TextRow{StringId::HelpToolBar,
            QT_TRANSLATE_NOOP("Text",
                              "Buttons for documents, undo and redo, the clipboard, printing and help. "
                              "Drag the handle to move the bar to another side of the window.")},
    TextRow{StringId::HelpViewBar,
            QT_TRANSLATE_NOOP("Text",
                              "Buttons for the palette bar, the grid and the previews. Drag the handle "
                              "to move the bar to another side of the window.")},
    TextRow{StringId::HelpDrawBar,
            QT_TRANSLATE_NOOP(
                "Text", "The drawing tools. The chosen one draws with the colour that is selected in the "
                        "palette bar. Drag the handle to move the bar to another side of the window.")},
    TextRow{StringId::HelpBrushBar,
            QT_TRANSLATE_NOOP(
                "Text", "How the drawing tools draw: size and shape of the brush, mirrored on both sides of "
                        "the middle, around the edges. Drag the handle to move the bar to another side of "
                        "the window.")},
    TextRow{StringId::HelpBanksBar,
            QT_TRANSLATE_NOOP("Text",
                              "The active image through every bank of its palette, or through every open "
                              "palette. The framed one is the image's own; click another to choose it.")},
    TextRow{StringId::HelpProjectBar,
            QT_TRANSLATE_NOOP("Text",
                              "The pictures of the open project. Choose one in the list; the button on "
                              "the right opens it, the others change the list.")},
    TextRow{
        StringId::HelpPaletteBar,
        QT_TRANSLATE_NOOP(
            "Text",
            "The open palettes and the colours of the current one. Click the colour to draw with; change it "
            "with the bars, the numbers or the entry in hexadecimal, then press Apply.")},
    TextRow{StringId::HelpMessagePane, QT_TRANSLATE_NOOP("Text", "What the command under the pointer does.")},
    TextRow{StringId::HelpPositionPane,
            QT_TRANSLATE_NOOP(
                "Text", "The texel under the pointer, counted from the top left corner, and the zoom.")},
    TextRow{StringId::HelpSizePane,
            QT_TRANSLATE_NOOP("Text", "Width, height and depth of the active image.")},
    TextRow{StringId::HelpDocumentArea,
            QT_TRANSLATE_NOOP("Text",
                              "The windows of the open documents. Files that are dropped here are opened.")},
    TextRow{StringId::HelpImageView,
            QT_TRANSLATE_NOOP("Text",
                              "The image. The chosen tool draws where you press and drag; the wheel with "
                              "Ctrl changes the zoom.")},

    TextRow{StringId::UndoListCaption, QT_TRANSLATE_NOOP("Text", "Undo List")},
    TextRow{
        StringId::HelpUndoList,
        QT_TRANSLATE_NOOP(
            "Text",
            "The steps of the active image or of the current palette, the oldest first. The mark tells where "
            "the document stands now; steps below it have been undone. Click a step, or go to it with the "
            "arrow keys and press Enter, and the document becomes what it was after that step.")},
    TextRow{StringId::UndoListImage, QT_TRANSLATE_NOOP("Text", "Image")},
    TextRow{StringId::UndoListPalette, QT_TRANSLATE_NOOP("Text", "Palette")},
    TextRow{StringId::UndoListOf, QT_TRANSLATE_NOOP("Text", "%1: %2")},
    TextRow{StringId::UndoListSwitch, QT_TRANSLATE_NOOP("Text", "Whose steps")},
    TextRow{StringId::UndoListNoImage, QT_TRANSLATE_NOOP("Text", "There is no image.")},
    TextRow{StringId::UndoListNoPalette, QT_TRANSLATE_NOOP("Text", "There is no palette.")},
    TextRow{StringId::UndoListRow, QT_TRANSLATE_NOOP("Text", "%1 of %2: %3")},
    TextRow{StringId::UndoListRowCurrent, QT_TRANSLATE_NOOP("Text", "%1 of %2: %3, current")},
    TextRow{StringId::UndoListRowUndone, QT_TRANSLATE_NOOP("Text", "%1 of %2: %3, undone")},
    TextRow{StringId::UndoListFloats,
            QT_TRANSLATE_NOOP("Text",
                              "A piece floats above the image. Place it with Enter, or drop it with Esc, "
                              "before you go to another step.")},
};

} // namespace dyeworks
