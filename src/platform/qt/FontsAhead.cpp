#include "platform/qt/FontsAhead.h"

#include <fontconfig/fontconfig.h>
#include <system_error>

namespace dyeworks {

FontsAhead::FontsAhead() noexcept {
    try {
        thread_ = std::thread([] { FcInit(); });
    } catch (const std::system_error&) {
    }
}

void FontsAhead::wait() {
    if (thread_.joinable())
        thread_.join();
}

} // namespace dyeworks
