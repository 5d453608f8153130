#include "framework/PathText.h"

#include "platform/TextCase.h"

#include <algorithm>

namespace dyeworks {

namespace {

constexpr std::string_view kSeparators = "\\/";
constexpr std::string_view kEllipsis = "...";

std::string cutInMiddle(std::string_view name, std::size_t maxLength) {
    const std::size_t kept = maxLength - std::min(maxLength, kEllipsis.size());
    // The tail gets the odd character: it holds the extension.
    const std::size_t tail = kept - kept / 2;
    const std::size_t tailAt = firstCharacters(name, characterCount(name) - tail).size();
    return std::string(firstCharacters(name, kept / 2)) + std::string(kEllipsis) +
           std::string(name.substr(tailAt));
}

} // namespace

std::string_view fileNameOf(std::string_view path) {
    return path.substr(path.find_last_of(kSeparators) + 1); // npos + 1 is 0
}

std::string_view extensionOf(std::string_view path) {
    const std::string_view name = fileNameOf(path);
    const std::size_t stop = name.rfind('.');
    return stop == std::string_view::npos ? std::string_view{} : name.substr(stop);
}

std::string abbreviatedPath(const std::string& path, std::size_t maxLength) {
    if (characterCount(path) <= maxLength)
        return path;

    const std::string_view whole = path;
    const std::size_t lastSeparator = whole.find_last_of(kSeparators);
    if (lastSeparator != std::string_view::npos) {
        // A drive does not count as the first folder.
        const std::size_t driveEnd = whole.size() > 2 && whole[1] == ':' ? 2 : 0;
        const std::size_t headEnd = whole.find_first_of(kSeparators, driveEnd + 1);
        const std::string_view head = whole.substr(0, headEnd);
        for (std::size_t tail = headEnd; tail < lastSeparator;) {
            tail = whole.find_first_of(kSeparators, tail + 1);
            std::string candidate(head);
            candidate += whole[tail];
            candidate += kEllipsis;
            candidate += whole.substr(tail);
            if (characterCount(candidate) <= maxLength)
                return candidate;
        }
    }
    const std::string_view name = fileNameOf(whole);
    return characterCount(name) <= maxLength ? std::string(name) : cutInMiddle(name, maxLength);
}

} // namespace dyeworks
