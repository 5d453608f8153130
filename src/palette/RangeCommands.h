#pragma once

#include "framework/CommandTarget.h"
#include "palette/EntryRange.h"
#include "platform/Text.h"

#include <functional>
#include <optional>

namespace dyeworks {

class PaletteBarHost;
class PaletteBarState;
class RangeAdjustment;
class TextureLookupTable;
struct TlutData;

/// What the commands on ranges ask of a window.
class RangeView {
public:
    /// Opens the sheet, which lets the adjustment follow what the user chooses. False: cancelled.
    virtual bool askAdjustment(RangeAdjustment& adjustment) = 0;

protected:
    ~RangeView() = default;
};

/// The commands that change the entries of the selected range or, without one, of the whole current palette.
/// Each is one undo step, and none where nothing changes. A block of cells that is no range can only be
/// copied: it is not the whole palette that its user means.
class RangeCommands : public CommandTarget {
public:
    /// All must outlive it.
    RangeCommands(PaletteBarState& state, PaletteBarHost& host, RangeView& view);

private:
    void OnRamp();
    void OnUpdateRamp(CommandUi& ui);
    void OnAdjust();
    void OnInvert();
    void OnReverse();
    void OnFill();
    void OnUpdateFill(CommandUi& ui);
    void OnUpdateRange(CommandUi& ui);

    /// What the commands act on; nothing when there is nothing to act on.
    [[nodiscard]] std::optional<EntryRange> target() const;
    void change(const std::function<void(TlutData&, EntryRange)>& operation, StringId name);
    void replace(TextureLookupTable& palette, const TlutData& table, StringId name);

    PaletteBarState& state_;
    PaletteBarHost& host_;
    RangeView& view_;
};

} // namespace dyeworks
