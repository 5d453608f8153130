#include "project/PictureName.h"

#include "project/CTPFFile.h"

#include <charconv>
#include <cstdint>

namespace dyeworks {

namespace {

constexpr const char* kFirstName = "Picture0";

} // namespace

bool isPictureName(const std::string& name) {
    return !name.empty() && name.find_first_of("=\\") == name.npos && CTPFFile::holdsPicture(name, {});
}

std::string freePictureName(const std::string& proposed,
                            const std::function<bool(const std::string& name)>& isTaken) {
    std::string name = proposed.empty() ? kFirstName : proposed;
    std::string base = name;
    std::uint64_t next = 0;
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    std::uint64_t number = 0;
    // A number beyond all counting is a part of the name.
    if (digits < name.size() &&
        std::from_chars(name.data() + digits, name.data() + name.size(), number).ec == std::errc()) {
        base = name.substr(0, digits);
        next = number + 1;
    }
    while (isTaken(name))
        name = base + std::to_string(next++);
    return name;
}

} // namespace dyeworks
