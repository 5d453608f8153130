#pragma once

#include "interchange/InterchangeError.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// The bytes as text, without the byte order mark that editors put in front of UTF-8.
[[nodiscard]] std::string_view paletteText(std::span<const std::byte> file) noexcept;

/// Without the blanks and tabs at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text) noexcept;

/// Goes through the lines of a text, whichever way they end: LF, CR LF or CR.
class PaletteLines {
public:
    explicit PaletteLines(std::string_view text)
        : rest_(text) {}

    /// The next line, trimmed; nothing behind the last.
    [[nodiscard]] std::optional<std::string_view> next();
    /// Says that the line given out last is none of the format.
    [[nodiscard]] InterchangeError badLine() const;

private:
    std::string_view rest_;
    std::string_view line_;
    std::int64_t number_ = 0;
};

/// Takes a number of 0 to `most` and the blanks before it off the front of `text`. Nothing, and `text` as it
/// was, when there is none, or when something else than a blank stands behind it.
[[nodiscard]] std::optional<unsigned> takeNumber(std::string_view& text, unsigned most);

/// Letters A to Z made small.
[[nodiscard]] std::string lowered(std::string_view text);

/// UTF-8 that can be shown: what is none, and control characters, become "?".
[[nodiscard]] std::string shownText(std::string_view text);

} // namespace dyeworks
