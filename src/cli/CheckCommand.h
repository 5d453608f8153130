#pragma once

#include "cli/Command.h"
#include "cli/Finding.h"
#include "core/TlutData.h"
#include "project/TextureRules.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace dyeworks {

/// Tells what is wrong with projects and single files.
class CheckCommand final : public Command {
public:
    void declare(Options& options) override;
    [[nodiscard]] ExitCode run(Console& console) override;

private:
    [[nodiscard]] bool readRulesAndPalette(Console& console);
    void check(const std::string& name, Console& console);
    void checkProjectFile(const std::string& name, Console& console);
    void checkImage(const std::string& name, std::span<const std::byte> file);
    void add(Finding finding);

    std::vector<std::string> files_;
    std::optional<std::string> rulesOf_;
    std::optional<std::string> palette_;
    std::optional<std::int32_t> bank_;
    std::optional<std::size_t> least_;
    bool json_ = false;

    TextureRules rules_; ///< Of images that are named.
    std::optional<TlutData> table_;
    std::vector<Finding> findings_;
};

} // namespace dyeworks
