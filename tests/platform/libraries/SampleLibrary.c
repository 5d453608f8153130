#include <dyeworks/version_info.h>

DW_VERSION_INFO(1, 2, 65535, 4, DW_VERSION_STRING("040904E4", "ProductName", "Sample"),
                DW_VERSION_STRING("040904E4", "Comments", 0),
                DW_VERSION_STRING("041104B0", "ProductName", "\xE8\xA6\x8B\xE6\x9C\xAC"));

__attribute__((visibility("default"))) uint32_t DWPI_isAvail(uint32_t hostVersion);

uint32_t DWPI_isAvail(uint32_t hostVersion) {
    return hostVersion + 1;
}
