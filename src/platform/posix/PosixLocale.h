#pragma once

#include "platform/Locale.h"

namespace dyeworks {

/// The locale of the process and its environment.
class PosixLocale final : public Locale {
public:
    /// From the first of LC_ALL, LC_MESSAGES and LANG that is set; English when none is.
    [[nodiscard]] int userLocale() const override;
    bool setRuntimeLocale(const std::string& language) override;
    /// An empty value takes the variable away. A text without "=" or without a name does nothing.
    void putEnvironment(const std::string& assignment) override;
    void rereadTimeZone() override;
};

} // namespace dyeworks
