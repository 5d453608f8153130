#include "platform/fake/FakeProfile.h"

namespace dyeworks {

std::optional<std::string> FakeProfile::text(const std::string& section, const std::string& entry) const {
    const auto foundSection = sections.find(section);
    if (foundSection == sections.end())
        return std::nullopt;
    const auto foundEntry = foundSection->second.find(entry);
    if (foundEntry == foundSection->second.end())
        return std::nullopt;
    return foundEntry->second;
}

void FakeProfile::setText(const std::string& section, const std::string& entry, const std::string& value) {
    sections[section][entry] = value;
}

void FakeProfile::remove(const std::string& section, const std::string& entry) {
    const auto found = sections.find(section);
    if (found == sections.end())
        return;
    found->second.erase(entry);
    if (found->second.empty())
        sections.erase(found);
}

std::vector<std::string> FakeProfile::entries(const std::string& section) const {
    std::vector<std::string> names;
    if (const auto found = sections.find(section); found != sections.end()) {
        for (const auto& [name, value] : found->second)
            names.push_back(name);
    }
    return names;
}

} // namespace dyeworks
