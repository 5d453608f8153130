#include "platform/posix/OwnSymbol.h"

#include <dlfcn.h>
#include <elf.h>
#include <link.h>

namespace dyeworks {

void* ownSymbol(void* handle, const char* name) {
    void* const address = ::dlsym(handle, name);
    link_map* library = nullptr;
    if (address == nullptr || ::dlinfo(handle, RTLD_DI_LINKMAP, &library) != 0)
        return nullptr;
    Dl_info info{};
    void* owner = nullptr;
    if (::dladdr1(address, &info, &owner, RTLD_DL_LINKMAP) == 0 || owner != library)
        return nullptr;
    return address;
}

const void* ownObject(void* handle, const char* name, std::size_t size) {
    const void* const address = ownSymbol(handle, name);
    if (address == nullptr)
        return nullptr;
    Dl_info info{};
    void* entry = nullptr;
    if (::dladdr1(address, &info, &entry, RTLD_DL_SYMENT) == 0 || entry == nullptr)
        return nullptr;
    const auto* symbol = static_cast<const ElfW(Sym)*>(entry);
    // The type has the same place in the symbols of both word sizes.
    if (info.dli_saddr != address || ELF64_ST_TYPE(symbol->st_info) != STT_OBJECT || symbol->st_size < size)
        return nullptr;
    return address;
}

} // namespace dyeworks
