#include "Play.h"
#include "Shrink.h"

#include <QApplication>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <random>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

using namespace dyeworks;

constexpr const char* kUsage =
    "usage: dyeworks_random_work --seed N (--steps N | --minutes N) [--record FILE]\n"
    "       dyeworks_random_work --script FILE...\n"
    "Plays random work in the program and compares it with a model. What fails is made as short as it can be "
    "and\n"
    "written to FILE.\n";

/// A program that hangs is ended.
constexpr unsigned kSecondsOfARun = 240;
constexpr std::size_t kShortest = 20;
constexpr std::size_t kLongest = 500;

struct Options {
    std::uint64_t seed = 1;
    std::size_t steps = 0;
    int minutes = 0;
    std::string record = "random-work.script";
    std::vector<std::string> scripts;
    bool plays = false; ///< Is the process that may fail.
};

std::optional<Options> optionsOf(int argc, char** argv) {
    Options options;
    bool scripts = false;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        scripts = word == "--script" || (scripts && !word.starts_with("--"));
        if (word == "--plays") {
            options.plays = true;
            continue;
        }
        if (word == "--script" && i + 1 < argc)
            continue;
        if (scripts) {
            options.scripts.push_back(word);
            continue;
        }
        if (i + 1 == argc)
            return std::nullopt;
        const char* const value = argv[++i];
        if (word == "--seed")
            options.seed = std::strtoull(value, nullptr, 10);
        else if (word == "--steps")
            options.steps = std::strtoull(value, nullptr, 10);
        else if (word == "--minutes")
            options.minutes = std::atoi(value);
        else if (word == "--record")
            options.record = value;
        else
            return std::nullopt;
    }
    if (options.scripts.empty() && options.steps == 0 && options.minutes == 0)
        return std::nullopt;
    return options;
}

/// Runs this program with other arguments. False when it fails.
bool runSelf(const std::vector<std::string>& arguments, bool quiet) {
    const pid_t child = fork();
    if (child == 0) {
        if (quiet) {
            const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
            dup2(nowhere, STDOUT_FILENO);
            dup2(nowhere, STDERR_FILENO);
        }
        std::string self = "/proc/self/exe";
        std::vector<std::string> words = arguments;
        words.insert(words.begin(), self);
        std::vector<char*> pointers;
        for (std::string& word : words)
            pointers.push_back(word.data());
        pointers.push_back(nullptr);
        execv(self.c_str(), pointers.data());
        _exit(127);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

int playScripts(const Options& options) {
    for (const std::string& path : options.scripts) {
        const auto steps = readScript(path);
        if (!steps) {
            std::fprintf(stderr, "%s is no script\n", path.c_str());
            return 1;
        }
        alarm(kSecondsOfARun);
        const Played played = playScript(*steps);
        if (!played.difference.empty()) {
            std::fprintf(stderr, "%s\n%s", path.c_str(), played.difference.c_str());
            return 1;
        }
    }
    return 0;
}

/// Each run of the program is recorded step by step, so that what is there after a crash is what led to it.
int playSeed(const Options& options) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + std::chrono::minutes(options.minutes);
    std::mt19937_64 random(options.seed);
    std::size_t done = 0;
    int runs = 0;
    while (options.minutes > 0 ? Clock::now() < end : done < options.steps) {
        std::FILE* const record = std::fopen(options.record.c_str(), "w");
        if (record == nullptr) {
            std::fprintf(stderr, "%s cannot be written\n", options.record.c_str());
            return 1;
        }
        std::size_t steps = kShortest + random() % (kLongest - kShortest);
        if (options.minutes == 0)
            steps = std::min(steps, options.steps - done);
        alarm(kSecondsOfARun);
        const Played played = playAtRandom(random(), steps, [&](const Step& step) {
            std::fprintf(record, "%s\n", textOf(step).c_str());
            std::fflush(record);
        });
        std::fclose(record);
        ++runs;
        done += played.steps;
        if (!played.difference.empty()) {
            std::fprintf(stderr, "seed %llu, run %d, %s", static_cast<unsigned long long>(options.seed), runs,
                         played.difference.c_str());
            return 1;
        }
    }
    std::printf("seed %llu: %zu steps in %d runs without a difference\n",
                static_cast<unsigned long long>(options.seed), done, runs);
    return 0;
}

/// Lets another process play, which may crash, and makes short what failed there.
int superviseSeed(const Options& options) {
    std::vector<std::string> arguments{"--plays",
                                       "--seed",
                                       std::to_string(options.seed),
                                       "--steps",
                                       std::to_string(options.steps),
                                       "--minutes",
                                       std::to_string(options.minutes),
                                       "--record",
                                       options.record};
    if (runSelf(arguments, false)) {
        static_cast<void>(std::remove(options.record.c_str()));
        return 0;
    }
    const auto steps = readScript(options.record);
    if (!steps)
        return 1;
    std::fprintf(stderr, "making %zu steps shorter\n", steps->size());
    const std::string trial = options.record + ".trial";
    const auto fails = [&](const std::vector<Step>& fewer) {
        return writeScript(trial, fewer, {}) && !runSelf({"--plays", "--script", trial}, true);
    };
    if (!fails(*steps)) {
        std::fprintf(stderr, "played again, it does not fail\n");
    } else {
        const std::vector<Step> fewest = shrunk(*steps, fails);
        static_cast<void>(writeScript(options.record, fewest, "Of seed " + std::to_string(options.seed)));
        static_cast<void>(runSelf({"--plays", "--script", options.record}, false));
    }
    static_cast<void>(std::remove(trial.c_str()));
    std::fprintf(stderr, "%s holds the steps\n", options.record.c_str());
    return 1;
}

/// What an offscreen display does not do is nothing to tell of.
void tell(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char** argv) {
    const std::optional<Options> options = optionsOf(argc, argv);
    if (!options) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    if (options->scripts.empty() && !options->plays)
        return superviseSeed(*options);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(tell);
    const QApplication application(argc, argv);
    return options->scripts.empty() ? playSeed(*options) : playScripts(*options);
}
