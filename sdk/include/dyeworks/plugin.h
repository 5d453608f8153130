/* Plug-ins for Orrery Dyeworks.
 *
 * A plug-in is a shared library in the folder "PlugIns" beside the program. It exports the entry points that
 * it has something to do in, and calls the host functions, which the program exports. Plain C; every text is
 * UTF-8 and ends with a zero, and paths have "\" between their parts ("\home\kei\tex\sky.tmf").
 *
 * All entry points are called on the program's user-interface thread, and the host functions may be called on
 * that thread alone, also from inside an entry point. Called on another thread they return 0 and do nothing.
 * A plug-in that runs an event loop in an entry point needs a modal window to do so: the user could otherwise
 * close what the call is about.
 *
 * Memory. What the host passes in belongs to the host and is valid during the call. What a plug-in hands back
 * in a PlugInPicture, and what DW_getTMF and DW_getTLF hand out, belongs to whoever receives it: the record
 * and its texels or entries are blocks of their own from malloc, and are released with free. DW_newImage,
 * DW_newPalette, DW_freeImage and DW_freePalette below do that.
 *
 * Results. Of the entry points, nonzero is success. A C++ exception must not leave one; should it, the result
 * counts as 0 and the program says so.
 */
#ifndef DYEWORKS_PLUGIN_H
#define DYEWORKS_PLUGIN_H

#include "dyeworks/version_info.h"

#include <stddef.h>
#include <stdint.h>
#include <stdlib.h>
#include <string.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Of the entry points, which a plug-in defines. */
#define DWPI_ENTRY __attribute__((visibility("default")))
/* Of the host functions, which the program defines. */
#define DW_HOST __attribute__((visibility("default")))

/* ---- Records ---------------------------------------------------------------------------------------- */

/* An image. Rows lie from the bottom up, each padded to a multiple of 4 bytes. Texels of 4 bits stand two to
 * a byte, the one with the even x in the high half; texels of 16 bits and more stand with their high byte
 * first.
 */
typedef struct TmfImage {
    int32_t width; /* In texels, 0 to 65536. */
    int32_t height;
    int32_t bits;    /* 4, 8, 16, 24 or 32 a texel; images of the program have 4 or 8. */
    uint8_t* texels; /* height rows. */
} TmfImage;

/* Colour types of a palette. */
#define DW_COLOUR_RGBA 0u /* From the high bit down: 5 bits red, 5 green, 5 blue, 1 alpha. */
#define DW_COLOUR_IA 1u   /* 8 bits intensity, 8 bits alpha. */

/* A palette. */
typedef struct TlutData {
    uint32_t colourType;
    int32_t count; /* 16 or 256 entries. */
    uint16_t* entries;
} TlutData;

/* What the image calls pass. */
typedef struct PlugInPicture {
    TmfImage* image;
    TlutData* palette;     /* Null when the image has none. */
    uint32_t reserved;     /* 0. */
    int32_t paletteNumber; /* First entry of the palette that the image uses: of a 4-bit image in a palette of
                              256 entries 16 times its bank, otherwise 0, as without a palette. */
} PlugInPicture;

/* What a plug-in keeps for a project; the program only hands it back. */
typedef void* DwHandle;

/* A node below its parent: an index (the first is 0) when it is smaller than 0x10000, otherwise a pointer to
 * the node's path or text, cast to this type. */
typedef uintptr_t DwNode;

/* ---- Entry points ----------------------------------------------------------------------------------- */

/* Roles, in bits; each set bit puts the plug-in into one list of the program. */
#define DWPI_TMF_IMPORT 0x01u  /* DWPI_import; in the menu File, Import of an image. */
#define DWPI_TMF_EXPORT 0x02u  /* DWPI_export; in the menu File, Export of an image. */
#define DWPI_TMF_PREVIEW 0x04u /* DWPI_preview2 or DWPI_preview; only the first such plug-in is called. */
#define DWPI_TPF_IMPORT 0x08u  /* Shown in the About box only. */
#define DWPI_TPF_EXPORT 0x10u  /* DWPI_TPF_export; in the menu File, Export of a project. */
#define DWPI_TPF_NODE 0x20u    /* All other DWPI_TPF_ entry points. */

/* Required. Nonzero accepts the program, whose version is packed into a word: the first of its four parts in
 * the highest byte. Zero unloads the library at once. */
