#include "Step.h"

#include <fstream>
#include <sstream>

namespace dyeworks {

std::string textOf(const Step& step) {
    std::string line = step.verb;
    for (const int number : step.numbers)
        line += ' ' + std::to_string(number);
    return line;
}

std::optional<std::vector<Step>> readScript(const std::string& path) {
    std::ifstream in(path);
    if (!in)
        return std::nullopt;
    std::vector<Step> steps;
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line.substr(0, line.find('#')));
        Step step;
        if (!(words >> step.verb))
            continue;
        for (int number = 0; words >> number;)
            step.numbers.push_back(number);
        if (!words.eof())
            return std::nullopt;
        steps.push_back(std::move(step));
    }
    return steps;
}

bool writeScript(const std::string& path, const std::vector<Step>& steps, const std::string& remark) {
    std::ofstream out(path);
    std::istringstream lines(remark);
    for (std::string line; std::getline(lines, line);)
        out << "# " << line << '\n';
    for (const Step& step : steps)
        out << textOf(step) << '\n';
    return static_cast<bool>(out.flush());
}

} // namespace dyeworks
