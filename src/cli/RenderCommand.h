#pragma once

#include "cli/Command.h"
#include "cli/ContactSheet.h"
#include "cli/RenderedPicture.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

/// Draws an image as a view shows it, or the pictures of a project beside each other.
class RenderCommand final : public Command {
public:
    void declare(Options& options) override;
    [[nodiscard]] ExitCode run(Console& console) override;

private:
    [[nodiscard]] std::optional<PixelSheet> renderImage(std::span<const std::byte> file, Console& console);
    [[nodiscard]] std::optional<PixelSheet> renderProject(Console& console) const;
    [[nodiscard]] bool attach(LoadedPicture& picture, Console& console) const;

    std::string input_;
    std::string output_;
    std::optional<std::string> palette_;
    std::optional<std::int32_t> bank_;
    std::optional<std::int32_t> zoom_;
    std::optional<std::int32_t> columns_;
    std::optional<std::int32_t> side_;
    RenderLook look_;
};

} // namespace dyeworks
