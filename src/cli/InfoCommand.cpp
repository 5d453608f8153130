#include "cli/InfoCommand.h"

#include "cli/Console.h"
#include "cli/JsonReports.h"
#include "cli/NamedFile.h"
#include "cli/Options.h"

namespace dyeworks {

namespace {

std::string inCapitals(std::string text) {
    for (char& c : text)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return text;
}

/// "TMF, 64 × 64, 4 bits, …".
std::string lineOf(const FileInfo& info) {
    std::string line = inCapitals(info.format);
    const auto add = [&line](CliText part, std::initializer_list<std::string> values) {
        line += say(CliText::InfoBetween) + say(part, values);
    };
    if (info.texels) {
        add(CliText::InfoSize, {std::to_string(info.texels->width), std::to_string(info.texels->height)});
        if (info.texels->bits > 0)
            add(CliText::InfoBits, {std::to_string(info.texels->bits)});
        add(CliText::InfoUsed, {std::to_string(info.texels->used)});
    }
    if (info.entries) {
        add(CliText::InfoEntries,
            {std::to_string(info.entries->count), std::to_string(info.entries->different)});
        if (info.entries->type)
            line += say(CliText::InfoBetween) + label(*info.entries->type);
        if (info.entries->bank)
            add(CliText::InfoBank, {std::to_string(*info.entries->bank)});
    }
    if (info.pictures)
        add(CliText::InfoPictures, {std::to_string(*info.pictures)});
    add(CliText::InfoBytes, {std::to_string(info.bytes)});
    return line;
}

} // namespace

void InfoCommand::declare(Options& options) {
    options.files("FILE", files_, CliText::InfoFiles);
    options.flag("--json", json_, CliText::InfoJson);
}

ExitCode InfoCommand::run(Console& console) {
    std::vector<NamedInfo> all;
    for (const std::string& name : files_) {
        const Result<ByteBuffer, FileError> file = readNamed(name);
        if (!file) {
            console.fail(name, file.error());
            continue;
        }
        Result<FileInfo, std::string> info = inspect(file.value().bytes(), name);
        if (!info)
            console.fail(name, info.error());
        else if (json_)
            all.push_back({name, std::move(info).value()});
        else
            console.print(name + ": " + lineOf(info.value()) + "\n");
    }
    if (json_)
        console.print(jsonOf(all));
    return ExitCode::Done;
}

} // namespace dyeworks
