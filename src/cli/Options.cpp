#include "cli/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>

namespace dyeworks {

namespace {

/// Behind every argument that ends in "]": CLI11 takes "[a,b]" for a list, and it may be a file's name. So
/// may one that ends in marks already, which gets one more.
constexpr char kMark = '\x01';

bool needsMark(const std::string& argument) {
    const std::size_t last = argument.find_last_not_of(kMark);
    return last != argument.npos && argument[last] == ']';
}

std::string marked(std::string argument) {
    if (needsMark(argument))
        argument += kMark;
    return argument;
}

std::string unmarked(std::string argument) {
    if (needsMark(argument) && argument.back() == kMark)
        argument.pop_back();
    return argument;
}

/// A character of a text, and the columns that it takes on a terminal: East Asian ones, here all that have
/// three bytes of UTF-8 beyond general punctuation, take two.
struct Character {
    std::string_view bytes;
    std::size_t columns;
};

Character firstOf(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
    return {text.substr(0, length), lead >= 0xe3 && lead < 0xf0 ? std::size_t{2} : std::size_t{1}};
}

std::size_t columnsOf(std::string_view text) {
    std::size_t columns = 0;
    while (!text.empty()) {
        const Character next = firstOf(text);
        columns += next.columns;
        text.remove_prefix(next.bytes.size());
    }
    return columns;
}

/// Takes the longest beginning of `text` that fits: it ends at a blank, or between wide characters, of which
/// a closing one begins no line.
std::string takeLine(std::string_view& text, std::size_t columns) {
    std::string_view rest = text;
    std::size_t taken = 0;
    std::size_t fitting = 0;
    while (!rest.empty() && rest.front() != '\n') {
        const Character next = firstOf(rest);
        const bool isClosing = next.bytes == "、" || next.bytes == "。" || next.bytes == "）";
        const auto at = static_cast<std::size_t>(rest.data() - text.data());
        if (next.bytes == " " || (next.columns == 2 && !isClosing))
            fitting = at;
        taken += next.columns;
        if (taken > columns && fitting > 0)
            break;
        rest.remove_prefix(next.bytes.size());
    }
    if (rest.empty() || rest.front() == '\n')
        fitting = static_cast<std::size_t>(rest.data() - text.data());
    std::string line(text.substr(0, fitting));
    text.remove_prefix(fitting);
    if (!text.empty() && (text.front() == ' ' || text.front() == '\n'))
        text.remove_prefix(1);
    return line;
}

/// CLI11's help with the columns of languages whose letters are wide.
class HelpFormatter final : public CLI::Formatter {
public:
    HelpFormatter() {
        label("Usage", say(CliText::HelpUsage));
        label("OPTIONS", say(CliText::HelpOptionsMark));
        label("SUBCOMMAND", say(CliText::HelpCommandMark));
        label("Positionals", say(CliText::HelpArguments));
        label("REQUIRED", say(CliText::HelpRequired));
    }

    std::string make_option(const CLI::Option* option, bool isPositional) const override {
        std::string name = make_option_name(option, isPositional);
        if (const std::size_t comma = name.find(','); comma != std::string::npos)
            name.insert(comma + 1, " ");
        return row(name + make_option_opts(option), make_option_desc(option));
    }
    std::string make_subcommand(const CLI::App* command) const override {
        return row(command->get_name(), command->get_description());
    }
    /// The usage first, as other programs have it.
    std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override {
        std::string text = make_usage(app, name) + "\n" + app->get_description() + "\n" +
                           make_positionals(app) + make_groups(app, mode) + make_subcommands(app, mode);
        if (!app->get_footer().empty())
            text += "\n" + app->get_footer() + "\n";
        return text;
    }

private:
    static std::string row(const std::string& left, std::string_view right) {
        constexpr std::size_t kLeftColumns = 30;
        constexpr std::size_t kAllColumns = 100;
        std::string text = "  " + left;
        std::size_t columns = columnsOf(text);
        if (columns + 2 > kLeftColumns) {
            text += '\n';
            columns = 0;
        }
        text.append(kLeftColumns - columns, ' ');
        text += takeLine(right, kAllColumns - kLeftColumns) + '\n';
        while (!right.empty())
            text += std::string(kLeftColumns, ' ') + takeLine(right, kAllColumns - kLeftColumns) + '\n';
        return text;
    }
};

/// Carries our own words through CLI11.
class WrongValue final : public CLI::ParseError {
public:
    explicit WrongValue(const std::string& words)
        : CLI::ParseError("WrongValue", words, CLI::ExitCodes::ValidationError) {}
};

[[noreturn]] void refuse(const std::string& option, const std::string& value) {
    throw WrongValue(say(CliText::WrongValue, {option, value}));
}

/// Takes what `take` says true to.
std::function<void(const std::string&, const std::string&)>
refusing(std::function<bool(const std::string&)> take) {
    return [take = std::move(take)](const std::string& name, const std::string& text) {
        if (!take(text))
            refuse(name, text);
    };
}

} // namespace

struct Options::Parser {
    CLI::App app;

    Parser(const std::string& name, CliText summary)
        : app(say(summary), name) {
        app.formatter(std::make_shared<HelpFormatter>());
        app.set_help_flag("-h,--help", say(CliText::HelpHelp));
        app.option_defaults()->group(say(CliText::HelpOptions));
        app.get_help_ptr()->group(say(CliText::HelpOptions));
        app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    }

