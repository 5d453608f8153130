#pragma once

#include "platform/Text.h"

#include <map>
#include <string>

namespace dyeworks {

/// A language made up by the test; English unless it says something.
class FakeTexts final : public Texts {
public:
    /// By English source, in every context.
    std::map<std::string, std::string> translations;
    /// Put in front of every text that has no translation, so that texts which pass through here can be
    /// told from fixed ones.
    std::string mark;

    [[nodiscard]] std::string translate(const char* context, const char* source) const override;
};

} // namespace dyeworks
