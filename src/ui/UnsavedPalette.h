#pragma once

#include "core/TlutData.h"

#include <string>

namespace dyeworks {

class PaletteSet;

/// Adds a palette that is in no file yet and makes it current: it goes by `name`, as far as no other one
/// does, and is asked about before it is closed. The result is its key.
std::string addUnsavedPalette(PaletteSet& set, const TlutData& table, const std::string& name);

} // namespace dyeworks
