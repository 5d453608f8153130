#include "ui/PaletteFileCommands.h"

#include "core/PaletteSet.h"
#include "framework/PathText.h"
#include "interchange/EntryColour.h"
#include "interchange/Texture.h"
#include "platform/AskForFile.h"
#include "platform/FileMessages.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/CMainFrame.h"
#include "ui/UnsavedPalette.h"
#include "ui/Workspace.h"
#include "ui/palettebar/CPaletteBar.h"
#include "ui/sheets/ExportPaletteDialog.h"
#include "ui/sheets/ImportPaletteDialog.h"
#include "ui/sheets/PaletteFormats.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

std::string stemOf(std::string_view path) {
    const std::string_view name = fileNameOf(path);
    return std::string(name.substr(0, name.size() - extensionOf(path).size()));
}

/// Nothing when the file gave none, which the user has been told.
std::optional<PaletteColours> coloursOf(const std::string& path) {
    const Result<ByteBuffer, FileError> file = platform().files().read(path);
    if (!file) {
        tellNotOpened(path, file.error());
        return std::nullopt;
    }
    Result<PaletteColours, InterchangeError> read = readPaletteFile(file.value().bytes(), fileNameOf(path));
    if (read)
        return std::move(read).value();
    applicationMessage(
        text(StringId::CannotOpenFile, {displayPath(path), describe(read.error(), platform().texts())}));
    return std::nullopt;
}

} // namespace

PaletteFileCommands::PaletteFileCommands(Workspace& workspace)
    : workspace_(workspace) {
    on(ID_PALETTE_IMPORT, &PaletteFileCommands::OnImportPalette);
    on(ID_PALETTE_EXPORT, &PaletteFileCommands::OnExportPalette, &PaletteFileCommands::OnUpdateExportPalette);
}

void PaletteFileCommands::OnImportPalette() {
    const auto path = askForFileToOpen({.title = text(StringId::ImportPaletteCaption),
                                        .filter = filterOfAllPalettes(),
                                        .fileMustExist = true});
    if (!path)
        return;
    const std::optional<PaletteColours> colours = coloursOf(*path);
    if (!colours)
        return;
    CMainFrame& window = workspace_.mainFrame();
    PaletteSet& set = *workspace_.paletteSet();
    const std::string key = set.currentKey;
    std::optional<std::int32_t> into;
    if (const TextureLookupTable* const current = set.lookup("")) {
        ImportPaletteDialog dialog(static_cast<std::int32_t>(colours->colours.size()), current->table.count,
                                   std::max(window.GetPaletteBarCell(), 0), &window);
        if (dialog.exec() != QDialog::Accepted)
            return;
        into = dialog.firstEntry();
    }
    const ImportedEntries imported =
        into ? importInto(key, *colours, *into) : importAsNew(*colours, stemOf(*path));
    window.SetStatusText(text(StringId::PaletteImported,
                              {std::string(fileNameOf(*path)), std::to_string(imported.entries.size()),
                               std::to_string(imported.rounded), std::to_string(imported.leftOver)}),
                         0);
}

ImportedEntries PaletteFileCommands::importAsNew(const PaletteColours& colours, const std::string& name) {
    TlutData table;
    const std::int32_t count = depthFor(colours.colours.size()) == 4 ? 16 : 256;
    if (!table.create(count, colourTypeFor(colours.colours)))
        return {};
    ImportedEntries imported = entriesOf(colours, table.colourType, count);
    std::fill_n(table.entries, count, std::uint16_t{0});
    std::ranges::copy(imported.entries, table.entries);
    addUnsavedPalette(*workspace_.paletteSet(), table, name);
    return imported;
}

ImportedEntries PaletteFileCommands::importInto(const std::string& key, const PaletteColours& colours,
                                                std::int32_t firstEntry) {
    TextureLookupTable* const palette = workspace_.paletteSet()->lookup(key);
    if (palette == nullptr)
        return {};
    ImportedEntries imported =
        entriesOf(colours, palette->table.colourType, palette->table.count - firstEntry);
    const auto write = [&](TextureLookupTable& edited) {
        std::int32_t index = firstEntry;
        for (const std::uint16_t entry : imported.entries)
            edited.setEntry(index++, entry);
    };
    workspace_.mainFrame().paletteBar().state().edit(*palette, write, StringId::StepImportPalette);
    return imported;
}

void PaletteFileCommands::OnExportPalette() {
    CMainFrame& window = workspace_.mainFrame();
    const TextureLookupTable& current = *workspace_.paletteSet()->lookup("");
    // The palette may be another, or none, when the dialogs have been answered.
    const TlutData table = current.table;
    const std::string name = current.title.substr(0, current.title.find(" * "));
    const std::int32_t shownEntry = std::max(window.GetPaletteBarFirstEntry(), window.GetPaletteBarCell());
    ExportPaletteDialog dialog(table.count, std::clamp(shownEntry / 16, 0, 15), &window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const auto path = askForFileToSave({.title = text(StringId::ExportPaletteCaption),
                                        .filter = filterOf(dialog.format()),
                                        .defaultExtension = endingOf(dialog.format()),
                                        .initialName = name + endingOf(dialog.format())});
    if (!path)
        return;
    const PaletteFormat format = paletteFormatFor(fileNameOf(*path)).value_or(dialog.format());
    const Result<std::vector<std::byte>, InterchangeError> file =
        writePaletteFile(format, table, dialog.firstEntry(), dialog.entryCount(), name);
    if (!file)
        applicationMessage(
            text(StringId::CannotSaveFile, {displayPath(*path), describe(file.error(), platform().texts())}));
    else if (const auto error = platform().files().write(*path, file.value()))
        tellNotSaved(*path, *error);
    else
        window.SetStatusText(text(StringId::PaletteExported,
                                  {std::string(fileNameOf(*path)), std::to_string(dialog.entryCount())}),
                             0);
}

void PaletteFileCommands::OnUpdateExportPalette(CommandUi& ui) {
    ui.require(workspace_.paletteSet()->lookup("") != nullptr, StringId::WhyNoPalette);
}

} // namespace dyeworks