DWPI_ENTRY uint32_t DWPI_isAvail(uint32_t hostVersion);
/* The roles. Without it the plug-in has none. */
DWPI_ENTRY uint32_t DWPI_getType(void);

/* Locale numbers of the languages that the program speaks. */
#define DW_LOCALE_ENGLISH 1033u
#define DW_LOCALE_JAPANESE 1041u
/* Optional: the language that the program speaks, which the user may have chosen apart from the desktop's.
 * Called once, before DWPI_getType, when the plug-in has accepted the program; what it answers is not looked
 * at. Take any number that you do not know for English. */
DWPI_ENTRY uint32_t DWPI_onLanguage(uint32_t locale);

/* Import. May change the texels of in->image in place, which the program keeps whatever the result: it writes
 * them back after the call, over what DW_setTMF made of the same image meanwhile. May put an image, a palette
 * or both into *out (all null before), which the program then owns. The image becomes a floating piece, the
 * palette replaces the image's own, or is opened when it has none.
 * The image had best have the depth of in->image: of larger numbers the low bits count, and no colours are
 * matched. One without texels (width or height 0) is dropped without a word; one of a size or depth that no
 * TmfImage has, or of more than a gigabyte, counts as a failure of the plug-in, which the user is told of. */
DWPI_ENTRY uint32_t DWPI_import(const PlugInPicture* in, PlugInPicture* out);
/* Export. */
DWPI_ENTRY uint32_t DWPI_export(const PlugInPicture* picture);
/* Preview; `which` is 0 for the first and 1 for the second one. Shows the active image, and is called when it
 * or its palette changes, and when another one for which the preview is on becomes active. 0 switches the
 * preview off, for this image. An image without a palette is not shown: its previews are switched off without
 * a call. A preview that sets the image (DW_setTMF) is called for that from inside, but not for what it sets
 * in that call. */
DWPI_ENTRY uint32_t DWPI_preview2(const PlugInPicture* picture, uint32_t which);
/* The same for a library without DWPI_preview2. */
DWPI_ENTRY uint32_t DWPI_preview(const PlugInPicture* picture);
/* Optional: the preview is off, time to hide what shows it. Called once after one or more calls of the
 * preview: when the user switches it off, when it answered 0 or cannot be shown (as without a palette), when
 * the image closes, and when an image becomes active for which the preview is off. What it answers is not
 * looked at. */
DWPI_ENTRY uint32_t DWPI_previewOff(uint32_t which);

/* Commands of a node. */
#define DW_NODE_ADD 0u
#define DW_NODE_EDIT 1u
#define DW_NODE_REMOVE 2u
#define DW_NODE_PROPERTY 3u

/* What a drop does, and the keys held during a drag, in bits. */
#define DW_DROP_COPY 1u
#define DW_DROP_MOVE 2u
#define DW_DROP_LINK 4u
#define DW_KEY_SHIFT 4u
#define DW_KEY_CONTROL 8u

/* A project was made or opened; the result is the handle that all other calls for it bring. */
DWPI_ENTRY DwHandle DWPI_TPF_onNew(void);
/* After an opened project's file has been read. */
DWPI_ENTRY uint32_t DWPI_TPF_onUpdate(DwHandle handle);
/* The project's tree stands: from here on nodes can be added. In the calls before it, DW_addNode answers 1
 * and adds nothing. */
DWPI_ENTRY uint32_t DWPI_TPF_onUpdateNodes(DwHandle handle);
/* The project closes; the last call with this handle. The user is asked about what is changed here; when the
 * project then stays open, DWPI_TPF_onNew, onUpdate and onUpdateNodes are called again. */
DWPI_ENTRY uint32_t DWPI_TPF_onDelete(DwHandle handle);
/* A command on a node that is no picture. With `query` nothing is done: nonzero enables the command. Every
 * plug-in hears of every such node and answers 0 for those of others. */
DWPI_ENTRY uint32_t DWPI_TPF_onCommand(DwHandle handle, const char* node, uint32_t command, uint32_t query);
/* The node as the text that a drag carries, in lines "key=value". */
DWPI_ENTRY uint32_t DWPI_TPF_toString(DwHandle handle, const char* node, char* buffer, uint32_t size);
/* Whether `dragged`, the drag's text up to its first "=", can be dropped on the node `target`; if so, *effect
 * says what that does. */
DWPI_ENTRY uint32_t DWPI_TPF_isDroppable(DwHandle handle, const char* target, const char* dragged,
                                         uint32_t keyState, uint32_t* effect);
