#include "platform/Platform.h"

#include <cassert>
#include <utility>

namespace dyeworks {

namespace {

Platform* installed = nullptr;

} // namespace

Platform& platform() {
    assert(installed != nullptr);
    return *installed;
}

Platform* installPlatform(Platform* instance) {
    return std::exchange(installed, instance);
}

} // namespace dyeworks
