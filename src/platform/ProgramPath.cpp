#include "platform/ProgramPath.h"

#include "platform/TextCase.h"

#include <cassert>
#include <cstddef>

namespace dyeworks {

namespace {

constexpr std::string_view kSeparators = "\\/";

bool startsWithDrive(std::string_view path) {
    if (path.size() < 2 || path[1] != ':')
        return false;
    return (path[0] >= 'a' && path[0] <= 'z') || (path[0] >= 'A' && path[0] <= 'Z');
}

/// Two separators, not three, and a name behind them.
bool startsWithServer(std::string_view path) {
    return path.size() > 2 && isSeparator(path[0]) && isSeparator(path[1]) && !isSeparator(path[2]);
}

/// Takes the text up to the next separator, and the separators behind it, off the front of `rest`.
std::string_view takePart(std::string_view& rest) {
    const std::string_view part = rest.substr(0, rest.find_first_of(kSeparators));
    rest.remove_prefix(part.size());
    const std::size_t next = rest.find_first_not_of(kSeparators);
    rest.remove_prefix(next == std::string_view::npos ? rest.size() : next);
    return part;
}

/// Takes a root off the front of `rest`, which has one.
ProgramPath takeRoot(std::string_view& rest) {
    ProgramPath path;
    if (startsWithDrive(rest)) {
        path.root = ProgramPath::Root::Drive;
        path.rootText = std::string(rest.substr(0, 2)) + "\\";
        rest.remove_prefix(2);
    } else if (startsWithServer(rest)) {
        path.root = ProgramPath::Root::Server;
        rest.remove_prefix(2);
        path.rootText = "\\\\" + std::string(takePart(rest));
        if (const std::string_view share = takePart(rest); !share.empty())
            path.rootText.append("\\").append(share);
    }
    return path;
}

} // namespace

std::string ProgramPath::text() const {
    std::string whole = rootText;
    for (const std::string& part : parts) {
        if (whole.back() != '\\')
            whole += '\\';
        whole += part;
    }
    return whole;
}

bool isRooted(std::string_view path) {
    return (!path.empty() && isSeparator(path.front())) || startsWithDrive(path);
}

ProgramPath parseProgramPath(std::string_view path, std::string_view currentDirectory) {
    assert(isRooted(path) || isRooted(currentDirectory));
    std::string_view rest = path;
    ProgramPath result = isRooted(path) ? takeRoot(rest) : parseProgramPath(currentDirectory, {});
    while (!rest.empty()) {
        const std::string_view part = takePart(rest);
        if (part == "..") {
            if (!result.parts.empty())
                result.parts.pop_back();
        } else if (!part.empty() && part != ".") {
            result.parts.emplace_back(part);
        }
    }
    return result;
}

bool matchesWildcard(std::string_view pattern, std::string_view name) {
    if (pattern == "*.*")
        return true;
    const std::u32string wanted = foldedCase(pattern);
    const std::u32string given = foldedCase(name);
    constexpr std::size_t kNone = std::u32string::npos;
    std::size_t p = 0;
    std::size_t n = 0;
    // Where to go on after a mismatch: the last star takes one character more. Earlier stars never need to.
    std::size_t afterStar = kNone;
    std::size_t starEnd = 0;
    while (n < given.size()) {
        if (p < wanted.size() && wanted[p] == U'*') {
            afterStar = ++p;
            starEnd = n;
        } else if (p < wanted.size() && (wanted[p] == U'?' || wanted[p] == given[n])) {
            ++p;
            ++n;
        } else if (afterStar != kNone) {
            p = afterStar;
            n = ++starEnd;
        } else {
            return false;
        }
    }
    return wanted.find_first_not_of(U'*', p) == kNone;
}

} // namespace dyeworks
