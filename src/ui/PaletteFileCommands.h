#pragma once

#include "framework/CommandTarget.h"
#include "interchange/PaletteFile.h"

#include <optional>
#include <string>

namespace dyeworks {

class Workspace;

/// The commands that bring palette files of other programs in and write them out.
class PaletteFileCommands : public CommandTarget {
public:
    /// `workspace` must outlive it.
    explicit PaletteFileCommands(Workspace& workspace);

private:
    void OnImportPalette();
    void OnExportPalette();
    void OnUpdateExportPalette(CommandUi& ui);
    [[nodiscard]] ImportedEntries importAsNew(const PaletteColours& colours, const std::string& name);
    [[nodiscard]] ImportedEntries importInto(const std::string& key, const PaletteColours& colours,
                                             std::int32_t firstEntry);

    Workspace& workspace_;
};

} // namespace dyeworks
