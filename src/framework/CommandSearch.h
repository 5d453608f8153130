#pragma once

#include "framework/SearchText.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// By what a command is found.
struct SearchNames {
    std::vector<std::string> names; ///< In the user's language, how that is read, in English.
    std::vector<std::string> tips;  ///< What else it is called: "Undo Palette".
    /// The names with those of the menus around them in front: "Palette Undo". They tell commands of one name
    /// apart.
    std::vector<std::string> places;
    bool enabled = true;
    /// How much the user runs it, compared with that of others; 0 for never.
    std::size_t use = 0;
};

/// Finds commands by what is typed of them.
class CommandSearch {
public:
    /// The commands in the order of the menus.
    explicit CommandSearch(const std::vector<SearchNames>& commands);

    /// The numbers of the commands that fit, those that fit best first: by the `TextFit` of their names, then
    /// names before tips before places; of those that are equal the enabled ones first, then those that are
    /// used most, then those with short names, then in their order. Scattered letters are looked for in names
    /// alone. With nothing typed: all, those that are used first. What is typed may be Latin letters for
    /// kana.
    [[nodiscard]] std::vector<std::size_t> find(std::string_view typed) const;

private:
    struct Text {
        SearchText text;
        enum class Kind { Name, Tip, Place } kind;
    };
    struct Command {
        std::vector<Text> texts;
        bool enabled;
        std::size_t use;
    };

    struct Fit {
        std::size_t quality; ///< The lower the better.
        std::size_t length;
    };
    [[nodiscard]] static Fit fitOf(const Command& command, const std::vector<SearchText>& typed);

    std::vector<Command> commands_;
};

} // namespace dyeworks
