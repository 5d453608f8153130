#include "TestPlugIn.h"

/* Changes the image from inside every call for the first preview. */

IS_CALLED("previews");
ACCEPTS
HAS_ROLES(DWPI_TMF_PREVIEW)

static const char* const names[] = {"1: ", "2: "};

uint32_t DWPI_preview2(const PlugInPicture* picture, uint32_t which) {
    char first[16];
    snprintf(first, sizeof(first), "%u", DW_getTexel(picture->image, 0, 0));
    note(names[which], first);
    if (which != 0)
        return 1;
    DW_setTexel(picture->image, 0, 0, (uint8_t)(DW_getTexel(picture->image, 0, 0) + 1));
    DW_setTMF("c:\\tex\\pic.tmf", picture->image);
    return 1;
}

uint32_t DWPI_previewOff(uint32_t which) {
    note(names[which], "off");
    return 0;
}
