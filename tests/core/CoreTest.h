#pragma once

#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <initializer_list>
#include <string>

namespace dyeworks::test {

/// Big-endian bytes of 32-bit numbers.
inline std::string be32(std::initializer_list<std::uint32_t> values) {
    std::string bytes;
    for (const std::uint32_t value : values)
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes.push_back(static_cast<char>(value >> shift & 0xFFU));
    return bytes;
}

inline bool operator==(const Message& a, const Message& b) {
    return a.text == b.text && a.caption == b.caption && a.buttons == b.buttons && a.icon == b.icon &&
           a.owner == b.owner;
}

/// The box of a file reader.
inline Message report(const std::string& caption, const std::string& text) {
    return {text, caption, MessageButtons::Ok, MessageIcon::Stop, MessageOwner::None};
}

/// A question of the application itself.
inline Message question(const std::string& text, MessageButtons buttons) {
    return {text, "Orrery Dyeworks", buttons, MessageIcon::Question, MessageOwner::MainWindow};
}

MATCHER_P(Shows, message, message.text) {
    return arg == message;
}

} // namespace dyeworks::test
