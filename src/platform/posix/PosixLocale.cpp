#include "platform/posix/PosixLocale.h"

#include <array>
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <stdlib.h>
#include <string_view>
#include <vector>

namespace dyeworks {

namespace {

struct Language {
    std::string_view name; ///< As in a locale's name, before country, encoding and variant.
    int number;
};

constexpr std::array kLanguages{
    Language{"ja", kLocaleJapanese}, Language{"japanese", kLocaleJapanese}, Language{"en", kLocaleEnglish},
    Language{"C", kLocaleEnglish},   Language{"POSIX", kLocaleEnglish},
};

constexpr std::array kVariables{"LC_ALL", "LC_MESSAGES", "LANG"};

std::string_view localeName() {
    for (const char* variable : kVariables) {
        const char* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0')
            return value;
    }
    return "C";
}

/// What a file of shell assignments ('LANG="ja_JP.UTF-8"') sets the variable to, or "".
std::string assignedIn(const std::string& file, std::string_view variable) {
    std::ifstream lines(file);
    std::string value;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with(variable) || line.size() <= variable.size() || line[variable.size()] != '=')
            continue;
        value = line.substr(variable.size() + 1);
        std::erase_if(value, [](char letter) { return letter == '"' || letter == '\''; });
    }
    return value;
}

int numberOf(std::string_view localeName) {
    const std::string_view language = localeName.substr(0, localeName.find_first_of("_.@"));
    for (const Language& known : kLanguages) {
        if (known.name == language)
            return known.number;
    }
    return 0;
}

/// Names under which hosts know a language; only in UTF-8, as every text of the program is.
std::vector<std::string> hostNames(const std::string& language) {
    if (language == "Japanese")
        return {"ja_JP.UTF-8", "ja_JP.utf8", "ja.UTF-8"};
    return {language};
}

} // namespace

int PosixLocale::userLocale() const {
    return numberOf(localeName());
}

int PosixLocale::systemLocale() const {
    for (const std::string& file : systemFiles_) {
        for (const char* variable : kVariables) {
            if (const std::string name = assignedIn(file, variable); !name.empty())
                return numberOf(name);
        }
    }
    return kLocaleEnglish;
}

bool PosixLocale::setRuntimeLocale(const std::string& language) {
    for (const std::string& name : hostNames(language)) {
        if (std::setlocale(LC_ALL, name.c_str()) == nullptr)
            continue;
        // Numbers in files and settings are read and written with a full stop, by us and by the libraries
        // below us, whatever language the user speaks.
        (void)std::setlocale(LC_NUMERIC, "C");
        return true;
    }
    return false;
}

void PosixLocale::putEnvironment(const std::string& assignment) {
    const std::size_t equals = assignment.find('=');
    if (equals == std::string::npos || equals == 0)
        return;
    const std::string name = assignment.substr(0, equals);
    const std::string value = assignment.substr(equals + 1);
    if (value.empty())
        (void)::unsetenv(name.c_str());
    else
        (void)::setenv(name.c_str(), value.c_str(), 1);
}

void PosixLocale::rereadTimeZone() {
    ::tzset();
}

} // namespace dyeworks
