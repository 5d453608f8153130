#include "cli/thumbnailer/FileAddress.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <string_view>

namespace dyeworks {

namespace {

/// Whether the text begins like "https://": such a path would have to name a folder that ends in ":".
bool isAddress(std::string_view text) {
    const std::size_t end = text.find("://");
    return end != text.npos && end > 0 && std::ranges::all_of(text.substr(0, end), [](char c) {
               return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '+' || c == '-' || c == '.';
           });
}

} // namespace

std::optional<std::string> pathOfAddress(const std::string& address) {
    constexpr std::string_view kScheme = "file:";
    constexpr std::string_view kThisHost = "localhost";
    std::string_view rest = address;
    if (!rest.starts_with(kScheme) || rest.substr(kScheme.size()).substr(0, 1) != "/")
        return isAddress(address) ? std::nullopt : std::optional(address);
    rest.remove_prefix(kScheme.size());
    if (rest.starts_with("//")) {
        rest.remove_prefix(2);
        if (rest.starts_with(kThisHost))
            rest.remove_prefix(kThisHost.size());
    }
    if (!rest.starts_with('/'))
        return std::nullopt;
    std::string path;
    while (!rest.empty()) {
        unsigned byte = static_cast<unsigned char>(rest.front());
        std::size_t length = 1;
        if (byte == '%') {
            const char* const digits = rest.data() + 1;
            const auto [end, error] =
                std::from_chars(digits, rest.data() + std::min<std::size_t>(rest.size(), 3), byte, 16);
            // No file's name holds a NUL.
            if (error != std::errc() || end != digits + 2 || byte == 0)
                return std::nullopt;
            length = 3;
        }
        path += static_cast<char>(byte);
        rest.remove_prefix(length);
    }
    return path;
}

} // namespace dyeworks
