#include "cli/thumbnailer/EditorSettings.h"

#include "platform/Files.h"
#include "platform/posix/HostFile.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace dyeworks {

// The file is one of QSettings, which is not there to read it. In a key each part of a section has its
// unusual characters written as "%" and two hexadecimal digits, or "%U" and four of a UTF-16 unit; parts are
// joined by "\". A value has escapes as in C, in quotes where it needs them.

namespace {

constexpr std::uint64_t kMostBytes = 8U << 20U;
constexpr std::string_view kImageSection = "Images\\";
constexpr std::string_view kAttachEntry = "\\Attach";

void appendHex(std::string& text, std::uint32_t value, int digits) {
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
        text += "0123456789ABCDEF"[value >> static_cast<unsigned>(shift) & 15U];
}

/// A UTF-16 unit as a key has it.
void appendUnit(std::string& key, std::uint32_t unit) {
    const bool isPlain = (unit >= '0' && unit <= '9') || (unit >= 'a' && unit <= 'z') ||
                         (unit >= 'A' && unit <= 'Z') || unit == '_' || unit == '-' || unit == '.';
    if (isPlain) {
        key += static_cast<char>(unit);
    } else if (unit < 0x100) {
        key += '%';
        appendHex(key, unit, 2);
    } else {
        key += "%U";
        appendHex(key, unit, 4);
    }
}

void appendCharacter(std::string& key, std::uint32_t character) {
    constexpr std::uint32_t kFirstPair = 0x10000;
    if (character < kFirstPair) {
        appendUnit(key, character);
        return;
    }
    appendUnit(key, 0xD800 + ((character - kFirstPair) >> 10U));
    appendUnit(key, 0xDC00 + ((character - kFirstPair) & 0x3FFU));
}

/// Takes a character off well-formed UTF-8; nothing when it is not.
std::optional<std::uint32_t> takeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 0 || lead > 0xF4 || text.size() < length)
        return std::nullopt;
    std::uint32_t character = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80)
            return std::nullopt;
        character = character << 6U | (next & 0x3FU);
    }
    text.remove_prefix(length);
    return character;
}

/// A part of a section, of which the program has escaped what keys cannot hold: by "~" and two digits, an
/// empty one by "~" alone, one that is no UTF-8 byte by byte.
std::string keyOfPart(std::string_view part) {
    std::string key;
    const auto appendEscaped = [&key](unsigned char byte) {
        appendUnit(key, '~');
        appendHex(key, byte, 2);
    };
    if (part.empty())
        appendUnit(key, '~');
    for (std::string_view rest = part; !rest.empty();) {
        if (rest.front() == '~' || rest.front() == '/') {
            appendEscaped(static_cast<unsigned char>(rest.front()));
            rest.remove_prefix(1);
        } else if (const auto character = takeCharacter(rest)) {
            appendCharacter(key, *character);
        } else {
            key.clear();
            for (const char byte : part)
                appendEscaped(static_cast<unsigned char>(byte));
            break;
        }
    }
    return key;
}

/// What the escape at the start stands for; takes it off.
std::string takeEscape(std::string_view& text) {
    constexpr std::string_view kNames = "abfnrtv0\"'\\";
    constexpr std::string_view kMeanings("\a\b\f\n\r\t\v\0\"'\\", 11);
    const char name = text.empty() ? '\\' : text.front();
    text.remove_prefix(text.empty() ? 0 : 1);
    if (name != 'x') {
        const std::size_t at = kNames.find(name);
        return {at == kNames.npos ? name : kMeanings[at]};
    }
    unsigned byte = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), byte, 16);
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return {static_cast<char>(error == std::errc() ? byte : 0U)};
}

std::string valueOf(std::string_view written) {
    constexpr std::string_view kBytes = "@ByteArray(";
    std::string value;
    while (!written.empty()) {
        const char next = written.front();
        written.remove_prefix(1);
        if (next == '\\')
            value += takeEscape(written);
        else if (next != '"')
            value += next;
    }
    if (value.starts_with(kBytes) && value.ends_with(')'))
        return value.substr(kBytes.size(), value.size() - kBytes.size() - 1);
    return value.starts_with("@@") ? value.substr(1) : value;
}

std::string textOfUser() {
    const char* const folder = std::getenv("XDG_CONFIG_HOME");
    const char* const home = std::getenv("HOME");
    std::string path;
    if (folder != nullptr && folder[0] == '/')
        path = folder;
    else if (home != nullptr)
        path = std::string(home) + "/.config";
    const auto file = openHostFile(path + "/Quillon/Orrery Dyeworks.ini");
    if (!file || file.value()->size() > kMostBytes)
        return {};
    std::string text(static_cast<std::size_t>(file.value()->size()), '\0');
    text.resize(file.value()->read(std::as_writable_bytes(std::span(text.data(), text.size()))));
    return text;
}

} // namespace

EditorSettings EditorSettings::ofUser() {
    return EditorSettings(textOfUser());
}

EditorSettings::EditorSettings(const std::string& text) {
    std::string_view section;
    for (std::string_view rest = text; !rest.empty();) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view line = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        const std::size_t equals = line.find('=');
        if (line.starts_with('[') && line.ends_with(']')) {
            section = line.substr(1, line.size() - 2);
        } else if (equals != line.npos) {
            const std::string_view key = line.substr(0, equals);
            const std::string_view value = line.substr(equals + 1);
            if (section == "Settings" && key.ends_with(kAttachEntry))
                values_[std::string(key)] = valueOf(value);
            else if (section == kDriveSection && key.size() == 4 && key.ends_with("%3A"))
                drives_[key.front()] = valueOf(value);
        }
    }
}

std::optional<std::string> EditorSettings::attachedPalette(const std::string& image) const {
    std::string key(kImageSection);
    for (std::string_view rest = image;;) {
        const std::size_t end = std::min(rest.find('\\'), rest.size());
        key += keyOfPart(rest.substr(0, end));
        if (end == rest.size())
            break;
        key += '\\';
        rest.remove_prefix(end + 1);
    }
    const auto found = values_.find(key.append(kAttachEntry));
    return found == values_.end() || found->second.empty() ? std::nullopt : std::optional(found->second);
}

} // namespace dyeworks
