#include "cli/CommandList.h"

#include "cli/BuildCommand.h"
#include "cli/ConvertCommand.h"
#include "cli/InfoCommand.h"

#include <array>

namespace dyeworks {

namespace {

template <typename Made>
std::unique_ptr<Command> make() {
    return std::make_unique<Made>();
}

constexpr std::array kEntries{
    CommandEntry{"info", CliText::InfoSummary, make<InfoCommand>},
    CommandEntry{"convert", CliText::ConvertSummary, make<ConvertCommand>},
    CommandEntry{"build", CliText::BuildSummary, make<BuildCommand>},
};

} // namespace

std::span<const CommandEntry> commandEntries() {
    return kEntries;
}

} // namespace dyeworks
