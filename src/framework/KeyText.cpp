#include "framework/KeyText.h"

#include "platform/StringId.h"
#include "platform/TextCase.h"

#include <algorithm>
#include <array>

namespace dyeworks {

namespace {

constexpr std::array<std::string_view, 4> kModifiers{"Meta", "Ctrl", "Alt", "Shift"};
constexpr std::size_t kCtrl = 1;
constexpr std::size_t kAlt = 2;
constexpr std::size_t kShift = 3;

constexpr std::array<std::string_view, 20> kNamed{
    "Esc",  "Tab", "Backtab", "Backspace", "Return", "Enter", "Ins",  "Del",    "Pause", "Print",
    "Home", "End", "Left",    "Up",        "Right",  "Down",  "PgUp", "PgDown", "Menu",  "Space"};
// That are not needed to move about.
constexpr std::array<std::string_view, 5> kFree{"Backspace", "Ins", "Del", "Pause", "Print"};

/// What Shift makes of the second on keyboards of the most common layout.
constexpr std::string_view kShifted = "~!@#$%^&*()_+{}|:\"<>?";
constexpr std::string_view kPlain = "`1234567890-=[]\\;',./";

constexpr int kFunctionKeys = 35;

struct Keys {
    std::array<bool, kModifiers.size()> modifiers{};
    std::string key;

    [[nodiscard]] std::string text() const {
        std::string all;
        for (std::size_t i = 0; i < kModifiers.size(); ++i) {
            if (modifiers[i])
                all.append(kModifiers[i]).append("+");
        }
        return all + key;
    }
};

bool isFunctionKey(std::string_view key) {
    if (key.size() < 2 || key.size() > 3 || (key[0] != 'F' && key[0] != 'f') || key[1] == '0')
        return false;
    int number = 0;
    for (const char digit : key.substr(1)) {
        if (digit < '0' || digit > '9')
            return false;
        number = 10 * number + (digit - '0');
    }
    return number <= kFunctionKeys;
}

/// Of UTF-8: one character that can be seen.
bool isCharacter(std::string_view key) {
    const auto first = static_cast<unsigned char>(key.front());
    const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
    return key.size() == length && first > ' ' && first != 0x7F && first < 0xF5 &&
           std::all_of(key.begin() + 1, key.end(), continues);
}

std::optional<std::string> normalKey(std::string_view key) {
    if (key.empty())
        return std::nullopt;
    if (isFunctionKey(key))
        return "F" + std::string(key.substr(1));
    for (const std::string_view name : kNamed) {
        if (equalIgnoringCase(name, key))
            return std::string(name);
    }
    if (!isCharacter(key))
        return std::nullopt;
    std::string character(key);
    if (character.front() >= 'a' && character.front() <= 'z')
        character.front() = static_cast<char>(character.front() - 'a' + 'A');
    return character;
}

std::optional<Keys> parsed(std::string_view text) {
    Keys keys;
    for (;;) {
        // "+" may be the key itself.
        const std::size_t plus = text.find('+', 1);
        if (text.size() < 2 || plus == std::string_view::npos || plus + 1 == text.size())
            break;
        const std::string_view word = text.substr(0, plus);
        const auto modifier = std::ranges::find_if(
            kModifiers, [&](std::string_view name) { return equalIgnoringCase(name, word); });
        if (modifier == kModifiers.end())
            return std::nullopt;
        keys.modifiers[static_cast<std::size_t>(modifier - kModifiers.begin())] = true;
        text.remove_prefix(plus + 1);
    }
    const std::optional<std::string> key = normalKey(text);
    if (!key)
        return std::nullopt;
    keys.key = *key;
    return keys;
}

bool isLetterOrDigit(const std::string& key) {
    return key.size() == 1 && ((key[0] >= 'A' && key[0] <= 'Z') || (key[0] >= '0' && key[0] <= '9'));
}

} // namespace

std::optional<std::string> normalKeys(std::string_view text) {
    const std::optional<Keys> keys = parsed(text);
    return keys ? std::optional(keys->text()) : std::nullopt;
}

std::string comparableKeys(const std::string& keys) {
    std::optional<Keys> parts = parsed(keys);
    if (!parts)
        return keys;
    if (parts->key == "Backtab")
        *parts = {{parts->modifiers[0], parts->modifiers[kCtrl], parts->modifiers[kAlt], true}, "Tab"};
    const std::size_t shifted = parts->key.size() == 1 ? kShifted.find(parts->key) : std::string::npos;
    if (shifted != std::string::npos) {
        parts->key = kPlain[shifted];
        parts->modifiers[kShift] = true;
    }
    return parts->text();
}

std::optional<StringId> whyReserved(const std::string& keys) {
    const std::optional<Keys> parts = parsed(keys);
    if (!parts)
        return std::nullopt;
    const bool movesAbout = std::ranges::find(kNamed, parts->key) != kNamed.end() &&
                            std::ranges::find(kFree, parts->key) == kFree.end();
    const bool alt = parts->modifiers[kAlt];
    if (movesAbout && !alt && !parts->modifiers[0])
        return StringId::KeysMoveAbout;
    if ((alt && !parts->modifiers[kCtrl] && isLetterOrDigit(parts->key)) || parts->key == "F10" ||
        (alt && parts->key == "F4"))
        return StringId::KeysOpenMenus;
    return std::nullopt;
}

std::optional<StringId> useInImages(const std::string& keys) {
    return keys == "I" || keys == "O" ? std::optional(StringId::KeysZoomImages) : std::nullopt;
}

} // namespace dyeworks
