#include "Require.h"
#include "cli/CommandLinePlatform.h"
#include "cli/CommandList.h"
#include "cli/Options.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

using namespace dyeworks;

/// The arguments of a command for scripts, which the first byte chooses; each ends with a zero.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const CommandLinePlatform platform("en");
    if (size == 0)
        return 0;
    std::vector<std::string> arguments(1);
    for (const std::uint8_t byte : std::span(data, size).subspan(1)) {
        if (byte == 0)
            arguments.emplace_back();
        else
            arguments.back() += static_cast<char>(byte);
    }
    arguments.pop_back();

    const std::span<const CommandEntry> commands = commandEntries();
    const CommandEntry& entry = commands[data[0] % commands.size()];
    const std::unique_ptr<Command> command = entry.make();
    Options options(std::string(entry.name), entry.summary);
    command->declare(options);
    const Options::Answer answer = options.parse(arguments);
    require((answer.next == Options::Next::Run) == answer.text.empty(), "what is refused is told");
    if (answer.next == Options::Next::Show)
        require(answer.text == options.help(), "the help is the help");
    return 0;
}
