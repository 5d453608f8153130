#pragma once

#include "platform/Profile.h"

#include <map>
#include <string>

namespace dyeworks {

/// Settings in memory.
class FakeProfile final : public Profile {
public:
    using Section = std::map<std::string, std::string>;

    /// By the section's whole name ("Settings\Images"); open to tests for preparing and comparing.
    std::map<std::string, Section> sections;

    [[nodiscard]] std::optional<std::string> text(const std::string& section,
                                                  const std::string& entry) const override;
    void setText(const std::string& section, const std::string& entry, const std::string& value) override;
    void remove(const std::string& section, const std::string& entry) override;
    void sync() override {}
    [[nodiscard]] std::vector<std::string> entries(const std::string& section) const override;
};

} // namespace dyeworks
