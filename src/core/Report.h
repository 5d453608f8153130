#pragma once

#include <string>

namespace dyeworks {

/// Show a failure with a palette (an image) file in a message box of its own: caption "[TLF]" ("[TMF]"), an
/// OK button, the stop icon, no owner. `details` stands below it: why, and what can be done.
void reportTlf(const std::string& text, const std::string& details = {});
void reportTmf(const std::string& text, const std::string& details = {});

} // namespace dyeworks
