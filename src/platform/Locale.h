#pragma once

#include <string>

namespace dyeworks {

inline constexpr int kLocaleJapanese = 1041;
inline constexpr int kLocaleEnglish = 1033;

class Locale {
public:
    virtual ~Locale() = default;

    /// The user's locale as a Windows language identifier (1033 English, 1041 Japanese); 0 when the host's
    /// locale has none that the program knows.
    [[nodiscard]] virtual int userLocale() const = 0;

    /// That of the host itself, for all its users, in the same numbers.
    [[nodiscard]] virtual int systemLocale() const = 0;

    /// The user's locale, or the host's where the program knows none of the user.
    [[nodiscard]] int defaultLocale() const {
        const int user = userLocale();
        return user == 0 ? systemLocale() : user;
    }

    /// Sets the C runtime's locale to the named language ("Japanese"). False when the host has none such.
    virtual bool setRuntimeLocale(const std::string& language) = 0;

    /// Puts "NAME=value" into the process's environment.
    virtual void putEnvironment(const std::string& assignment) = 0;

    /// Makes the time functions read the time zone from the environment again.
    virtual void rereadTimeZone() = 0;
};

} // namespace dyeworks
