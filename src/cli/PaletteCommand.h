#pragma once

#include "cli/Command.h"
#include "palette/EntryAdjustment.h"
#include "palette/EntryOrder.h"
#include "palette/EntryRange.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

class PaletteFiles;

/// An operation on the entries of a palette file. Those that move entries take the images along that are
/// named.
class PaletteCommand : public Command {
public:
    void declare(Options& options) override;
    [[nodiscard]] ExitCode run(Console& console) override;

protected:
    virtual void declareOwn(Options& options) = 0;
    /// Changes the palette, and the images. Done, or what has been told.
    [[nodiscard]] virtual ExitCode change(PaletteFiles& files, EntryRange range, Console& console) = 0;

private:
    std::string palette_;
    std::optional<EntryRange> range_;
    std::optional<std::string> output_;

protected:
    std::vector<std::string> images_;
    std::optional<std::int32_t> bank_;
    std::optional<std::string> project_;
};

/// Sort, merge, compact, move and swap.
class OrderCommand : public PaletteCommand {
protected:
    explicit OrderCommand(EntryOperation operation);
    void declareOwn(Options& options) override;
    [[nodiscard]] ExitCode change(PaletteFiles& files, EntryRange range, Console& console) override;

private:
    EntryOrder order_;
    std::optional<std::size_t> key_;
    std::optional<std::int32_t> target_;
    std::optional<std::string> kept_;
    bool inBanks_ = false;
};

struct SortCommand final : OrderCommand {
    SortCommand()
        : OrderCommand(EntryOperation::Sort) {}
};
struct MergeCommand final : OrderCommand {
    MergeCommand()
        : OrderCommand(EntryOperation::MergeTwins) {}
};
struct CompactCommand final : OrderCommand {
    CompactCommand()
        : OrderCommand(EntryOperation::Compact) {}
};
struct MoveCommand final : OrderCommand {
    MoveCommand()
        : OrderCommand(EntryOperation::Move) {}
};
struct SwapCommand final : OrderCommand {
    SwapCommand()
        : OrderCommand(EntryOperation::Swap) {}
};

/// Even steps between the ends of a range.
class RampCommand final : public PaletteCommand {
protected:
    void declareOwn(Options&) override {}
    [[nodiscard]] ExitCode change(PaletteFiles& files, EntryRange range, Console& console) override;
};

/// Makes colours different from what they were.
class AdjustCommand final : public PaletteCommand {
protected:
    void declareOwn(Options& options) override;
    [[nodiscard]] ExitCode change(PaletteFiles& files, EntryRange range, Console& console) override;

private:
    std::optional<std::int32_t> hue_;
    std::optional<std::int32_t> saturation_;
    std::optional<std::int32_t> brightness_;
    std::optional<std::size_t> channel_;
    std::optional<std::int32_t> steps_;
    std::optional<std::int32_t> alpha_;
};

/// "8", "0-15".
[[nodiscard]] std::optional<EntryRange> parseEntryRange(std::string_view text);

} // namespace dyeworks
