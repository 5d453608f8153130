#pragma once

#include "platform/Library.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace dyeworks {

/// A plug-in of the catalogue. Copies share the library.
struct PlugInInfo {
    std::shared_ptr<const LoadedLibrary> module; ///< Never null in the catalogue.
    std::uint32_t type = 0;                      ///< The roles, in bits; see plugin.h.
    std::string fileName;                        ///< Without folder.
    // Strings of its version information, empty where it has none.
    std::string companyName;
    std::string internalName; ///< What its menu entry is called.
    std::string productName;
    std::string comments;
    std::array<std::uint16_t, 4> version{}; ///< From the fourth part to the first.
};

/// The roles in words: "TMF Import&Export, TPF Node".
[[nodiscard]] std::string typeText(std::uint32_t type);

} // namespace dyeworks
