#include "TestPlugIn.h"

/* Answers 0 to everything. What it puts into the output it still needs. */

IS_CALLED("failing");
ACCEPTS
HAS_ROLES(DWPI_TMF_IMPORT | DWPI_TMF_EXPORT | DWPI_TMF_PREVIEW | DWPI_TPF_EXPORT)

static uint8_t texels[4];
static uint16_t entries[16];
static TmfImage image = {1, 1, 8, texels};
static TlutData palette = {DW_COLOUR_RGBA, 16, entries};

uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    (void)in;
    out->image = &image;
    out->palette = &palette;
    note("imports", "");
    return 0;
}

uint32_t DWPI_export(const PlugInPicture* picture) {
    (void)picture;
    note("exports", "");
    return 0;
}

uint32_t DWPI_preview(const PlugInPicture* picture) {
    (void)picture;
    note("previews", "");
    return 0;
}

uint32_t DWPI_TPF_export(DwHandle handle, const char* projectPath) {
    note(handle == NULL ? "exports without handle " : "exports ", projectPath);
    return 0;
}
