#pragma once

#include "platform/TextRow.h"

namespace dyeworks {

/// Texts why a command cannot be chosen, and of a program that cannot start.
inline constexpr TextRow kReasonTexts[] = {
    TextRow{StringId::WhyNoImage, QT_TRANSLATE_NOOP("Text", "no image is open")},
    TextRow{StringId::WhyImageBehind, QT_TRANSLATE_NOOP("Text", "the active window is not an image")},
    TextRow{StringId::WhyNoDocument, QT_TRANSLATE_NOOP("Text", "no document is open")},
    TextRow{StringId::WhyNoTree,
            QT_TRANSLATE_NOOP("Text", "the active window is not the tree of the project")},
    TextRow{StringId::WhyNoProject, QT_TRANSLATE_NOOP("Text", "no project is open")},
    TextRow{StringId::WhyNoPicture, QT_TRANSLATE_NOOP("Text", "no picture of the project is chosen")},
    TextRow{StringId::WhyNoPalette, QT_TRANSLATE_NOOP("Text", "no palette is open")},
    TextRow{StringId::WhyNoEntry, QT_TRANSLATE_NOOP("Text", "no palette entry is selected")},
    TextRow{StringId::WhyNothingSelected, QT_TRANSLATE_NOOP("Text", "nothing is selected")},
    TextRow{StringId::WhyToolSelectsNothing,
            QT_TRANSLATE_NOOP("Text", "the tool in use selects nothing; choose Select first")},
    TextRow{StringId::WhyNothingToUndo, QT_TRANSLATE_NOOP("Text", "there is nothing to undo")},
    TextRow{StringId::WhyNothingToRedo, QT_TRANSLATE_NOOP("Text", "there is nothing to redo")},
    TextRow{StringId::WhyNoBitmap, QT_TRANSLATE_NOOP("Text", "there is no picture on the clipboard")},
    TextRow{StringId::WhyNothingCopied, QT_TRANSLATE_NOOP("Text", "no palette entries have been copied")},
    TextRow{StringId::WhyZoomLargest, QT_TRANSLATE_NOOP("Text", "the image is shown at its largest already")},
    TextRow{StringId::WhyZoomSmallest,
            QT_TRANSLATE_NOOP("Text", "the image is shown at its smallest already")},
    TextRow{StringId::WhyZoomsListed, QT_TRANSLATE_NOOP("Text", "there are no zooms but those in the menu")},
    TextRow{StringId::WhyNotEightBits, QT_TRANSLATE_NOOP("Text", "the image does not have 8 bits")},
    TextRow{StringId::WhyNotFourBits, QT_TRANSLATE_NOOP("Text", "the image does not have 4 bits")},
    TextRow{StringId::WhyNoTexels, QT_TRANSLATE_NOOP("Text", "the image has no texels")},
    TextRow{StringId::WhyAttachedAlready,
            QT_TRANSLATE_NOOP("Text", "the image is attached to the current palette already")},
    TextRow{StringId::WhyHasPalette, QT_TRANSLATE_NOOP("Text", "the image has a palette already")},
    TextRow{StringId::WhyNeverSaved, QT_TRANSLATE_NOOP("Text", "it has never been saved")},
    TextRow{StringId::WhyUnchanged, QT_TRANSLATE_NOOP("Text", "there are no unsaved changes")},
    TextRow{StringId::WhyBrushLargest, QT_TRANSLATE_NOOP("Text", "the brush has its largest size already")},
    TextRow{StringId::WhyBrushSmallest, QT_TRANSLATE_NOOP("Text", "the brush has its smallest size already")},
    TextRow{StringId::WhyBlockSelected,
            QT_TRANSLATE_NOOP("Text", "a block of cells is selected, not one run of entries")},
    TextRow{StringId::WhyFewEntries, QT_TRANSLATE_NOOP("Text", "fewer than three entries are selected")},
    TextRow{StringId::WhyEntryTextWrong,
            QT_TRANSLATE_NOOP("Text", "the text of the entry is not understood")},
    TextRow{StringId::WhyPaletteSize,
            QT_TRANSLATE_NOOP("Text", "the palette has no entries, or more than 256")},
    TextRow{StringId::WhyNoImageShows, QT_TRANSLATE_NOOP("Text", "no open image shows this palette")},
    TextRow{StringId::WhyNoMinimized, QT_TRANSLATE_NOOP("Text", "no window is minimized")},
    TextRow{StringId::WhyNothingRepaired,
            QT_TRANSLATE_NOOP("Text", "nothing was relinked, removed or added since a check")},
    TextRow{StringId::WhyNothingRecent, QT_TRANSLATE_NOOP("Text", "no such file has been opened yet")},
    TextRow{StringId::WhyNoNode, QT_TRANSLATE_NOOP("Text", "no node is selected")},
    TextRow{StringId::WhyNodeCannot, QT_TRANSLATE_NOOP("Text", "the selected node does not offer this")},

    TextRow{StringId::ObjectServicesFailed,
            QT_TRANSLATE_NOOP("Text", "OLE initialization failed.  Make sure that the OLE libraries are the "
                                      "correct version.")},
    TextRow{StringId::ResumeFailed, QT_TRANSLATE_NOOP("Text", "Some documents failed to resume.")},
    TextRow{StringId::HelpFailed,
            QT_TRANSLATE_NOOP("Text", "can not open help. Please, check exist help file, "
                                      "and check browser installed.")},
    TextRow{StringId::NeededControlMissing, QT_TRANSLATE_NOOP("Text", "%1 is not found.")},
    TextRow{StringId::ControlMissing, QT_TRANSLATE_NOOP("Text", "%1 is not found")},
};

} // namespace dyeworks
