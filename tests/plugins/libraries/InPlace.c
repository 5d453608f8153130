#include "TestPlugIn.h"

/* Adds 16 to every texel of an 8-bit image, and answers 1, or 0 when that brings the first one past 32. */

IS_CALLED("in place");
ACCEPTS
HAS_ROLES(DWPI_TMF_IMPORT)

uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    int32_t x;
    int32_t y;
    (void)out;
    for (y = 0; y < in->image->height; ++y) {
        for (x = 0; x < in->image->width; ++x)
            DW_setTexel(in->image, x, y, (uint8_t)(DW_getTexel(in->image, x, y) + 16));
    }
    return DW_getTexel(in->image, 0, 0) <= 32;
}
