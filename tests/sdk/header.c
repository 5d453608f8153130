/* The header, twice and before all others, and the line that makes a library's version information. */
#include "dyeworks/plugin.h"

DW_VERSION_INFO(1, 2, 3, 4, DW_VERSION_STRING(DW_ENGLISH, "InternalName", "header"));
