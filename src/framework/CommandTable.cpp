#include "framework/CommandTable.h"

#include "platform/Platform.h"

#include <algorithm>
#include <array>
#include <cstddef>

// The name by which the translation tools find the texts; what it wraps stays as it is.
#define QT_TRANSLATE_NOOP(context, text) text

namespace dyeworks {

namespace {

constexpr std::array kRows{
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
               "Ctrl+Shift+P", ""},
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
    if (after == kRows.begin())
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

} // namespace dyeworks
