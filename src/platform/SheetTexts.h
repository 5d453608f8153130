#pragma once

#include "platform/TextRow.h"

namespace dyeworks {

/// Texts of the sheets for new projects and palettes, and of the options.
inline constexpr TextRow kSheetTexts[] = {
    TextRow{StringId::NewProjectTab, QT_TRANSLATE_NOOP("Text", "Project")},
    TextRow{StringId::NewProjectName, QT_TRANSLATE_NOOP("Text", "TPF &Name")},
    TextRow{StringId::NewProjectDirectory, QT_TRANSLATE_NOOP("Text", "TPF &Dir")},
    TextRow{StringId::NewProjectImages, QT_TRANSLATE_NOOP("Text", "&TMF Dir")},
    TextRow{StringId::NewProjectPalettes, QT_TRANSLATE_NOOP("Text", "T&LF Dir")},
    TextRow{StringId::NewProjectNameTip, QT_TRANSLATE_NOOP("Text", "Name of the project, and of its file")},
    TextRow{StringId::NewProjectDirectoryTip,
            QT_TRANSLATE_NOOP("Text", "Folder that the project's file is in")},
    TextRow{StringId::NewProjectImagesTip,
            QT_TRANSLATE_NOOP("Text", "Folder of the images; the project's own when nothing is entered")},
    TextRow{StringId::NewProjectPalettesTip,
            QT_TRANSLATE_NOOP("Text", "Folder of the palettes; the project's own when nothing is entered")},
    TextRow{StringId::BrowseProjectTip, QT_TRANSLATE_NOOP("Text", "Choose the folder of the project")},
    TextRow{StringId::BrowseImagesTip, QT_TRANSLATE_NOOP("Text", "Choose the folder of the images")},
    TextRow{StringId::BrowsePalettesTip, QT_TRANSLATE_NOOP("Text", "Choose the folder of the palettes")},
    TextRow{StringId::BrowseMissingTip,
            QT_TRANSLATE_NOOP("Text", "Folders can only be typed, because FolderPick.ocx is not found")},
    TextRow{StringId::ProjectSheetCaption, QT_TRANSLATE_NOOP("Text", "Project Property")},
    TextRow{StringId::NewPaletteTab, QT_TRANSLATE_NOOP("Text", "Palette")},
    TextRow{StringId::NewPalette8Bit, QT_TRANSLATE_NOOP("Text", "&8bit (256Colors)")},
    TextRow{StringId::NewPalette4BitTip, QT_TRANSLATE_NOOP("Text", "A palette of 16 entries")},
    TextRow{StringId::NewPalette8BitTip, QT_TRANSLATE_NOOP("Text", "A palette of 256 entries")},
    TextRow{StringId::NewPaletteType, QT_TRANSLATE_NOOP("Text", "Colour type")},
    TextRow{StringId::NewPaletteRgba, QT_TRANSLATE_NOOP("Text", "16bit &RGBA")},
    TextRow{StringId::NewPaletteIa, QT_TRANSLATE_NOOP("Text", "16bit &IA")},
    TextRow{StringId::NewPaletteRgbaTip,
            QT_TRANSLATE_NOOP("Text", "Red, green and blue of 5 bits each, alpha of 1 bit")},
    TextRow{StringId::NewPaletteIaTip, QT_TRANSLATE_NOOP("Text", "Intensity and alpha of 8 bits each")},
    TextRow{StringId::NewPaletteAlpha, QT_TRANSLATE_NOOP("Text", "Default &Alpha")},
    TextRow{StringId::NewPaletteAlphaTip,
            QT_TRANSLATE_NOOP("Text", "Alpha that all entries begin with, 0 to %1")},
    TextRow{StringId::NewPaletteSizeTip, QT_TRANSLATE_NOOP("Text", "Size of the palette's file")},
    TextRow{StringId::OptionsSheetCaption, QT_TRANSLATE_NOOP("Text", "Options Setting Dialog")},
    TextRow{StringId::OptionsGeneralTab, QT_TRANSLATE_NOOP("Text", "General")},
    TextRow{StringId::OptionsAskUseProject,
            QT_TRANSLATE_NOOP("Text", "&When TMF was created, ask about using the project.")},
    TextRow{StringId::OptionsAskUseProjectTip,
            QT_TRANSLATE_NOOP(
                "Text", "Whether a new image brings the question about using a project, while none is open")},
    TextRow{StringId::OptionsRulesTab, QT_TRANSLATE_NOOP("Text", "Rules")},
};

} // namespace dyeworks
