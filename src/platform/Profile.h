#pragma once

#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// What is wrong with the file that keeps the settings.
struct ProfileTrouble {
    enum class Kind { Damaged, NotReadable, NotWritable };
    Kind kind = Kind::Damaged;
    std::string file; ///< As people write it, as below.
    std::string copy; ///< Of the damaged file, as it was.
};

/// The user's settings: entries in sections, sections nested at "\" ("Settings\Images"). Section and entry
/// names may hold any text, paths included; they are told apart by case. Whatever cannot be read counts as
/// missing.
class Profile {
public:
    virtual ~Profile() = default;

    [[nodiscard]] virtual std::optional<std::string> text(const std::string& section,
                                                          const std::string& entry) const = 0;
    virtual void setText(const std::string& section, const std::string& entry, const std::string& value) = 0;
    virtual void remove(const std::string& section, const std::string& entry) = 0;

    /// Puts what has changed on the disk before it returns.
    virtual void sync() = 0;

    /// Each trouble is told once.
    [[nodiscard]] virtual std::optional<ProfileTrouble> takeTrouble() { return std::nullopt; }

    /// Names of the entries directly in `section`, in byte order.
    [[nodiscard]] virtual std::vector<std::string> entries(const std::string& section) const = 0;

    /// The text of an entry, or `fallback` when there is none.
    [[nodiscard]] std::string textOr(const std::string& section, const std::string& entry,
                                     const std::string& fallback) const;

    /// An integer entry, or `fallback` when there is none or its text is not a whole decimal number.
    [[nodiscard]] int integer(const std::string& section, const std::string& entry, int fallback) const;
    void setInteger(const std::string& section, const std::string& entry, int value);
};

} // namespace dyeworks
