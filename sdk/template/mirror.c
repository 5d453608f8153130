/* A plug-in for Orrery Dyeworks: the mirror image, brought back or written to a file. */

#include <dyeworks/plugin.h>
#include <stdio.h>

DW_VERSION_INFO(1, 0, 0, 0, DW_VERSION_STRING(DW_ENGLISH, "ProductName", "Mirror"),
                DW_VERSION_STRING(DW_ENGLISH, "InternalName", "Mirror"),
                DW_VERSION_STRING(DW_ENGLISH, "CompanyName", "Your name"),
                DW_VERSION_STRING(DW_ENGLISH, "Comments", "The mirror image, also as mirror1.pam."),
                DW_VERSION_STRING(DW_JAPANESE, "ProductName", "鏡像"),
                DW_VERSION_STRING(DW_JAPANESE, "InternalName", "鏡像"),
                DW_VERSION_STRING(DW_JAPANESE, "CompanyName", "あなたの名前"),
                DW_VERSION_STRING(DW_JAPANESE, "Comments",
                                  "左右を反転します。mirror1.pam への書き出しもできます。"));

uint32_t DWPI_isAvail(uint32_t hostVersion) {
    (void)hostVersion; /* Every version will do. */
    return 1;
}

uint32_t DWPI_getType(void) {
    return DWPI_TMF_IMPORT | DWPI_TMF_EXPORT;
}

/* A new image, or null when there is no memory. */
static TmfImage* mirrored(const TmfImage* image) {
    TmfImage* mirror = DW_newImage(image->width, image->height, image->bits);
    int32_t x, y;
    if (mirror == NULL)
        return NULL;
    for (y = 0; y < image->height; ++y) {
        for (x = 0; x < image->width; ++x)
            DW_setTexel(mirror, image->width - 1 - x, y, DW_getTexel(image, x, y));
    }
    return mirror;
}

uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out) {
    out->image = mirrored(in->image); /* From here on it is the program's. */
    return out->image != NULL;
}

/* Opens the first of mirror1.pam to mirror99.pam in the home folder that is not there yet. */
static FILE* newFile(char* path, size_t size) {
    const char* home = getenv("HOME");
    FILE* file = NULL;
    int number;
    for (number = 1; number < 100 && home != NULL && file == NULL; ++number) {
        const int length = snprintf(path, size, "%s/mirror%d.pam", home, number);
        if (length < 0 || (size_t)length >= size)
            return NULL;
        file = fopen(path, "wbx");
    }
    return file;
}

/* Writes the image as PAM, a format of a few lines of text and then 4 bytes a texel. */
static int writePam(FILE* file, const TmfImage* image, const TlutData* palette, int32_t firstEntry) {
    int32_t x, y;
    fprintf(file, "P7\nWIDTH %d\nHEIGHT %d\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n",
            (int)image->width, (int)image->height);
    for (y = 0; y < image->height; ++y) {
        for (x = 0; x < image->width; ++x) {
            const int32_t entry = firstEntry + DW_getTexel(image, x, y);
            uint8_t rgba[4] = {0, 0, 0, 255}; /* Black, where the palette has ended. */
            if (entry < palette->count)
                DW_colour(palette, entry, rgba);
            fwrite(rgba, 1, sizeof(rgba), file);
        }
    }
    return !ferror(file);
}

uint32_t DWPI_export(const PlugInPicture* picture) {
    char path[4096];
    TmfImage* mirror;
    FILE* file;
    int written;
    if (picture->palette == NULL)
        return 0;
    file = newFile(path, sizeof(path));
    if (file == NULL)
        return 0;
    mirror = mirrored(picture->image);
    written = mirror != NULL && writePam(file, mirror, picture->palette, picture->paletteNumber);
    DW_freeImage(mirror); /* This one has stayed ours. */
    if (fclose(file) != 0 || !written) {
        remove(path);
        return 0;
    }
    return 1;
}
