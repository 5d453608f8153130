#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// What image documents ask of the project that is open.
class OpenProject {
public:
    virtual ~OpenProject() = default;

    // The folder of the project's images, and of its palettes; of several the first.
    [[nodiscard]] virtual std::string imageDirectory() const = 0;
    [[nodiscard]] virtual std::string paletteDirectory() const = 0;

    /// The pictures of the image file (full path) that name another palette number, in the project's order.
    [[nodiscard]] virtual std::vector<std::string>
    PicturesOfOtherNumber(const std::string& imageFile, std::int32_t paletteNumber) const = 0;

    /// Adds a picture of these files, behind the picture called `after` (none: at the head). Without a name
    /// it gets one. Unless `silent`, the user is shown everything and may change it. False when no picture
    /// was added.
    virtual bool AddPicture(const std::optional<std::string>& name,
                            const std::optional<std::string>& imageFile,
                            const std::optional<std::string>& paletteFile, std::int32_t paletteNumber,
                            const std::optional<std::string>& after, bool silent) = 0;
};

} // namespace dyeworks
