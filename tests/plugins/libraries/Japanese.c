#include "TestPlugIn.h"

ACCEPTS
HAS_ROLES(DWPI_TMF_IMPORT)

uint32_t DWPI_onLanguage(uint32_t locale) {
    note("speaks ", locale == DW_LOCALE_JAPANESE  ? "Japanese"
                    : locale == DW_LOCALE_ENGLISH ? "English"
                                                  : "?");
    return 0;
}

DW_VERSION_INFO(4, 3, 2, 65535, DW_VERSION_STRING("041104B0", "InternalName", "\xE7\xA9\xBA"),
                DW_VERSION_STRING("041104B0", "ProductName", "\xE9\x9B\xB2"));
