#include "TestPlugIn.h"

#include <stdexcept>

IS_CALLED("throwing");
ACCEPTS
HAS_ROLES(DWPI_TMF_IMPORT | DWPI_TMF_EXPORT | DWPI_TMF_PREVIEW)

namespace {

[[noreturn]] void fail(const char* what) {
    note(what, "");
    throw std::runtime_error(what);
}

} // namespace

std::uint32_t DWPI_import(const PlugInPicture* /*in*/, PlugInPicture* out) {
    // In vain: what comes with a failure is not looked at.
    static std::uint8_t texels[4];
    static TmfImage image{1, 1, 8, texels};
    out->image = &image;
    fail("import");
}
std::uint32_t DWPI_export(const PlugInPicture* /*picture*/) {
    fail("export");
}
std::uint32_t DWPI_preview2(const PlugInPicture* /*picture*/, std::uint32_t /*which*/) {
    fail("preview2");
}
