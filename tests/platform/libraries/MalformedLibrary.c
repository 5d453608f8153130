/* Something else under the name of the version information. */
__attribute__((visibility("default"))) extern const short DW_version_info;

const short DW_version_info = 1;