/* One line of a drop. The first plug-in with a nonzero result has it. */
DWPI_ENTRY uint32_t DWPI_TPF_onDrop(DwHandle handle, const char* target, const char* key, const char* value,
                                    uint32_t effect);
/* Exports the project in this file. The handle is null for a plug-in without DWPI_TPF_NODE. */
DWPI_ENTRY uint32_t DWPI_TPF_export(DwHandle handle, const char* projectPath);

/* ---- Host functions --------------------------------------------------------------------------------- */

/* Unless said otherwise these act on the open project, and return 0 when there is none, and when its file
 * could not hold what they are given: a text that is not UTF-8, a "#" in a folder. A function that fills a
 * buffer writes at most `size` bytes, the last of them a zero; longer texts are cut before the character that
 * does not fit, and a null buffer or a size of 0 or less takes nothing.
 * A null text is answered with 0, except for the parent of a node (the top of the tree), the files of
 * DW_setPicture (none) and the name of a palette (the current one). A null node is the index 0. */

/* Shows the About box until the user closes it. */
DW_HOST void DW_About(void);

/* Values by key in the project's file. A key is 1 to 256 letters, digits, "_", "@", "." and "\", the first a
 * letter, "_" or "\"; a value loses the blanks at its ends and what follows a "#". DW_setValue answers 0, and
 * changes nothing, for a key that is none, for a line break in the value, and when "key = value" is longer
 * than 511 characters. What the program itself keeps there (TPF_DIR, TMF_DIR, TLF_DIR, PICT_NUM, PICT.0 and
 * so on) it writes anew when the project is saved. */
DW_HOST uint32_t DW_getValue(const char* key, char* buffer, int32_t size);
DW_HOST uint32_t DW_setValue(const char* key, const char* value);
DW_HOST uint32_t DW_removeKey(const char* key);

/* Nodes of the tree. `parent` is the path of a node, as "\Project"; null, or one that is not found, is the
 * top of the tree: what is added there stands beside "Project". `image` is an icon, 0 to 8: pictures, folder,
 * note, flag, project, picture, palette, link, value. */
/* Index 0 adds the node first, index k behind child number k, a text behind the child called so, the empty
 * text at the end. To rename and remove, index k is child number k, and the empty text the parent itself. */
DW_HOST uint32_t DW_addNode(const char* text, int32_t image, const char* parent, DwNode after);
DW_HOST uint32_t DW_renameNode(const char* text, DwNode node, const char* parent);
DW_HOST uint32_t DW_removeNode(DwNode node, const char* parent);

/* Pictures of the project. Null pointers take nothing. The names of the files are relative to the first of
 * the project's folders (DW_getTMFDir, DW_getTLFDir) that the file is found in; those of files elsewhere are
 * whole paths. DW_getTLF looks for a palette in these folders, DW_getTMF does not: see there. DW_setPicture
 * puts its picture first in the list, one that there was as well as a new one. */
DW_HOST uint32_t DW_getPictureName(int32_t index, char* buffer, int32_t size);
DW_HOST uint32_t DW_getPicture(const char* name, char* tmf, int32_t tmfSize, char* tlf, int32_t tlfSize,
                               uint32_t* paletteNumber);
DW_HOST uint32_t DW_setPicture(const char* name, const char* tmf, const char* tlf, uint32_t paletteNumber);

/* The project's folder, and those of its images and palettes, which may be several, separated by ";". */
DW_HOST uint32_t DW_getTPFDir(char* buffer, int32_t size);
DW_HOST uint32_t DW_getTMFDir(char* buffer, int32_t size);
DW_HOST uint32_t DW_getTLFDir(char* buffer, int32_t size);
DW_HOST uint32_t DW_setTPFDir(const char* directory);
DW_HOST uint32_t DW_setTMFDir(const char* directories);
DW_HOST uint32_t DW_setTLFDir(const char* directories);

/* An image: the open one with its unsaved changes, otherwise the file. Null when it cannot be read. The name
 * is a path, and not looked for in the project's folders: put one of DW_getTMFDir before a picture's relative
 * name. Setting an open image, which must have the same size and depth, is an edit that can be undone; in
 * DWPI_import, what is set of the image that it was given is lost. No project is needed. */
