#pragma once

#include <map>
#include <optional>
#include <string>

namespace dyeworks {

/// What the editor remembers in its settings file, as far as it tells how images look. A file that is
/// missing, unreadable or damaged remembers nothing.
class EditorSettings {
public:
    /// The user's own file, where the environment says that settings are.
    [[nodiscard]] static EditorSettings ofUser();
    /// From the text of a settings file.
    explicit EditorSettings(const std::string& text);

    /// The palette that an image was last attached to, both in the program's form of paths.
    [[nodiscard]] std::optional<std::string> attachedPalette(const std::string& image) const;
    /// Host folders by the letter of the drive that stands for them.
    [[nodiscard]] const std::map<char, std::string>& drives() const noexcept { return drives_; }

private:
    std::map<std::string, std::string> values_; ///< By the key as it stands in the file.
    std::map<char, std::string> drives_;
};

} // namespace dyeworks
