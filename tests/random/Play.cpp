#include "Play.h"

#include "Desk.h"

#include <random>

namespace dyeworks {

namespace {

/// Files are compared after so many steps.
constexpr std::size_t kFilesEvery = 16;

class Player {
public:
    Player() { played.difference = desk_.differences(true); }

    /// False when it is to end.
    bool play(const Step& step) {
        if (!played.difference.empty())
            return false;
        ++played.steps;
        if (desk_.play(step))
            played.difference = desk_.differences(played.steps % kFilesEvery == 0);
        else
            played.difference = "no such verb\n";
        if (!played.difference.empty())
            played.difference = "after step " + std::to_string(played.steps) + ", \"" + textOf(step) +
                                "\":\n" + played.difference;
        return played.difference.empty();
    }
    void end() {
        if (played.difference.empty())
            played.difference = desk_.differences(true);
    }

    Played played;

private:
    Desk desk_;
};

} // namespace

Played playScript(const std::vector<Step>& steps) {
    Player player;
    for (const Step& step : steps) {
        if (!player.play(step))
            break;
    }
    player.end();
    return player.played;
}

Played playAtRandom(std::uint64_t seed, std::size_t steps, const std::function<void(const Step&)>& begins) {
    std::mt19937_64 random(seed);
    const auto below = [&](int limit) {
        return static_cast<int>(random() % static_cast<std::uint64_t>(limit));
    };
    const std::vector<const Verb*> verbs = allVerbs();
    int weights = 0;
    for (const Verb* const verb : verbs)
        weights += verb->weight;
    const auto chosen = [&] {
        int dice = below(weights);
        for (const Verb* const verb : verbs) {
            dice -= verb->weight;
            if (dice < 0)
                return verb;
        }
        return verbs.front();
    };
    // Most work begins with a palette and an image.
    static constexpr const char* kFirst[] = {"open-palette", "open", "attach"};
    Player player;
    for (std::size_t i = 0; i < steps; ++i) {
        const Verb* verb = chosen();
        for (const Verb* const first : verbs) {
            if (i < std::size(kFirst) && first->name == std::string(kFirst[i]))
                verb = first;
        }
        Step step{verb->name, {}};
        for (const int limit : verb->limits)
            step.numbers.push_back(below(limit));
        begins(step);
        if (!player.play(step))
            break;
    }
    player.end();
    return player.played;
}

} // namespace dyeworks
