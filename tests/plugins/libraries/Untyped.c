#include "TestPlugIn.h"

IS_CALLED("untyped");
ACCEPTS

uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    (void)in;
    (void)out;
    note("imports", "");
    return 0;
}
