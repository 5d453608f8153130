#pragma once

#include <initializer_list>
#include <string>

namespace dyeworks {

/// A text of the string table. The names stand in platform/StringId.h, which only sources that use one
/// include: a new text then does not build the rest anew.
enum class StringId : int;

/// Finds the user's language for an English source text.
class Texts {
public:
    virtual ~Texts() = default;

    /// The translation of `source` in `context`, or `source` itself when there is none.
    [[nodiscard]] virtual std::string translate(const char* context, const char* source) const = 0;
};

/// English source of a text, as it stands in the string table.
const char* englishText(StringId id);

/// The text in the user's language.
std::string text(StringId id);

/// The text with each %1, %2 … replaced by the argument at that place.
std::string text(StringId id, std::initializer_list<std::string> arguments);

/// `pattern` with each %1, %2 … replaced by the argument at that place.
std::string filled(const std::string& pattern, std::initializer_list<std::string> arguments);

inline constexpr const char* kTextContext = "Text";

} // namespace dyeworks
