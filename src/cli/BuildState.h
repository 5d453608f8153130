#pragma once

#include "cli/BuildStamp.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace dyeworks {

/// What was made of a picture of a project, and from what.
struct BuiltPicture {
    std::string name;
    std::string image; ///< Host paths. The palette's is empty where there is none.
    std::string palette;
    std::int32_t bank = 0; ///< As the project says.
    BuildStamp imageStamp;
    BuildStamp paletteStamp;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t bits = 0;
    struct Output {
        std::string name; ///< In the folder of the build.
        BuildStamp stamp;
    };
    std::vector<Output> outputs;
};

/// What the last run left in a folder.
struct BuildState {
    std::uint64_t options = 0; ///< A hash of what else the outputs depend on.
    BuildStamp project;
    BuildStamp index;                   ///< Of the list that was written beside the outputs.
    std::vector<BuiltPicture> pictures; ///< In the order of the project.
};

/// Its bytes, for this kind of machine.
[[nodiscard]] std::string serialise(const BuildState& state);
/// Nothing for bytes that are none.
[[nodiscard]] std::optional<BuildState> parseBuildState(std::span<const std::byte> bytes);

} // namespace dyeworks
