#pragma once

#include "cli/CliTexts.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// What a command takes: each option with where its value goes, which must outlive this, and what its help
/// says. Names of options are as in "-o,--output". Everything that is told to the user is in the user's
/// language. Values may be any text, also one that begins with a dash, and names behind "--" may, too.
class Options {
public:
    /// `name` as it is called ("dyeworks-cli info").
    Options(const std::string& name, CliText summary);
    ~Options();
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;

    void flag(const char* names, bool& value, CliText help);
    void text(const char* names, std::optional<std::string>& value, CliText placeholder, CliText help);
    void requiredText(const char* names, std::string& value, CliText placeholder, CliText help);
    /// A whole number from `low` to `high`.
    void number(const char* names, std::optional<std::int32_t>& value, std::int32_t low, std::int32_t high,
                CliText placeholder, CliText help);
    /// One of the words; `value` becomes its place among them.
    void choice(const char* names, std::optional<std::size_t>& value, std::vector<std::string> words,
                CliText placeholder, CliText help);
    /// Any text that `take` says true to.
    void value(const char* names, std::function<bool(const std::string&)> take, CliText placeholder,
               CliText help);
    /// The same of an option that may stand more than once.
    void values(const char* names, std::function<bool(const std::string&)> take, CliText placeholder,
                CliText help);
    /// What is not an option's value: one file, or one and more.
    void file(const char* name, std::string& value, CliText help);
    void files(const char* name, std::vector<std::string>& values, CliText help, bool isRequired = true);
    /// A command that the help lists.
    void command(const char* name, CliText summary);
    /// What the help ends with.
    void footer(CliText text);

    enum class Next {
        Run,   ///< Everything has its value.
        Show,  ///< `text` is what was asked for: the help.
        Refuse ///< `text` says what is wrong.
    };
    struct Answer {
        Next next = Next::Run;
        std::string text;
    };
    [[nodiscard]] Answer parse(const std::vector<std::string>& arguments);
    [[nodiscard]] std::string help() const;

private:
    struct Parser;
    std::unique_ptr<Parser> parser_;
};

} // namespace dyeworks