    CLI::Option* add(const std::string& names, CliText placeholder, const std::string& help,
                     const std::function<void(const std::string& name, const std::string& value)>& take) {
        const std::string name = names.substr(names.rfind(',') + 1);
        CLI::Option* const option = app.add_option(
            names,
            [name, take](const CLI::results_t& results) {
                for (const std::string& result : results)
                    take(name, unmarked(result));
                return true;
            },
            help);
        option->type_name(say(placeholder));
        return option;
    }

    /// Which of the options CLI11's words are about. It tells no other way.
    std::string named(const std::string& words) const {
        std::string longest;
        for (const CLI::Option* const option : app.get_options()) {
            const std::string name = option->get_name();
            if (words.find(name) != std::string::npos && name.size() > longest.size())
                longest = name;
        }
        return longest;
    }
};

Options::Options(const std::string& name, CliText summary)
    : parser_(std::make_unique<Parser>(name, summary)) {}

Options::~Options() = default;

void Options::flag(const char* names, bool& value, CliText help) {
    parser_->app.add_flag(names, value, say(help));
}

void Options::text(const char* names, std::optional<std::string>& value, CliText placeholder, CliText help) {
    parser_->add(names, placeholder, say(help),
                 [&value](const std::string&, const std::string& text) { value = text; });
}

void Options::requiredText(const char* names, std::string& value, CliText placeholder, CliText help) {
    parser_
        ->add(names, placeholder, say(help),
              [&value](const std::string&, const std::string& text) { value = text; })
        ->required();
}

void Options::number(const char* names, std::optional<std::int32_t>& value, std::int32_t low,
                     std::int32_t high, CliText placeholder, CliText help) {
    parser_->add(names, placeholder, say(help),
                 [&value, low, high](const std::string& name, const std::string& text) {
                     std::int32_t number = 0;
                     const char* const end = text.data() + text.size();
                     const auto [stop, error] = std::from_chars(text.data(), end, number);
                     if (error != std::errc() || stop != end)
                         refuse(name, text);
                     if (number < low || number > high)
                         throw WrongValue(say(CliText::NumberOutside,
                                              {name, text, std::to_string(low), std::to_string(high)}));
                     value = number;
                 });
}

void Options::choice(const char* names, std::optional<std::size_t>& value, std::vector<std::string> words,
                     CliText placeholder, CliText help) {
    std::string list;
    for (const std::string& word : words)
        list += (list.empty() ? "" : ", ") + word;
    parser_->add(names, placeholder, say(help, {list}),
                 [&value, words = std::move(words), list](const std::string& name, const std::string& text) {
                     const auto found = std::ranges::find(words, text);
                     if (found == words.end())
                         throw WrongValue(say(CliText::NoSuchChoice, {name, text, list}));
                     value = static_cast<std::size_t>(found - words.begin());
                 });
}

void Options::value(const char* names, std::function<bool(const std::string&)> take, CliText placeholder,
                    CliText help) {
    parser_->add(names, placeholder, say(help), refusing(std::move(take)));
}

void Options::values(const char* names, std::function<bool(const std::string&)> take, CliText placeholder,
                     CliText help) {
    parser_->add(names, placeholder, say(help), refusing(std::move(take)))
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

void Options::file(const char* name, std::string& value, CliText help) {
    parser_->app
        .add_option(
            name,
            [&value](const CLI::results_t& results) {
                value = unmarked(results.back());
                return true;
            },
            say(help))
        ->type_name("")
        ->required();
}

void Options::files(const char* name, std::vector<std::string>& values, CliText help, bool isRequired) {
    parser_->app
        .add_option(
            name,
            [&values](const CLI::results_t& results) {
                values.clear();
                for (const std::string& result : results)
                    values.push_back(unmarked(result));
                return true;
            },
            say(help))
        ->type_name("")
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->allow_extra_args(true)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->required(isRequired);
}

void Options::command(const char* name, CliText summary) {
    parser_->app.add_subcommand(name, say(summary))->group(say(CliText::HelpCommands));
    parser_->app.require_subcommand(1);
}

void Options::footer(CliText text) {
    parser_->app.footer(say(text));
}

Options::Answer Options::parse(const std::vector<std::string>& arguments) {
    CLI::App& app = parser_->app;
    // CLI11 takes the last one first.
    std::vector<std::string> reversed;
    for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument)
        reversed.push_back(marked(*argument));
    try {
        app.parse(std::move(reversed));
        return {};
    } catch (const CLI::CallForHelp&) {
        return {Next::Show, help()};
    } catch (const WrongValue& error) {
        return {Next::Refuse, error.what()};
    } catch (const CLI::ExtrasError&) {
        std::string extra;
        for (const std::string& argument : app.remaining())
            extra += (extra.empty() ? "" : " ") + unmarked(argument);
        return {Next::Refuse, say(CliText::ExtraArgument, {extra})};
    } catch (const CLI::RequiredError&) {
        for (const CLI::Option* const option : app.get_options()) {
            if (option->get_required() && option->count() == 0)
                return {Next::Refuse, say(CliText::MissingArgument, {option->get_name()})};
        }
        return {Next::Refuse, say(CliText::MissingCommand)};
    } catch (const CLI::ParseError& error) {
        return {Next::Refuse, say(CliText::OptionWithoutValue, {parser_->named(error.what())})};
    }
}

std::string Options::help() const {
    return parser_->app.help();
}

} // namespace dyeworks
