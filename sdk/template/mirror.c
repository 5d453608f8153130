/* A plug-in for Orrery Dyeworks: brings the image back as its mirror image. */

#include <dyeworks/plugin.h>

DW_VERSION_INFO(1, 0, 0, 0, DW_VERSION_STRING("040904E4", "ProductName", "Mirror"),
                DW_VERSION_STRING("040904E4", "InternalName", "&Mirror"),
                DW_VERSION_STRING("040904E4", "CompanyName", "Your name"),
                DW_VERSION_STRING("040904E4", "Comments", "Brings the image back as its mirror image."),
                DW_VERSION_STRING("041104B0", "ProductName", "鏡像"),
                DW_VERSION_STRING("041104B0", "InternalName", "鏡像(&M)"));

uint32_t DWPI_isAvail(uint32_t hostVersion) {
    (void)hostVersion; /* Every version will do. */
    return 1;
}

uint32_t DWPI_getType(void) {
    return DWPI_TMF_IMPORT;
}

uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    const TmfImage* image = in->image;
    TmfImage* mirror = DW_newImage(image->width, image->height, image->bits);
    int32_t x, y;
    if (mirror == NULL)
        return 0;
    for (y = 0; y < image->height; ++y) {
        for (x = 0; x < image->width; ++x)
            DW_setTexel(mirror, image->width - 1 - x, y, DW_getTexel(image, x, y));
    }
    out->image = mirror; /* From here on it is the program's. */
    return 1;
}
