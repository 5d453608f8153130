#include "TestPlugIn.h"

IS_CALLED("same pointers");
ACCEPTS
HAS_ROLES(DWPI_TMF_IMPORT)

uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    *out = *in;
    return 1;
}
