#include "TestPlugIn.h"

/* Brings an image as wide as the number of its file, "07.so", and two, and as high as the calls so far and
 * one. */

IS_CALLED("importer");
ACCEPTS
HAS_ROLES(DWPI_TMF_IMPORT)

uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    static int32_t calls = 0;
    (void)in;
    out->image = DW_newImage((int32_t)strtol(ownFile(), NULL, 10) + 2, ++calls + 1, 8);
    return out->image != NULL;
}
