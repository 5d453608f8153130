#pragma once

#include "cli/BuildState.h"
#include "cli/OutputFormat.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

class CTPFFile;

/// How a project's pictures are to be written.
struct BuildOptions {
    OutputFormat format = OutputFormat::Png;
    std::int32_t alignment = 8;
    bool wholePalette = false;

    /// Of everything here and of this version of the program.
    [[nodiscard]] std::uint64_t hash() const;
};

/// What there is to do for a picture.
struct BuildJob {
    /// What the state shall say. As long as it is not made, sizes and outputs are those of the last time.
    BuiltPicture picture;
    std::string stem; ///< Of its outputs: its name, with "_" for what is not good in a file's name.
    bool isCurrent = false;
    bool hasFailed = false;
    std::string file; ///< Of what failed: the file, or the picture's name, and why.
    std::string why;
};

struct BuildPlan {
    std::vector<BuildJob> jobs;                 ///< In the order of the project.
    std::vector<BuiltPicture::Output> leftOver; ///< What was made and is none of the project's any more.

    /// Only what has failed or is to be made.
    [[nodiscard]] std::size_t outOfDate() const;
};

/// Compares the project with what the last run left in the folder. Looks at files, but opens none.
[[nodiscard]] BuildPlan planBuild(const CTPFFile& project, const BuildOptions& options,
                                  const BuildState& before, const std::string& folder);

/// The names of the files that a picture of that stem becomes.
[[nodiscard]] std::vector<std::string> outputNames(OutputFormat format, const std::string& stem);

} // namespace dyeworks
