#include "platform/fake/FakeLocale.h"

namespace dyeworks {

bool FakeLocale::setRuntimeLocale(const std::string& language) {
    runtimeLanguages.push_back(language);
    return knowsLanguages;
}

} // namespace dyeworks
