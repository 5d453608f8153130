#include "cli/CommandList.h"

#include "cli/BuildCommand.h"
#include "cli/CheckCommand.h"
#include "cli/ConvertCommand.h"
#include "cli/InfoCommand.h"
#include "cli/PaletteCommand.h"
#include "cli/RenderCommand.h"

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
    CommandEntry{"check", CliText::CheckSummary, make<CheckCommand>},
    CommandEntry{"render", CliText::RenderSummary, make<RenderCommand>},
    CommandEntry{"palette sort", CliText::PaletteSortSummary, make<SortCommand>},
    CommandEntry{"palette merge", CliText::PaletteMergeSummary, make<MergeCommand>},
    CommandEntry{"palette compact", CliText::PaletteCompactSummary, make<CompactCommand>},
    CommandEntry{"palette move", CliText::PaletteMoveSummary, make<MoveCommand>},
    CommandEntry{"palette swap", CliText::PaletteSwapSummary, make<SwapCommand>},
    CommandEntry{"palette ramp", CliText::PaletteRampSummary, make<RampCommand>},
    CommandEntry{"palette adjust", CliText::PaletteAdjustSummary, make<AdjustCommand>},
};

} // namespace

std::span<const CommandEntry> commandEntries() {
    return kEntries;
}

} // namespace dyeworks
