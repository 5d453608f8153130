#pragma once

#include <string>

namespace dyeworks {

/// Show a failure with a palette (an image) file in a message box of its own: caption "[TLF]" ("[TMF]"), an
/// OK button, the stop icon, no owner.
void reportTlf(const std::string& text);
void reportTmf(const std::string& text);

} // namespace dyeworks
