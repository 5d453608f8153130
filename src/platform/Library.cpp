#include "platform/Library.h"

namespace dyeworks {

std::string undecorated(const std::string& name) {
    const std::size_t at = name.rfind('@');
    if (name.empty() || name.front() != '_' || at == std::string::npos || at < 2 || at + 1 == name.size())
        return name;
    if (name.find_first_not_of("0123456789", at + 1) != std::string::npos)
        return name;
    return name.substr(1, at - 1);
}

} // namespace dyeworks
