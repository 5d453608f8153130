#pragma once

#include "palette/PaletteBarHost.h"
#include "palette/PaletteTips.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

/// The open palettes as tabs.
class PaletteTabs {
public:
    struct Tab {
        std::string key;
        std::string title;
        bool unsaved = false; ///< Closing the palette would ask.

        bool operator==(const Tab&) const = default;
    };

    /// `host` must outlive the tabs.
    explicit PaletteTabs(PaletteBarHost& host)
        : host_(host) {}

    /// One for each key, in this order.
    void rebuild(const std::vector<std::string>& keys);
    /// Titles, and which palettes are unsaved, may be others now. True when any is.
    bool readTitles();

    [[nodiscard]] const std::vector<Tab>& all() const noexcept { return tabs_; }
    /// That of the current palette; -1: none.
    [[nodiscard]] std::int32_t current() const;
    /// With a second line about unsaved changes. `index` is that of a tab.
    [[nodiscard]] std::string tip(std::int32_t index, const PaletteTips& tips) const;

private:
    PaletteBarHost& host_;
    std::vector<Tab> tabs_;
};

} // namespace dyeworks
