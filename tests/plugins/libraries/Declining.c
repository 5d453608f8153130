#include "TestPlugIn.h"

IS_CALLED("declining");

uint32_t DWPI_isAvail(uint32_t hostVersion) {
    char word[16];
    snprintf(word, sizeof(word), "%08X", (unsigned)hostVersion);
    note("declines ", word);
    return 0;
}

uint32_t DWPI_getType(void) {
    note("is asked on", "");
    return 0x3F;
}
