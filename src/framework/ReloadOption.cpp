#include "framework/ReloadOption.h"

#include "platform/Platform.h"

namespace dyeworks {

namespace {

constexpr const char* kSection = "Outside Changes";
constexpr const char* kEntry = "ReloadUnchanged";

} // namespace

bool reloadsUnchanged() {
    return platform().profile().integer(kSection, kEntry, 0) != 0;
}

void setReloadsUnchanged(bool reloads) {
    platform().profile().setInteger(kSection, kEntry, reloads ? 1 : 0);
}

} // namespace dyeworks