DW_HOST TmfImage* DW_getTMF(const char* name);
DW_HOST uint32_t DW_setTMF(const char* name, const TmfImage* image);
/* A palette: the open one, by its whole path, or the current one for the empty name; otherwise the file of
 * that name in the project's palette folders, which must be there, as it was last saved. The palette bar
 * shows at once what was set of an open palette, images at their next refresh. */
DW_HOST TlutData* DW_getTLF(const char* name);
DW_HOST uint32_t DW_setTLF(const char* name, const TlutData* table);

/* ---- Helpers ---------------------------------------------------------------------------------------- */

/* Bytes of a row; 0 for a size or depth that no image has. */
static inline size_t DW_stride(int32_t width, int32_t bits) {
    const int fits =
        width >= 0 && width <= 65536 && (bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32);
    if (!fits)
        return 0;
    return ((size_t)width + 32u / (size_t)bits - 1u) / (32u / (size_t)bits) * 4u;
}

/* An image of zeroes, or null. Release it with DW_freeImage, or hand it back in DWPI_import. */
static inline TmfImage* DW_newImage(int32_t width, int32_t height, int32_t bits) {
    const size_t size = height < 0 || height > 65536 ? 0 : DW_stride(width, bits) * (size_t)height;
    TmfImage* image = (TmfImage*)malloc(sizeof(TmfImage));
    uint8_t* texels = (uint8_t*)calloc(size == 0 ? 1 : size, 1);
    if (image == NULL || texels == NULL || (size == 0 && width != 0 && height != 0)) {
        free(image);
        free(texels);
        return NULL;
    }
    image->width = width;
    image->height = height;
    image->bits = bits;
    image->texels = texels;
    return image;
}

static inline void DW_freeImage(TmfImage* image) {
    if (image != NULL)
        free(image->texels);
    free(image);
}

/* A palette of zeroes, or null. */
static inline TlutData* DW_newPalette(uint32_t colourType, int32_t count) {
    TlutData* palette = count == 16 || count == 256 ? (TlutData*)malloc(sizeof(TlutData)) : NULL;
    uint16_t* entries = palette == NULL ? NULL : (uint16_t*)calloc((size_t)count, sizeof(uint16_t));
    if (entries == NULL) {
        free(palette);
        return NULL;
    }
    palette->colourType = colourType;
    palette->count = count;
    palette->entries = entries;
    return palette;
}

static inline void DW_freePalette(TlutData* palette) {
    if (palette != NULL)
        free(palette->entries);
    free(palette);
}

/* The first byte of a row; row 0 is the top one. */
static inline uint8_t* DW_row(const TmfImage* image, int32_t y) {
    return image->texels + DW_stride(image->width, image->bits) * (size_t)(image->height - 1 - y);
}

/* A texel of an image of 4 or 8 bits; the caller keeps to its sides. */
static inline uint8_t DW_getTexel(const TmfImage* image, int32_t x, int32_t y) {
    const uint8_t* row = DW_row(image, y);
    if (image->bits == 8)
        return row[x];
    return (uint8_t)((x & 1) != 0 ? row[x / 2] & 0x0Fu : row[x / 2] >> 4);
}

static inline void DW_setTexel(TmfImage* image, int32_t x, int32_t y, uint8_t value) {
    uint8_t* row = DW_row(image, y);
    if (image->bits == 8)
        row[x] = value;
    else if ((x & 1) != 0)
        row[x / 2] = (uint8_t)((row[x / 2] & 0xF0u) | (value & 0x0Fu));
    else
        row[x / 2] = (uint8_t)((row[x / 2] & 0x0Fu) | ((value & 0x0Fu) << 4));
}

/* The colour of an entry as the program shows it, 8 bits a channel; channels of 5 bits have zeroes below. */
static inline void DW_colour(const TlutData* palette, int32_t entry, uint8_t rgba[4]) {
    const unsigned value = palette->entries[entry];
    if (palette->colourType == DW_COLOUR_IA) {
        rgba[0] = rgba[1] = rgba[2] = (uint8_t)(value >> 8);
        rgba[3] = (uint8_t)(value & 0xFFu);
        return;
    }
    {
        int channel;
        for (channel = 0; channel < 3; ++channel) {
            rgba[channel] = (uint8_t)((value >> (11 - 5 * channel) & 31u) << 3);
        }
    }
    rgba[3] = (value & 1u) != 0 ? 255 : 0;
}

#ifdef __cplusplus
}
#endif

#endif
