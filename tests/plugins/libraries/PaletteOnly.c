#include "TestPlugIn.h"

IS_CALLED("palette only");
ACCEPTS
HAS_ROLES(DWPI_TMF_IMPORT)

uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    (void)in;
    out->palette = DW_newPalette(DW_COLOUR_IA, 16);
    if (out->palette == NULL)
        return 0;
    out->palette->entries[0] = 0x80FF;
    out->palette->entries[15] = 0x1234;
    return 1;
}
