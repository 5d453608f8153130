#include "platform/CodePage932.h"

#include "platform/TextCase.h"

#include <algorithm>
#include <iconv.h>
#include <memory>

namespace dyeworks {

namespace {

constexpr const char* kUtf8 = "UTF-8";
constexpr const char* kCodePage932 = "CP932";
/// No character of one takes more than three times its bytes in the other.
constexpr std::size_t kGrowth = 3;

const auto kFailed = reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr)

std::optional<std::string> converted(std::string_view text, const char* from, const char* to) {
    const std::unique_ptr<void, int (*)(iconv_t)> conversion(
        iconv_open(to, from), [](iconv_t open) { return open == kFailed ? 0 : iconv_close(open); });
    if (conversion.get() == kFailed)
        return std::nullopt;
    std::string source(text);
    std::string result(text.size() * kGrowth, '\0');
    char* in = source.data();
    char* out = result.data();
    std::size_t left = source.size();
    std::size_t room = result.size();
    if (iconv(conversion.get(), &in, &left, &out, &room) != 0 || left != 0)
        return std::nullopt;
    result.resize(result.size() - room);
    return result;
}

} // namespace

bool isUtf8(std::string_view text) {
    constexpr char32_t kLastCharacter = 0x10FFFF;
    return std::ranges::all_of(foldedCase(text), [](char32_t code) { return code <= kLastCharacter; });
}

std::optional<std::string> fromCodePage932(std::string_view text) {
    return converted(text, kCodePage932, kUtf8);
}

std::optional<std::string> toCodePage932(std::string_view text) {
    return converted(text, kUtf8, kCodePage932);
}

} // namespace dyeworks
