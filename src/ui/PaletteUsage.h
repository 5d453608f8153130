#pragma once

#include "framework/CommandTarget.h"
#include "palette/EntryUsage.h"
#include "ui/TexelFlash.h"

#include <QTimer>

#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

class CDyeworksDoc;
class CPaletteBar;
class Workspace;

/// How the open images use the entries of their palettes: counted for whoever asks, marked on the cells of
/// the palette bar while that is wished, and flashed in the views.
class PaletteUsage : public CommandTarget {
public:
    /// `workspace` must outlive it.
    explicit PaletteUsage(Workspace& workspace);
    ~PaletteUsage() override;

    /// The palette bar is there, and the palettes are.
    void start(CPaletteBar& bar);
    /// How many texels of all attached open images show each entry of the palette of this key; none without
    /// such a palette.
    [[nodiscard]] EntryCounts usage(const std::string& key) const;

    /// Texels of an image, or what else of it (`texels` false), have changed, or an image has gone.
    void imageChanged(bool texels);

private:
    [[nodiscard]] std::vector<CDyeworksDoc*> imagesOf(const std::string& key) const;

    void refreshSoon();
    void refresh();
    void standOut(bool standsOut);
    /// The current entry; negative when there is none.
    [[nodiscard]] std::int32_t currentEntry() const;

    void OnToggle();
    void OnUpdateToggle(CommandUi& ui);
    void OnShowTexels();
    void OnUpdateShowTexels(CommandUi& ui);

    Workspace& workspace_;
    bool on_ = false;
    QTimer soon_;
    TexelFlash flash_;
    std::string flashedKey_;
    std::int32_t flashedEntry_ = 0;
};

} // namespace dyeworks
