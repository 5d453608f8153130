#include "platform/posix/HugePages.h"

#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

namespace dyeworks {

void askForHugePages(void* block, std::size_t bytes) noexcept {
#ifdef MADV_HUGEPAGE
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto start = reinterpret_cast<std::uintptr_t>(block);
    const std::uintptr_t inside =
        (page - start % page) % page; // Up to the first page that is all the block's.
    if (bytes > inside)
        madvise(static_cast<char*>(block) + inside, (bytes - inside) / page * page, MADV_HUGEPAGE);
#else
    static_cast<void>(block);
    static_cast<void>(bytes);
#endif
}

} // namespace dyeworks
