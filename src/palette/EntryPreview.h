#pragma once

#include "palette/CurrentPalette.h"
#include "palette/EditedEntry.h"
#include "palette/PaletteBarHost.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

/// The edited entry as the images of the palette show it before it is applied.
class EntryPreview {
public:
    /// Both must outlive it.
    EntryPreview(PaletteBarHost& host, const CurrentPalette& palette)
        : host_(host)
        , palette_(palette) {}

    /// Shows the edited value, or the stored one while no other is being edited. Nothing without an index.
    void show(std::optional<std::int32_t> index, const EditedEntry& entry);
    /// Shows the stored colours where an edited value is shown.
    void end();

    [[nodiscard]] bool isOn() const noexcept { return on_; }
    void turnOn(std::optional<std::int32_t> index, const EditedEntry& entry);
    void turnOff();
    /// A bar that is closed leaves no preview behind. False: it is as it was.
    bool setShown(bool shown);

private:
    PaletteBarHost& host_;
    const CurrentPalette& palette_;
    bool on_ = true;
    bool shown_ = true;
    std::string key_; ///< The palette whose images show a value that is not stored; or empty.
};

} // namespace dyeworks
