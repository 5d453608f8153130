#pragma once

#include "platform/Text.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace dyeworks {

/// Texts of one language, sorted by context and English source. They stand in one piece, and the rows hold
/// places in it: a table of pointers would have to be put right at every start of the program.
struct TextTable {
    struct Row {
        std::uint32_t context; ///< Places where texts begin; each ends with a NUL.
        std::uint32_t source;
        std::uint32_t translation;
    };
    const char* texts = nullptr;
    std::span<const Row> rows;
};

/// Made from translations/ by the build.
extern const TextTable kJapaneseTexts;

/// Translates by a table, or not at all.
class TableTexts final : public Texts {
public:
    /// `table` is null for English, and otherwise must outlive this.
    explicit TableTexts(const TextTable* table)
        : table_(table) {}

    [[nodiscard]] std::string translate(const char* context, const char* source) const override;

private:
    const TextTable* table_;
};

} // namespace dyeworks
