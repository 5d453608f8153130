#pragma once

#include "cli/Command.h"
#include "cli/FileInfo.h"

#include <string>
#include <vector>

namespace dyeworks {

/// Tells what files hold.
class InfoCommand final : public Command {
public:
    void declare(Options& options) override;
    [[nodiscard]] ExitCode run(Console& console) override;

private:
    std::vector<std::string> files_;
    bool json_ = false;
};

} // namespace dyeworks
