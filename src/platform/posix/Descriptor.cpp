#include "platform/posix/Descriptor.h"

#include <cerrno>
#include <unistd.h>

namespace dyeworks {

int Descriptor::close() noexcept {
    const int closing = std::exchange(descriptor_, -1);
    // After EINTR the descriptor is gone all the same; closing again could hit somebody else's.
    if (closing < 0 || ::close(closing) == 0 || errno == EINTR)
        return 0;
    return errno;
}

} // namespace dyeworks
