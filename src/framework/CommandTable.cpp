#include "framework/CommandTable.h"

#include "platform/Platform.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

// The name by which the translation tools find the texts; what it wraps stays as it is.
#define QT_TRANSLATE_NOOP(context, text) text

namespace dyeworks {

namespace {

// No std::array: deducing it from so many rows is more than some compilers go along with.
constexpr CommandRow kRows[] = {
    CommandRow{ID_VIEW_PALETTEBAR, QT_TRANSLATE_NOOP("Command", "&Palette Bar"),
               QT_TRANSLATE_NOOP("Command", "Show or hide the palette bar.\nToggle Palette Bar"), "",
               "palette-bar"},
    CommandRow{ID_VIEW_PROJECTBAR, QT_TRANSLATE_NOOP("Command", "P&roject Bar"),
               QT_TRANSLATE_NOOP("Command", "Show or hide the project bar.\nToggle Project Bar"), "", ""},
    CommandRow{ID_TOOL_PIXEL, QT_TRANSLATE_NOOP("Command", "Pi&xel"),
               QT_TRANSLATE_NOOP("Command", "Plot Pixel\nPixel"), "X", "pixel"},
    CommandRow{ID_TOOL_BOX, QT_TRANSLATE_NOOP("Command", "&Box"),
               QT_TRANSLATE_NOOP("Command", "Draw Box\nBox"), "B", "box"},
    CommandRow{ID_TOOL_BOX_FILL, QT_TRANSLATE_NOOP("Command", "B&ox Fill"),
               QT_TRANSLATE_NOOP("Command", "Draw Box Fill\nBox Fill"), "Shift+B", "box-fill"},
    CommandRow{ID_TOOL_CIRCLE, QT_TRANSLATE_NOOP("Command", "&Circle"),
               QT_TRANSLATE_NOOP("Command", "Draw Circle\nCircle"), "C", "circle"},
    CommandRow{ID_TOOL_CIRCLE_FILL, QT_TRANSLATE_NOOP("Command", "C&ircle Fill"),
               QT_TRANSLATE_NOOP("Command", "Draw Circle Fill\nCircle Fill"), "Shift+C", "circle-fill"},
    CommandRow{ID_TOOL_PAINT, QT_TRANSLATE_NOOP("Command", "&Paint"),
               QT_TRANSLATE_NOOP("Command", "Paint\nPaint"), "P", "paint"},
    CommandRow{ID_ZOOM_IN, QT_TRANSLATE_NOOP("Command", "Zoom &In"),
               QT_TRANSLATE_NOOP("Command", "Zoom In\nZoom In"), "Ctrl++ Ctrl+=", "zoom-in"},
    CommandRow{ID_ZOOM_OUT, QT_TRANSLATE_NOOP("Command", "Zoom &Out"),
               QT_TRANSLATE_NOOP("Command", "Zoom Out\nZoom Out"), "Ctrl+-", "zoom-out"},
    CommandRow{ID_TOOL_PEN, QT_TRANSLATE_NOOP("Command", "Pe&n"),
               QT_TRANSLATE_NOOP("Command", "Draw Pen\nPen"), "N", "pen"},
    CommandRow{ID_TOOL_LINE, QT_TRANSLATE_NOOP("Command", "&Line"),
               QT_TRANSLATE_NOOP("Command", "Draw Line\nLine"), "L", "line"},
    CommandRow{ID_TOOL_SELECT, QT_TRANSLATE_NOOP("Command", "&Select"),
               QT_TRANSLATE_NOOP("Command", "Select Editable Rectangle\nSelect"), "S", "select"},
    CommandRow{ID_VIEW_GRID, QT_TRANSLATE_NOOP("Command", "&Grid"),
               QT_TRANSLATE_NOOP("Command", "Show or hide the grid lines.\nToggle Grid"), "Ctrl+G", "grid"},
    CommandRow{ID_TOOL_SPUIT, QT_TRANSLATE_NOOP("Command", "S&upit"),
               QT_TRANSLATE_NOOP("Command", "Spuit color\nSpuit"), "U", "spuit"},
    CommandRow{ID_FLIP_X, QT_TRANSLATE_NOOP("Command", "Flip &X"),
               QT_TRANSLATE_NOOP("Command", "Flip X\nFlip X"), "", "flip-x"},
    CommandRow{ID_FLIP_Y, QT_TRANSLATE_NOOP("Command", "Flip &Y"),
               QT_TRANSLATE_NOOP("Command", "Flip Y\nFlip Y"), "", "flip-y"},
    CommandRow{
        ID_PREVIEW1, QT_TRANSLATE_NOOP("Command", "Preview&1"),
        QT_TRANSLATE_NOOP("Command", "Show or hide the preview 1 on target (Scopebox)\nToggle Preview1"), "",
        "preview1"},
    CommandRow{
        ID_PREVIEW2, QT_TRANSLATE_NOOP("Command", "Preview&2"),
        QT_TRANSLATE_NOOP("Command", "Show or hide the preview 2 on target (Scopebox)\nToggle Preview2"), "",
        "preview2"},
    CommandRow{ID_PICTURE_ADD, QT_TRANSLATE_NOOP("Command", "&Add..."),
               QT_TRANSLATE_NOOP("Command", "Add picture to current project."), "", "picture-add"},
    CommandRow{ID_PICTURE_REMOVE, QT_TRANSLATE_NOOP("Command", "&Remove"),
               QT_TRANSLATE_NOOP("Command", "Remove picture"), "", "picture-remove"},
    CommandRow{ID_PICTURE_CHANGE, QT_TRANSLATE_NOOP("Command", "&Change..."),
               QT_TRANSLATE_NOOP("Command", "Change picture configuration."), "", "picture-change"},
    CommandRow{ID_PROJECT_CLOSE, QT_TRANSLATE_NOOP("Command", "&Close"),
               QT_TRANSLATE_NOOP("Command", "Close the project"), "", ""},
    CommandRow{ID_PROJECT_SAVE, QT_TRANSLATE_NOOP("Command", "&Save"),
               QT_TRANSLATE_NOOP("Command", "Save the project"), "", "save-project"},
    CommandRow{ID_PROJECT_SAVE_AS, QT_TRANSLATE_NOOP("Command", "Save &As..."),
               QT_TRANSLATE_NOOP("Command", "Save the project with a new name"), "", ""},
    CommandRow{ID_PROJECT_PROPERTY, QT_TRANSLATE_NOOP("Command", "&Property..."),
               QT_TRANSLATE_NOOP("Command", "Edit Project properties."), "", ""},
    CommandRow{ID_PALETTE_CLOSE, QT_TRANSLATE_NOOP("Command", "&Close"),
               QT_TRANSLATE_NOOP("Command", "Close the active palette\nClose Palette"), "", "close-palette"},
    CommandRow{ID_PALETTE_SAVE, QT_TRANSLATE_NOOP("Command", "&Save"),
               QT_TRANSLATE_NOOP("Command", "Save the active palette\nSave Palette"), "", "save-palette"},
    CommandRow{ID_PALETTE_SAVE_AS, QT_TRANSLATE_NOOP("Command", "Save &As..."),
               QT_TRANSLATE_NOOP("Command", "Save the active palette with a new name\nSave Palette As"), "",
               ""},
    CommandRow{ID_PALETTE_EDIT, QT_TRANSLATE_NOOP("Command", "&Edit..."),
               QT_TRANSLATE_NOOP("Command", "Edit the current palette entry\nEdit Entry"), "",
               "edit-palette"},
    CommandRow{ID_PROJECT_NEW, QT_TRANSLATE_NOOP("Command", "&New"),
               QT_TRANSLATE_NOOP("Command", "New Project file."), "", "new-project"},
    CommandRow{ID_PROJECT_OPEN, QT_TRANSLATE_NOOP("Command", "&Open..."),
               QT_TRANSLATE_NOOP("Command", "Open Project file."), "", "open-project"},
    CommandRow{ID_PALETTE_NEW, QT_TRANSLATE_NOOP("Command", "&New"),
               QT_TRANSLATE_NOOP("Command", "Create a new palette\nNew Palette"), "", "new-palette"},
    CommandRow{ID_PALETTE_OPEN, QT_TRANSLATE_NOOP("Command", "&Open..."),
               QT_TRANSLATE_NOOP("Command", "Open an existing palette\nOpen Palette"), "", "open-palette"},
    CommandRow{ID_RECENT_PROJECT_FIRST, QT_TRANSLATE_NOOP("Command", "Recent Project Files"),
               QT_TRANSLATE_NOOP("Command", "Open this project"), "", "", ID_RECENT_PROJECT_LAST},
    CommandRow{ID_RECENT_PALETTE_FIRST, QT_TRANSLATE_NOOP("Command", "Recent Palette Files"),
               QT_TRANSLATE_NOOP("Command", "Open this palette"), "", "", ID_RECENT_PALETTE_LAST},
    CommandRow{ID_IMPORT_FIRST, QT_TRANSLATE_NOOP("Command", "Import Plug-In"),
               QT_TRANSLATE_NOOP("Command", "Import Plug-In"), "", "", ID_IMPORT_LAST},
    CommandRow{ID_EXPORT_FIRST, QT_TRANSLATE_NOOP("Command", "Export Plug-In"),
               QT_TRANSLATE_NOOP("Command", "Export Plug-In"), "", "", ID_EXPORT_LAST},
    CommandRow{ID_IMAGE_ATTACH, QT_TRANSLATE_NOOP("Command", "A&ttach"),
               QT_TRANSLATE_NOOP("Command", "Attach to active TMF\nAttach"), "", "attach"},
    CommandRow{ID_ZOOM_SPECIFY, QT_TRANSLATE_NOOP("Command", "&Specify..."),
               QT_TRANSLATE_NOOP("Command", "Specify Zoom size.\nZoom to..."), "", ""},
    CommandRow{ID_ZOOM_X1, QT_TRANSLATE_NOOP("Command", "x1"), QT_TRANSLATE_NOOP("Command", "100%\n100%"),
               "Ctrl+1", ""},
    CommandRow{ID_ZOOM_X2, QT_TRANSLATE_NOOP("Command", "x2"), QT_TRANSLATE_NOOP("Command", "200%\n200%"), "",
               ""},
    CommandRow{ID_ZOOM_X3, QT_TRANSLATE_NOOP("Command", "x3"), QT_TRANSLATE_NOOP("Command", "300%\n300%"), "",
               ""},
    CommandRow{ID_ZOOM_X4, QT_TRANSLATE_NOOP("Command", "x4"), QT_TRANSLATE_NOOP("Command", "400%\n400%"), "",
               ""},
    CommandRow{ID_ZOOM_X6, QT_TRANSLATE_NOOP("Command", "x6"), QT_TRANSLATE_NOOP("Command", "600%\n600%"), "",
               ""},
    CommandRow{ID_ZOOM_X8, QT_TRANSLATE_NOOP("Command", "x8"), QT_TRANSLATE_NOOP("Command", "800%\n800%"), "",
               ""},
    CommandRow{ID_ZOOM_X12, QT_TRANSLATE_NOOP("Command", "x12"), QT_TRANSLATE_NOOP("Command", "1200%\n1200%"),
               "", ""},
    CommandRow{ID_ZOOM_X16, QT_TRANSLATE_NOOP("Command", "x16"), QT_TRANSLATE_NOOP("Command", "1600%\n1600%"),
               "", ""},
    CommandRow{ID_TOOL_ZOOM_LENS, QT_TRANSLATE_NOOP("Command", "&Zoom Lens"),
               QT_TRANSLATE_NOOP("Command", "Zoom In/Out on cursor position\nZoom Lens"), "Z", "zoom-lens"},
    CommandRow{ID_PALETTE_COPY, QT_TRANSLATE_NOOP("Command", "C&opy"),
               QT_TRANSLATE_NOOP("Command", "Copy the selected palette entries\nCopy Entries"), "",
               "copy-palette"},
    CommandRow{ID_PALETTE_PASTE, QT_TRANSLATE_NOOP("Command", "&Paste"),
               QT_TRANSLATE_NOOP("Command", "Paste the copied palette entries\nPaste Entries"), "",
               "paste-palette"},
    CommandRow{ID_PALETTE_UNDO, QT_TRANSLATE_NOOP("Command", "&Undo"),
               QT_TRANSLATE_NOOP("Command", "Undo the last change of the palette\nUndo Palette"), "",
               "undo-palette"},
    CommandRow{ID_PALETTE_REDO, QT_TRANSLATE_NOOP("Command", "&Redo"),
               QT_TRANSLATE_NOOP("Command", "Redo the previously undone change of the palette\nRedo Palette"),
               "", "redo-palette"},
    CommandRow{ID_IMAGE_ADD_TO_PROJECT, QT_TRANSLATE_NOOP("Command", "&Add to Project"),
               QT_TRANSLATE_NOOP("Command", "Add active document to current project.\nAdd to Project"), "",
               ""},
    CommandRow{ID_NODE_ADD, QT_TRANSLATE_NOOP("Command", "&Add..."),
               QT_TRANSLATE_NOOP("Command", "Add to node."), "", ""},
    CommandRow{ID_NODE_EDIT, QT_TRANSLATE_NOOP("Command", "&Edit..."),
               QT_TRANSLATE_NOOP("Command", "Edit node"), "", ""},
    CommandRow{ID_NODE_REMOVE, QT_TRANSLATE_NOOP("Command", "&Remove"),
               QT_TRANSLATE_NOOP("Command", "Remove node"), "", ""},
    CommandRow{ID_NODE_PROPERTY, QT_TRANSLATE_NOOP("Command", "&Property..."),
               QT_TRANSLATE_NOOP("Command", "Edit node property"), "", ""},
    CommandRow{ID_TOOL_REPLACER, QT_TRANSLATE_NOOP("Command", "&Replacer"),
               QT_TRANSLATE_NOOP("Command", "Replace pixel from selected color in the selection.\nReplacer"),
               "R", "replacer"},
    CommandRow{ID_CANCEL_SELECTION, QT_TRANSLATE_NOOP("Command", "Cancel S&election"),
               QT_TRANSLATE_NOOP("Command", "Cancel selection\nCancel Selection"), "", "cancel-selection"},
    CommandRow{ID_RECENT_IMAGE_FIRST, QT_TRANSLATE_NOOP("Command", "Recent Image Files"),
               QT_TRANSLATE_NOOP("Command", "Open this image"), "", "", ID_RECENT_IMAGE_LAST},
    CommandRow{ID_OPTIONS, QT_TRANSLATE_NOOP("Command", "&Options..."),
               QT_TRANSLATE_NOOP("Command", "Change the settings of the program\nOptions"), "", "options"},
    CommandRow{ID_FILE_REVERT, QT_TRANSLATE_NOOP("Command", "&Revert"),
               QT_TRANSLATE_NOOP("Command", "Go back to the document as it was saved last\nRevert"), "", ""},
    CommandRow{
        ID_FILE_IMPORT_BMP, QT_TRANSLATE_NOOP("Command", "Import &BMP..."),
        QT_TRANSLATE_NOOP("Command", "Open a bitmap as an image, its colours as a palette\nImport BMP"), "",
        ""},
    CommandRow{ID_FILE_EXPORT_BMP, QT_TRANSLATE_NOOP("Command", "Expor&t BMP..."),
               QT_TRANSLATE_NOOP("Command", "Write a copy of the image as a bitmap\nExport BMP"), "", ""},
    CommandRow{
        ID_PALETTE_IMPORT, QT_TRANSLATE_NOOP("Command", "&Import Palette..."),
        QT_TRANSLATE_NOOP("Command", "Import colours from a palette file of another program\nImport Palette"),
        "", ""},
    CommandRow{ID_PALETTE_EXPORT, QT_TRANSLATE_NOOP("Command", "E&xport Palette..."),
               QT_TRANSLATE_NOOP("Command",
                                 "Export the active palette to a file for other programs\nExport Palette"),
               "", ""},
    CommandRow{
        ID_EDIT_PASTE_NEW, QT_TRANSLATE_NOOP("Command", "Paste as &New Image"),
        QT_TRANSLATE_NOOP("Command",
                          "Make an image and a palette of the picture on the Clipboard\nPaste as New Image"),
        "Ctrl+Shift+V", ""},
    CommandRow{ID_EDIT_PASTE_MATCHING, QT_TRANSLATE_NOOP("Command", "Paste &Matching Colours"),
               QT_TRANSLATE_NOOP("Command",
                                 "Insert the picture on the Clipboard in the nearest colours of the "
                                 "image's palette\nPaste Matching Colours"),
               "Ctrl+Alt+V", ""},
    CommandRow{ID_IMAGE_RESIZE, QT_TRANSLATE_NOOP("Command", "Resize &Canvas..."),
               QT_TRANSLATE_NOOP(
                   "Command", "Give the image another size, its texels staying as they are\nResize Canvas"),
               "", ""},
    CommandRow{
        ID_IMAGE_SCALE, QT_TRANSLATE_NOOP("Command", "&Scale..."),
        QT_TRANSLATE_NOOP("Command", "Give the image another size, its texels growing or shrinking\nScale"),
        "", ""},
    CommandRow{ID_IMAGE_CROP, QT_TRANSLATE_NOOP("Command", "C&rop to Selection"),
               QT_TRANSLATE_NOOP("Command",
                                 "Keep what is selected of the image and nothing else\nCrop to Selection"),
               "", ""},
    CommandRow{
        ID_IMAGE_SHIFT, QT_TRANSLATE_NOOP("Command", "S&hift..."),
        QT_TRANSLATE_NOOP("Command", "Move the image; what leaves on one side comes in on the other\nShift"),
        "", ""},
    CommandRow{
        ID_IMAGE_SHIFT_HALF, QT_TRANSLATE_NOOP("Command", "Shift by Hal&f"),
        QT_TRANSLATE_NOOP("Command", "Move the image by half its size, to reach the seam\nShift by Half"), "",
        ""},
    CommandRow{ID_IMAGE_TURN_LEFT, QT_TRANSLATE_NOOP("Command", "Turn &Left"),
               QT_TRANSLATE_NOOP("Command",
                                 "Turn the selection, or else the image, a quarter to the left\nTurn Left"),
               "", ""},
    CommandRow{ID_IMAGE_TURN_RIGHT, QT_TRANSLATE_NOOP("Command", "Turn Ri&ght"),
               QT_TRANSLATE_NOOP("Command",
                                 "Turn the selection, or else the image, a quarter to the right\nTurn Right"),
               "", ""},
    CommandRow{ID_IMAGE_TURN_HALF, QT_TRANSLATE_NOOP("Command", "T&urn Half"),
               QT_TRANSLATE_NOOP("Command", "Turn the selection, or else the image, upside down\nTurn Half"),
               "", ""},
    CommandRow{ID_IMAGE_TO_4_BITS, QT_TRANSLATE_NOOP("Command", "To &4 Bits"),
               QT_TRANSLATE_NOOP("Command", "Make it an image of 16 colours\nTo 4 Bits"), "", ""},
    CommandRow{ID_IMAGE_TO_8_BITS, QT_TRANSLATE_NOOP("Command", "To &8 Bits"),
               QT_TRANSLATE_NOOP("Command", "Make it an image of 256 colours\nTo 8 Bits"), "", ""},
    CommandRow{ID_DRAW_WRAP, QT_TRANSLATE_NOOP("Command", "&Wrap"),
               QT_TRANSLATE_NOOP("Command", "What leaves the image on one side comes in at the other\nWrap"),
               "", "wrap"},
    CommandRow{ID_VIEW_REPEAT, QT_TRANSLATE_NOOP("Command", "&Repeat"),
               QT_TRANSLATE_NOOP("Command", "Surround the image with its copies\nToggle Repeat"), "",
               "repeat"},
    CommandRow{ID_VIEW_BRUSHBAR, QT_TRANSLATE_NOOP("Command", "&Brush Bar"),
               QT_TRANSLATE_NOOP("Command", "Show or hide the brush bar.\nToggle Brush Bar"), "", ""},
    CommandRow{ID_BRUSH_SMALLER, QT_TRANSLATE_NOOP("Command", "&Smaller"),
               QT_TRANSLATE_NOOP("Command", "Make the brush a texel smaller\nSmaller Brush"), "[", ""},
    CommandRow{ID_BRUSH_LARGER, QT_TRANSLATE_NOOP("Command", "&Larger"),
               QT_TRANSLATE_NOOP("Command", "Make the brush a texel larger\nLarger Brush"), "]", ""},
    CommandRow{ID_BRUSH_SQUARE, QT_TRANSLATE_NOOP("Command", "S&quare"),
               QT_TRANSLATE_NOOP("Command", "Draw with a square brush\nSquare Brush"), "", "brush-square"},
    CommandRow{ID_BRUSH_ROUND, QT_TRANSLATE_NOOP("Command", "&Round"),
               QT_TRANSLATE_NOOP("Command", "Draw with a round brush\nRound Brush"), "", "brush-round"},
    CommandRow{
        ID_MIRROR_ACROSS, QT_TRANSLATE_NOOP("Command", "Mirror &Across"),
        QT_TRANSLATE_NOOP("Command", "Draw on the left and on the right of the middle alike\nMirror Across"),
        "", "mirror-across"},
    CommandRow{ID_MIRROR_DOWN, QT_TRANSLATE_NOOP("Command", "Mirror &Down"),
               QT_TRANSLATE_NOOP("Command", "Draw above and below the middle alike\nMirror Down"), "",
               "mirror-down"},
    CommandRow{ID_RANGE_RAMP, QT_TRANSLATE_NOOP("Command", "Ra&mp"),
               QT_TRANSLATE_NOOP(
                   "Command",
                   "Lay even steps between the first and the last of the selected entries, or of all\nRamp"),
               "", ""},
    CommandRow{ID_RANGE_ADJUST, QT_TRANSLATE_NOOP("Command", "Ad&just..."),
               QT_TRANSLATE_NOOP("Command", "Change hue, saturation, brightness, a channel or alpha of the "
                                            "selected entries, or of all\nAdjust Entries"),
               "", ""},
    CommandRow{
        ID_RANGE_INVERT, QT_TRANSLATE_NOOP("Command", "&Invert"),
        QT_TRANSLATE_NOOP("Command", "Invert the colours of the selected entries, or of all\nInvert Entries"),
        "", ""},
    CommandRow{ID_RANGE_REVERSE, QT_TRANSLATE_NOOP("Command", "Re&verse"),
               QT_TRANSLATE_NOOP("Command",
                                 "Put the selected entries, or all, in the opposite order\nReverse Entries"),
               "", ""},
    CommandRow{ID_RANGE_FILL, QT_TRANSLATE_NOOP("Command", "&Fill"),
               QT_TRANSLATE_NOOP("Command", "Give the selected entries, or all, the value of the entry that "
                                            "is being edited\nFill Entries"),
               "", ""},
    CommandRow{ID_PALETTE_MOVE, QT_TRANSLATE_NOOP("Command", "&Move..."),
               QT_TRANSLATE_NOOP("Command",
                                 "Move entries to another place; images keep their colours\nMove Entries"),
               "", ""},
    CommandRow{
        ID_PALETTE_SWAP, QT_TRANSLATE_NOOP("Command", "S&wap..."),
        QT_TRANSLATE_NOOP("Command", "Exchange entries with others; images keep their colours\nSwap Entries"),
        "", ""},
    CommandRow{
        ID_PALETTE_SORT, QT_TRANSLATE_NOOP("Command", "&Sort By..."),
        QT_TRANSLATE_NOOP("Command", "Bring entries into an order; images keep their colours\nSort Entries"),
        "", ""},
    CommandRow{
        ID_PALETTE_MERGE_TWINS, QT_TRANSLATE_NOOP("Command", "Merge &Twins..."),
        QT_TRANSLATE_NOOP("Command", "Let the texels of equal entries all have one of them\nMerge Twins"), "",
        ""},
    CommandRow{ID_PALETTE_COMPACT, QT_TRANSLATE_NOOP("Command", "&Compact..."),
               QT_TRANSLATE_NOOP("Command", "Move entries that no texel has to the end\nCompact Entries"), "",
               ""},
    CommandRow{ID_VIEW_USAGE, QT_TRANSLATE_NOOP("Command", "Usa&ge"),
               QT_TRANSLATE_NOOP("Command", "Mark entries that no image shows, twins and transparent ones "
                                            "that are in use\nToggle Usage"),
               "", ""},
    CommandRow{ID_PALETTE_SHOW_TEXELS, QT_TRANSLATE_NOOP("Command", "Show Texe&ls"),
               QT_TRANSLATE_NOOP("Command", "Flash the texels that show the current entry\nShow Texels"), "",
               ""},
    CommandRow{ID_VIEW_BANKSBAR, QT_TRANSLATE_NOOP("Command", "Ban&ks"),
               QT_TRANSLATE_NOOP("Command", "Show or hide the image through all banks.\nToggle Banks"), "",
               ""},
    CommandRow{ID_PROJECT_RULES, QT_TRANSLATE_NOOP("Command", "R&ules..."),
               QT_TRANSLATE_NOOP("Command", "Say what the images of the project must keep to\nRules"), "",
               ""},
    CommandRow{
        ID_VIEW_FINDINGS, QT_TRANSLATE_NOOP("Command", "&Findings"),
        QT_TRANSLATE_NOOP("Command", "Show or hide the list of what checks have found\nToggle Findings"), "",
        ""},
    CommandRow{
        ID_PROJECT_CHECK, QT_TRANSLATE_NOOP("Command", "Chec&k"),
        QT_TRANSLATE_NOOP("Command", "Look for what is wrong with the project and its files\nCheck Project"),
        "", ""},
    CommandRow{
        ID_PROJECT_ADD_FOLDER, QT_TRANSLATE_NOOP("Command", "Add &Files in Folder..."),
        QT_TRANSLATE_NOOP("Command",
                          "Add the images of a folder with the palettes of their names\nAdd Files in Folder"),
        "", ""},
    CommandRow{ID_PROJECT_REVERT_CHECK, QT_TRANSLATE_NOOP("Command", "Re&vert to Before Check"),
               QT_TRANSLATE_NOOP("Command", "Take back what was relinked, removed and added since the check, "
                                            "or repeat it\nRevert to Before Check"),
               "", ""},
    CommandRow{ID_COMMAND_SEARCH, QT_TRANSLATE_NOOP("Command", "&Search Commands..."),
               QT_TRANSLATE_NOOP("Command", "Find a command by its name and run it\nSearch Commands"),
               "Ctrl+Shift+P", ""},
    CommandRow{
        ID_VIEW_UNDO_LIST, QT_TRANSLATE_NOOP("Command", "U&ndo List"),
        QT_TRANSLATE_NOOP("Command", "Show or hide the steps that can be taken back\nToggle Undo List"), "",
        ""},
    CommandRow{ID_ENTRY_PREVIOUS, QT_TRANSLATE_NOOP("Command", "&Previous Entry"),
               QT_TRANSLATE_NOOP("Command", "Take the palette entry before the current one\nPrevious Entry"),
               ",", ""},
    CommandRow{ID_ENTRY_NEXT, QT_TRANSLATE_NOOP("Command", "&Next Entry"),
               QT_TRANSLATE_NOOP("Command", "Take the palette entry after the current one\nNext Entry"), ".",
               ""},
    CommandRow{ID_ENTRY_ROW_UP, QT_TRANSLATE_NOOP("Command", "Entry &Above"),
               QT_TRANSLATE_NOOP("Command", "Take the palette entry above the current one\nEntry Above"),
               "Shift+,", ""},
    CommandRow{ID_ENTRY_ROW_DOWN, QT_TRANSLATE_NOOP("Command", "Entry &Below"),
               QT_TRANSLATE_NOOP("Command", "Take the palette entry below the current one\nEntry Below"),
               "Shift+.", ""},
    CommandRow{ID_ENTRY_PICK, QT_TRANSLATE_NOOP("Command", "Entry of &Texel"),
               QT_TRANSLATE_NOOP("Command", "Take the entry of the texel at the texel cursor, or at the "
                                            "pointer\nPick Entry of Texel"),
               "D", ""},
    CommandRow{
        ID_PANE_NEXT, QT_TRANSLATE_NOOP("Command", "Next &Pane"),
        QT_TRANSLATE_NOOP("Command", "Go on to the next of document, bars, lists and palette bar\nNext Pane"),
        "F6", ""},
    CommandRow{
        ID_PANE_PREVIOUS, QT_TRANSLATE_NOOP("Command", "P&revious Pane"),
        QT_TRANSLATE_NOOP("Command",
                          "Go back to the previous of document, bars, lists and palette bar\nPrevious Pane"),
        "Shift+F6", ""},
    CommandRow{ID_TEXTURE_NEW, QT_TRANSLATE_NOOP("Command", "Ne&w Texture..."),
               QT_TRANSLATE_NOOP("Command", "Create an image together with its palette\nNew Texture"),
               "Ctrl+Shift+N", "new"},
    CommandRow{
        ID_IMAGE_NEW_PALETTE, QT_TRANSLATE_NOOP("Command", "New Palette for &Image..."),
        QT_TRANSLATE_NOOP("Command", "Create a palette and attach the image to it\nNew Palette for Image"),
        "", "new-palette"},
    CommandRow{
        ID_VIEW_FULL_SCREEN, QT_TRANSLATE_NOOP("Command", "F&ull Screen"),
        QT_TRANSLATE_NOOP("Command", "Give the documents the whole screen, without any bar\nFull Screen"),
        "F11", ""},
    CommandRow{ID_VIEW_RESET_LAYOUT, QT_TRANSLATE_NOOP("Command", "Reset &Layout"),
               QT_TRANSLATE_NOOP("Command", "Put all bars where they are at first\nReset Layout"), "", ""},
    CommandRow{
        ID_VIEW_START_PAGE, QT_TRANSLATE_NOOP("Command", "St&art Page"),
        QT_TRANSLATE_NOOP(
            "Command", "Show the start page while no document is open, or leave it out\nToggle Start Page"),
        "", ""},
    CommandRow{
        ID_VIEW_CELLS_ONLY, QT_TRANSLATE_NOOP("Command", "Palette Cells Onl&y"),
        QT_TRANSLATE_NOOP(
            "Command",
            "Show the cells of the palette bar without its fields, or with them\nToggle Palette Cells Only"),
        "", ""},
    CommandRow{ID_FILE_NEW, QT_TRANSLATE_NOOP("Command", "&New"),
               QT_TRANSLATE_NOOP("Command", "Create a new document\nNew"), "Ctrl+N", "new"},
    CommandRow{ID_FILE_OPEN, QT_TRANSLATE_NOOP("Command", "&Open..."),
               QT_TRANSLATE_NOOP("Command", "Open an existing document\nOpen"), "Ctrl+O", "open"},
    CommandRow{ID_FILE_CLOSE, QT_TRANSLATE_NOOP("Command", "&Close"),
               QT_TRANSLATE_NOOP("Command", "Close the active document\nClose"), "Ctrl+W Ctrl+F4", "close"},
    CommandRow{ID_FILE_SAVE, QT_TRANSLATE_NOOP("Command", "&Save"),
               QT_TRANSLATE_NOOP("Command", "Save the active document\nSave"), "Ctrl+S", "save"},
    CommandRow{ID_FILE_SAVE_AS, QT_TRANSLATE_NOOP("Command", "Save &As..."),
               QT_TRANSLATE_NOOP("Command", "Save the active document with a new name\nSave As"),
               "Ctrl+Shift+S", "save-as"},
    CommandRow{ID_FILE_PRINT_SETUP, QT_TRANSLATE_NOOP("Command", "Print Set&up..."),
               QT_TRANSLATE_NOOP("Command", "Change the printer and printing options\nPrint Setup"), "", ""},
    CommandRow{ID_FILE_PRINT, QT_TRANSLATE_NOOP("Command", "&Print..."),
               QT_TRANSLATE_NOOP("Command", "Print the active document\nPrint"), "Ctrl+P", "print"},
    CommandRow{ID_FILE_PRINT_DIRECT, QT_TRANSLATE_NOOP("Command", "Print &Directly"),
               QT_TRANSLATE_NOOP("Command", "Print the active document without asking\nPrint Directly"),
               "Ctrl+Alt+P", ""},
    CommandRow{ID_FILE_PRINT_PREVIEW, QT_TRANSLATE_NOOP("Command", "Print Pre&view"),
               QT_TRANSLATE_NOOP("Command", "Display full pages\nPrint Preview"), "", "print-preview"},
    CommandRow{ID_EDIT_COPY, QT_TRANSLATE_NOOP("Command", "&Copy"),
               QT_TRANSLATE_NOOP("Command", "Copy the selection and put it on the Clipboard\nCopy"),
               "Ctrl+C Ctrl+Ins", "copy"},
    CommandRow{ID_EDIT_CUT, QT_TRANSLATE_NOOP("Command", "Cu&t"),
               QT_TRANSLATE_NOOP("Command", "Cut the selection and put it on the Clipboard\nCut"),
               "Ctrl+X Shift+Del", "cut"},
    CommandRow{ID_EDIT_PASTE, QT_TRANSLATE_NOOP("Command", "&Paste"),
               QT_TRANSLATE_NOOP("Command", "Insert Clipboard contents\nPaste"), "Ctrl+V Shift+Ins", "paste"},
    CommandRow{ID_EDIT_SELECT_ALL, QT_TRANSLATE_NOOP("Command", "&Select All"),
               QT_TRANSLATE_NOOP("Command", "Select the entire document\nSelect All"), "Ctrl+A",
               "select-all"},
    CommandRow{ID_EDIT_UNDO, QT_TRANSLATE_NOOP("Command", "&Undo"),
               QT_TRANSLATE_NOOP("Command", "Undo the last action\nUndo"), "Ctrl+Z", "undo"},
    CommandRow{ID_EDIT_REDO, QT_TRANSLATE_NOOP("Command", "&Redo"),
               QT_TRANSLATE_NOOP("Command", "Redo the previously undone action\nRedo"), "Ctrl+Y Ctrl+Shift+Z",
               "redo"},
    CommandRow{ID_WINDOW_NEW, QT_TRANSLATE_NOOP("Command", "&New Window"),
               QT_TRANSLATE_NOOP("Command", "Open another window for the active document\nNew Window"), "",
               ""},
    CommandRow{ID_WINDOW_ARRANGE, QT_TRANSLATE_NOOP("Command", "&Arrange Icons"),
               QT_TRANSLATE_NOOP("Command", "Arrange minimized windows at the bottom\nArrange Icons"), "",
               ""},
    CommandRow{ID_WINDOW_CASCADE, QT_TRANSLATE_NOOP("Command", "&Cascade"),
               QT_TRANSLATE_NOOP("Command", "Arrange windows so that they overlap\nCascade"), "", ""},
    CommandRow{ID_WINDOW_TILE_HORZ, QT_TRANSLATE_NOOP("Command", "Tile &Horizontally"),
               QT_TRANSLATE_NOOP("Command", "Arrange windows one above the other\nTile Horizontally"), "",
               ""},
    CommandRow{ID_WINDOW_TILE_VERT, QT_TRANSLATE_NOOP("Command", "Tile &Vertically"),
               QT_TRANSLATE_NOOP("Command", "Arrange windows side by side\nTile Vertically"), "", ""},
    CommandRow{ID_APP_ABOUT, QT_TRANSLATE_NOOP("Command", "&About Orrery Dyeworks..."),
               QT_TRANSLATE_NOOP("Command", "Show the program's version and copyright\nAbout"), "", "about"},
    CommandRow{ID_APP_EXIT, QT_TRANSLATE_NOOP("Command", "E&xit"),
               QT_TRANSLATE_NOOP("Command", "Quit the program and ask to save documents\nExit"), "Ctrl+Q",
               "exit"},
    CommandRow{ID_HELP_INDEX, QT_TRANSLATE_NOOP("Command", "&Help Topics"),
               QT_TRANSLATE_NOOP("Command", "Open the pages of the user guide\nHelp Topics"), "", "help"},
    CommandRow{
        ID_CONTEXT_HELP, QT_TRANSLATE_NOOP("Command", "&What's This?"),
        QT_TRANSLATE_NOOP("Command",
                          "Explain the next thing that is clicked: a button, a menu, a window\nWhat's This?"),
        "Shift+F1", "context-help"},
    CommandRow{ID_HELP, QT_TRANSLATE_NOOP("Command", "Help on Current &Item"),
               QT_TRANSLATE_NOOP("Command", "Explain the control that has the keyboard focus\nHelp"), "F1",
               ""},
    CommandRow{ID_VIEW_TOOLBAR, QT_TRANSLATE_NOOP("Command", "&Tool Bar"),
               QT_TRANSLATE_NOOP("Command", "Show or hide the tool bar.\nToggle Tool Bar"), "", ""},
    CommandRow{ID_VIEW_STATUS_BAR, QT_TRANSLATE_NOOP("Command", "&Status Bar"),
               QT_TRANSLATE_NOOP("Command", "Show or hide the status bar.\nToggle Status Bar"), "", ""},
    CommandRow{ID_VIEW_DRAWBAR, QT_TRANSLATE_NOOP("Command", "&Draw Bar"),
               QT_TRANSLATE_NOOP("Command", "Show or hide the draw bar.\nToggle Draw Bar"), "", ""},
    CommandRow{ID_VIEW_VIEWBAR, QT_TRANSLATE_NOOP("Command", "&View Bar"),
               QT_TRANSLATE_NOOP("Command", "Show or hide the view bar.\nToggle View Bar"), "", ""},
};

static_assert(std::ranges::is_sorted(kRows, std::less_equal{}, &CommandRow::id), "look-up needs the order");

} // namespace

std::span<const CommandRow> commandTable() {
    return kRows;
}

const CommandRow* findCommand(CommandId id) {
    // The last row that begins at this number or before it.
    const auto after = std::ranges::upper_bound(kRows, id, {}, &CommandRow::id);
    if (after == std::begin(kRows))
        return nullptr;
    const CommandRow& row = *(after - 1);
    return id <= std::max(row.id, row.last) ? &row : nullptr;
}

std::string menuText(const CommandRow& row) {
    return platform().texts().translate(kCommandContext, row.menuText);
}

std::string statusText(const CommandRow& row) {
    const std::string prompt = platform().texts().translate(kCommandContext, row.prompt);
    return prompt.substr(0, prompt.find('\n'));
}

std::string toolTipText(const CommandRow& row) {
    const std::string prompt = platform().texts().translate(kCommandContext, row.prompt);
    // Without a line break the whole prompt serves as tip: npos + 1 is 0.
    return prompt.substr(prompt.find('\n') + 1);
}

std::string withoutMnemonic(std::string_view menuText) {
    std::string bare;
    for (std::size_t i = 0; i < menuText.size(); ++i) {
        // Where no letter of the text serves, one stands behind it: "(&A)".
        if (menuText.substr(i, 2) == "(&" && i + 3 < menuText.size() && menuText[i + 3] == ')')
            i += 3;
        else if (menuText[i] != '&')
            bare += menuText[i];
        else if (menuText.substr(i, 2) == "&&")
            bare += menuText[++i];
    }
    return bare;
}

} // namespace dyeworks
