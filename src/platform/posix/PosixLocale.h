#pragma once

#include "platform/Locale.h"

#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

/// The locale of the process and its environment.
class PosixLocale final : public Locale {
public:
    /// `systemFiles` are host paths of the files that may tell the host's own locale.
    explicit PosixLocale(std::vector<std::string> systemFiles = {"/etc/locale.conf", "/etc/default/locale"})
        : systemFiles_(std::move(systemFiles)) {}

    /// From the first of LC_ALL, LC_MESSAGES and LANG that is set; English when none is.
    [[nodiscard]] int userLocale() const override;
    /// From the same variables in the first of the files that sets one; English when none does.
    [[nodiscard]] int systemLocale() const override;
    bool setRuntimeLocale(const std::string& language) override;
    /// An empty value takes the variable away. A text without "=" or without a name does nothing.
    void putEnvironment(const std::string& assignment) override;
    void rereadTimeZone() override;

private:
    std::vector<std::string> systemFiles_;
};

} // namespace dyeworks
