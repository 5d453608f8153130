/* Version information of a library for Orrery Dyeworks.
 *
 * A library says what it is by one line of data, outside any function and once per library:
 *
 *     DW_VERSION_INFO(1, 0, 2, 0,
 *         DW_VERSION_STRING("040904E4", "ProductName", "Sky exporter"),
 *         DW_VERSION_STRING("040904E4", "InternalName", "Export &sky"),
 *         DW_VERSION_STRING("041104B0", "ProductName", "..."));
 *
 * The four numbers are the parts of the file version, each from 0 to 65535. A string belongs to a language
 * block: eight upper-case hexadecimal digits, language and code page. "040904E4" is English, "041104B0"
 * Japanese. The program looks for "ProductName", "InternalName", "CompanyName" and "Comments"; all texts are
 * UTF-8.
 * At least one string is needed.
 */
#ifndef DYEWORKS_VERSION_INFO_H
#define DYEWORKS_VERSION_INFO_H

#include <stdint.h>

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
