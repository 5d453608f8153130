#pragma once

#include "platform/Locale.h"

#include <string>
#include <vector>

namespace dyeworks {

/// A locale that is set by the test and leaves the process as it is.
class FakeLocale final : public Locale {
public:
    int locale = kLocaleEnglish;
    int system = kLocaleEnglish;
    bool knowsLanguages = true; ///< What `setRuntimeLocale` answers.

    std::vector<std::string> runtimeLanguages; ///< Languages asked for, oldest first.
    std::vector<std::string> environment;      ///< Assignments made, oldest first.
    int timeZoneReads = 0;

    [[nodiscard]] int userLocale() const override { return locale; }
    [[nodiscard]] int systemLocale() const override { return system; }
    bool setRuntimeLocale(const std::string& language) override;
    void putEnvironment(const std::string& assignment) override { environment.push_back(assignment); }
    void rereadTimeZone() override { ++timeZoneReads; }
};

} // namespace dyeworks
