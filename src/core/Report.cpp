#include "core/Report.h"

#include "platform/Platform.h"

namespace dyeworks {

namespace {

void report(const char* caption, const std::string& text) {
    platform().messages().show({text, caption, MessageButtons::Ok, MessageIcon::Stop, MessageOwner::None});
}

} // namespace

void reportTlf(const std::string& text) {
    report("[TLF]", text);
}

void reportTmf(const std::string& text) {
    report("[TMF]", text);
}

} // namespace dyeworks
