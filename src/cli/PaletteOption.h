#pragma once

#include "core/TlutData.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

class Console;

/// The palette that an option names, of which images of 4 bits show a bank. Nothing: it cannot be read or has
/// no such bank, which has been told.
[[nodiscard]] std::optional<TlutData> readPaletteOption(const std::string& name, std::int32_t bank,
                                                        Console& console);

} // namespace dyeworks
