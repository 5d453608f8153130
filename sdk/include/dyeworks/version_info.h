/* Version information of a library for Orrery Dyeworks.
 *
 * A library says what it is by one line of data, outside any function and once per library:
 *
 *     DW_VERSION_INFO(1, 0, 2, 0,
 *         DW_VERSION_STRING(DW_ENGLISH, "ProductName", "Sky exporter"),
 *         DW_VERSION_STRING(DW_ENGLISH, "InternalName", "Sky"),
 *         DW_VERSION_STRING(DW_JAPANESE, "ProductName", "..."));
 *
 * The four numbers are the parts of the file version, each from 0 to 65535. A string belongs to a language
 * block, of which the program reads the two below. It looks for "ProductName", the name in the About box,
 * "InternalName", the text in the menus, "CompanyName" and "Comments"; all texts are UTF-8, and what is not
 * there in Japanese is shown in English. At least one string is needed.
 */
#ifndef DYEWORKS_VERSION_INFO_H
#define DYEWORKS_VERSION_INFO_H

#include <stdint.h>

/* Language blocks: eight upper-case hexadecimal digits, language and code page. */
#define DW_ENGLISH "040904E4"
#define DW_JAPANESE "041104B0"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct DW_VersionString {
    const char* block;
    const char* name;
    const char* value;
} DW_VersionString;

typedef struct DW_VersionInfo {
    uint16_t fileVersion[4];         /* First to fourth part. */
    const DW_VersionString* strings; /* Ends with a row whose block is null. */
} DW_VersionInfo;

/* Exported by the library that describes itself. */
__attribute__((visibility("default"))) extern const DW_VersionInfo DW_version_info;

#ifdef __cplusplus
}
#endif

/* clang-format off */
#define DW_VERSION_STRING(block, name, value) {block, name, value}

#define DW_VERSION_INFO(first, second, third, fourth, ...)                                                   \
    static const DW_VersionString DW_version_strings[] = {__VA_ARGS__, {0, 0, 0}};                           \
    const DW_VersionInfo DW_version_info = {{first, second, third, fourth}, DW_version_strings}
/* clang-format on */

#endif
