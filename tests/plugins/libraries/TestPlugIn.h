/* What the libraries of the tests share. They see nothing of the program but the SDK, and tell what they were
 * called for in the file that the environment variable DYEWORKS_TEST_LOG names, a line each.
 */
#ifndef DYEWORKS_TEST_PLUG_IN_H
#define DYEWORKS_TEST_PLUG_IN_H

#include "dyeworks/plugin.h"

#include <dlfcn.h>
#include <stdio.h>

/* The file that the library was loaded from, without its folder: a copy has a name of its own. */
static inline const char* ownFile(void) {
    static const char here = 0;
    Dl_info info;
    const char* slash;
    if (dladdr(&here, &info) == 0)
        return "";
    slash = strrchr(info.dli_fname, '/');
    return slash == NULL ? info.dli_fname : slash + 1;
}

static inline void note(const char* what, const char* more) {
    const char* path = getenv("DYEWORKS_TEST_LOG");
    FILE* log = path == NULL ? NULL : fopen(path, "a");
    if (log == NULL)
        return;
    fprintf(log, "%s %s%s\n", ownFile(), what, more);
    fclose(log);
}

#define ACCEPTS                                                                                              \
    uint32_t DWPI_isAvail(uint32_t hostVersion) {                                                            \
        return hostVersion != 0;                                                                             \
    }
#define HAS_ROLES(roles)                                                                                     \
    uint32_t DWPI_getType(void) {                                                                            \
        return roles;                                                                                        \
    }
#define IS_CALLED(name)                                                                                      \
    DW_VERSION_INFO(1, 2, 3, 4, DW_VERSION_STRING("040904E4", "InternalName", name),                         \
                    DW_VERSION_STRING("040904E4", "ProductName", "Test of " name))

#endif
