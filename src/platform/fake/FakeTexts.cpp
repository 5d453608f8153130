#include "platform/fake/FakeTexts.h"

namespace dyeworks {

std::string FakeTexts::translate(const char* /*context*/, const char* source) const {
    const auto found = translations.find(source);
    return found == translations.end() ? mark + source : found->second;
}

} // namespace dyeworks
