#include "TestPlugIn.h"

/* Hands back a record that is wrong, or spoils one of the host, in another way at each call; then answers 0.
 */

IS_CALLED("bad records");
ACCEPTS
HAS_ROLES(DWPI_TMF_IMPORT)

static const struct {
    int32_t width, height, bits;
    int hasTexels;
} images[] = {{-4, 4, 8, 1}, {4, 65537, 8, 1}, {4, 4, 5, 1}, {4, 4, 8, 0}};

static const struct {
    uint32_t colourType;
    int32_t count;
    int hasEntries;
} palettes[] = {{DW_COLOUR_RGBA, 15, 1}, {2, 16, 1}, {DW_COLOUR_RGBA, 16, 0}, {DW_COLOUR_RGBA, -1, 1}};

static uint32_t wrongImage(int number, PlugInPicture* out) {
    out->image = DW_newImage(4, 4, 8);
    if (images[number].hasTexels == 0) {
        free(out->image->texels);
        out->image->texels = NULL;
    }
    out->image->width = images[number].width;
    out->image->height = images[number].height;
    out->image->bits = images[number].bits;
    return 1;
}

static uint32_t wrongPalette(int number, PlugInPicture* out) {
    out->palette = DW_newPalette(DW_COLOUR_RGBA, 16);
    if (palettes[number].hasEntries == 0) {
        free(out->palette->entries);
        out->palette->entries = NULL;
    }
    out->palette->colourType = palettes[number].colourType;
    out->palette->count = palettes[number].count;
    return 1;
}

uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    static int calls = 0;
    const int call = calls++;
    if (call < 8)
        return call < 4 ? wrongImage(call, out) : wrongPalette(call - 4, out);
    if (call == 8)
        in->image->width = 1 << 20;
    else if (call == 9)
        in->image->texels = NULL;
    else if (call == 10)
        in->palette->count = 1 << 20;
    else if (call == 11)
        in->palette->entries = NULL;
    return call < 12;
}
