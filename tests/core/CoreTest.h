#pragma once

#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <initializer_list>
#include <string>

namespace dyeworks {

using testing::ElementsAre;
using testing::IsEmpty;

/// The 64 bytes that a palette or image file begins with: big-endian 32-bit numbers, then zeroes.
inline std::string header(std::initializer_list<std::uint32_t> numbers) {
    std::string bytes;
    for (const std::uint32_t number : numbers)
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes.push_back(static_cast<char>(number >> shift & 0xFFU));
    bytes.resize(64);
    return bytes;
}

/// The box of a file reader.
MATCHER_P2(Reports, caption, text, "") {
    return arg.caption == caption && arg.text == text && arg.buttons == MessageButtons::Ok &&
           arg.icon == MessageIcon::Stop && arg.owner == MessageOwner::None;
}

/// A question of the application itself.
MATCHER_P2(Asks, text, buttons, "") {
    return arg.caption == "Orrery Dyeworks" && arg.text == text && arg.buttons == buttons &&
           arg.icon == MessageIcon::Question && arg.owner == MessageOwner::MainWindow;
}

} // namespace dyeworks
