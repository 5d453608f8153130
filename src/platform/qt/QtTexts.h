#pragma once

#include "platform/Text.h"

namespace dyeworks {

/// Texts in the language of the translators that `installLanguage` put into the application.
class QtTexts : public Texts {
public:
    [[nodiscard]] std::string translate(const char* context, const char* source) const override;
};

} // namespace dyeworks
