#include "framework/CommandSearch.h"

#include "framework/RomajiKana.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace dyeworks {

namespace {

constexpr std::size_t kNoFit = std::numeric_limits<std::size_t>::max();
constexpr std::size_t kKinds = 3; // Of texts.

} // namespace

CommandSearch::CommandSearch(const std::vector<SearchNames>& commands) {
    commands_.reserve(commands.size());
    for (const SearchNames& each : commands) {
        Command& command = commands_.emplace_back(Command{{}, each.enabled, each.use});
        const auto add = [&](const std::vector<std::string>& texts, Text::Kind kind) {
            for (const std::string& text : texts)
                command.texts.push_back({searchText(text), kind});
        };
        add(each.names, Text::Kind::Name);
        add(each.tips, Text::Kind::Tip);
        add(each.places, Text::Kind::Place);
    }
}

CommandSearch::Fit CommandSearch::fitOf(const Command& command, const std::vector<SearchText>& typed) {
    Fit best{kNoFit, 0};
    for (const Text& each : command.texts) {
        for (const SearchText& form : typed) {
            TextFit fit = dyeworks::fitOf(each.text, form);
            // The beginning of a place is a menu that others stand in, too.
            if (each.kind == Text::Kind::Place && fit == TextFit::Beginning)
                fit = TextFit::Words;
            const bool counts =
                fit < TextFit::Scattered || (fit == TextFit::Scattered && each.kind == Text::Kind::Name);
            const std::size_t quality =
                static_cast<std::size_t>(fit) * kKinds + static_cast<std::size_t>(each.kind);
            if (counts && quality < best.quality)
                best = {quality, each.text.letters.size()};
        }
    }
    return best;
}

std::vector<std::size_t> CommandSearch::find(std::string_view typed) const {
    std::vector<SearchText> forms{searchText(typed)};
    const SearchText kana{kanaOfRomaji(forms.front().letters), {}};
    if (!kana.letters.empty() && kana != forms.front())
        forms.push_back(kana);
    const bool nothing = forms.front().letters.empty();

    struct Found {
        std::size_t command;
        Fit fit;
    };
    std::vector<Found> found;
    for (std::size_t i = 0; i < commands_.size(); ++i) {
        const Fit fit = nothing ? Fit{0, 0} : fitOf(commands_[i], forms);
        if (fit.quality != kNoFit)
            found.push_back({i, fit});
    }
    std::ranges::stable_sort(found, {}, [&](const Found& each) {
        const Command& command = commands_[each.command];
        // The menus' order stays where nothing is looked for.
        return std::tuple(each.fit.quality, !command.enabled && !nothing, ~command.use, each.fit.length);
    });
    std::vector<std::size_t> numbers(found.size());
    std::ranges::transform(found, numbers.begin(), &Found::command);
    return numbers;
}

} // namespace dyeworks
