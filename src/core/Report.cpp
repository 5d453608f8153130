#include "core/Report.h"

#include "platform/Platform.h"

namespace dyeworks {

namespace {

void report(const char* caption, const std::string& text, const std::string& details) {
    platform().messages().show(
        {text, caption, MessageButtons::Ok, MessageIcon::Stop, MessageOwner::None, false, details});
}

} // namespace

void reportTlf(const std::string& text, const std::string& details) {
    report("[TLF]", text, details);
}

void reportTmf(const std::string& text, const std::string& details) {
    report("[TMF]", text, details);
}

} // namespace dyeworks
