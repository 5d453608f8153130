#include "TestPlugIn.h"

/* Busy until the user has closed a box. */

IS_CALLED("slow");
ACCEPTS
HAS_ROLES(DWPI_TMF_IMPORT)

uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    note("begins", "");
    DW_About();
    note("ends", "");
    out->image = DW_newImage(2, 2, in->image->bits);
    return out->image != NULL;
}
