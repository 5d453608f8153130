#pragma once

#include "cli/BuildPlan.h"
#include "cli/Command.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

/// Writes every picture of a project with its palette, as far as that is not done already.
class BuildCommand final : public Command {
public:
    void declare(Options& options) override;
    [[nodiscard]] ExitCode run(Console& console) override;

private:
    [[nodiscard]] BuildState readState() const;
    void tellPlan(const BuildPlan& plan, Console& console) const;
    void carryOut(BuildPlan& plan, const BuildState& before, Console& console);
    [[nodiscard]] bool write(const char* name, const std::string& text, Console& console) const;
    [[nodiscard]] bool writeDependencies(const BuildPlan& plan, Console& console) const;

    std::string project_;
    std::string folder_;
    BuildOptions options_;
    std::optional<std::size_t> format_;
    std::optional<std::int32_t> alignment_;
    std::optional<std::int32_t> jobs_;
    std::optional<std::string> depfile_;
    BuildStamp projectStamp_;
    bool all_ = false;
    bool dryRun_ = false;
};

} // namespace dyeworks
