#include "framework/ReloadOption.h"

#include "platform/Platform.h"

namespace dyeworks {

namespace {

constexpr const char* kReloadSection = "Outside Changes";
constexpr const char* kReloadEntry = "ReloadUnchanged";

} // namespace

bool reloadsUnchanged() {
    return platform().profile().integer(kReloadSection, kReloadEntry, 0) != 0;
}

void setReloadsUnchanged(bool reloads) {
    platform().profile().setInteger(kReloadSection, kReloadEntry, reloads ? 1 : 0);
}

} // namespace dyeworks
