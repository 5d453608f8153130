#include "plugin/PlugInInfo.h"

#include "dyeworks/plugin.h"

#include <initializer_list>
#include <utility>

namespace dyeworks {

namespace {

using Word = std::pair<std::uint32_t, const char*>;

/// The words of the bits that are set, with "&" between them, behind the kind; empty when none is.
std::string wordsOf(std::uint32_t type, const char* kind, std::initializer_list<Word> words) {
    std::string text;
    for (const auto& [bit, word] : words) {
        if ((type & bit) != 0)
            text.append(text.empty() ? kind : "&").append(word);
    }
    return text;
}

} // namespace

std::string typeText(std::uint32_t type) {
    const std::string images =
        wordsOf(type, "TMF ",
                {{DWPI_TMF_IMPORT, "Import"}, {DWPI_TMF_EXPORT, "Export"}, {DWPI_TMF_PREVIEW, "Preview"}});
    const std::string projects = wordsOf(
        type, "TPF ", {{DWPI_TPF_NODE, "Node"}, {DWPI_TPF_IMPORT, "Import"}, {DWPI_TPF_EXPORT, "Export"}});
    if (images.empty() && projects.empty())
        return "UNKNOWN";
    return images + (images.empty() || projects.empty() ? "" : ", ") + projects;
}

} // namespace dyeworks
