#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace dyeworks::plugins {

/// The project that the host functions of this program tell of.
struct Host {
    struct Picture {
        std::string name, image, palette;
        std::uint32_t bank;
    };
    std::vector<Picture> pictures;
    std::map<std::string, int> images;   ///< Path to depth.
    std::map<std::string, int> palettes; ///< Path or name to number of entries.
};

extern Host host;

} // namespace dyeworks::plugins
