#include "cli/PaletteCommand.h"

#include "cli/Console.h"
#include "cli/NamedFile.h"
#include "cli/Options.h"
#include "cli/PaletteFiles.h"
#include "palette/EntryOperations.h"
#include "palette/EntryOrderPlan.h"
#include "palette/NumberText.h"

#include <utility>

namespace dyeworks {

void PaletteCommand::declare(Options& options) {
    options.file("PALETTE", palette_, CliText::PaletteFile);
    declareOwn(options);
    options.value(
        "-r,--range",
        [this](const std::string& text) { return (range_ = parseEntryRange(text)).has_value(); },
        CliText::TypeRange, CliText::PaletteRange);
    options.text("-o,--output", output_, CliText::TypeFolder, CliText::PaletteOutput);
}

ExitCode PaletteCommand::run(Console& console) {
    PaletteFiles files;
    if (!files.readPalette(palette_, console))
        return ExitCode::Files;
    const EntryRange range = range_.value_or(EntryRange{0, files.palette().count - 1});
    if (range.last >= files.palette().count) {
        console.fail(palette_, say(CliText::PaletteNoSuchEntry, {std::to_string(range.last)}));
        return ExitCode::Files;
    }
    for (const std::string& image : images_) {
        if (!files.readImage(image, bank_.value_or(0), console))
            return ExitCode::Files;
    }
    if (project_ && !files.readProject(*project_, console))
        return ExitCode::Files;
    if (const ExitCode code = change(files, range, console); code != ExitCode::Done)
        return code;
    const std::string folder = output_.value_or("");
    if (!folder.empty()) {
        if (const std::optional<FileError> error = makeFolder(folder)) {
            console.fail(folder, *error);
            return ExitCode::Files;
        }
    }
    return files.write(folder, console) ? ExitCode::Done : ExitCode::Files;
}

OrderCommand::OrderCommand(EntryOperation operation) {
    order_.operation = operation;
}

void OrderCommand::declareOwn(Options& options) {
    options.files("IMAGE", images_, CliText::PaletteImages, false);
    options.number("-b,--bank", bank_, 0, 15, CliText::TypeNumber, CliText::ConvertBank);
    options.text("-p,--project", project_, CliText::TypeFile, CliText::PaletteProject);
    if (order_.operation == EntryOperation::Move || order_.operation == EntryOperation::Swap) {
        options.number("--to", target_, 0, 255, CliText::TypeNumber, CliText::PaletteTo);
        return;
    }
    if (order_.operation == EntryOperation::Sort) {
        options.choice("--by", key_, {"lightness", "hue", "use", "value"}, CliText::TypeWay,
                       CliText::PaletteBy);
        options.flag("--reverse", order_.reversed, CliText::PaletteReverse);
    }
    options.flag("--in-banks", inBanks_, CliText::PaletteInBanks);
    options.text("--keep", kept_, CliText::TypeRange, CliText::PaletteKeep);
}

ExitCode OrderCommand::change(PaletteFiles& files, EntryRange range, Console& console) {
    const bool hasTarget =
        order_.operation == EntryOperation::Move || order_.operation == EntryOperation::Swap;
    if (hasTarget && !target_) {
        console.refuse(say(CliText::MissingArgument, {"--to"}));
        return ExitCode::Usage;
    }
    TlutData& palette = files.palette();
    const std::vector<AttachedImage> images = files.images();
    if (order_.operation == EntryOperation::Compact && images.empty()) {
        console.refuse(say(CliText::MissingArgument, {"IMAGE"}));
        return ExitCode::Usage;
    }
    order_.range = range;
    order_.target = target_.value_or(0);
    order_.key = static_cast<EntrySortKey>(key_.value_or(0));
    // Texels of an image that shows a bank alone cannot follow out of it.
    order_.insideBanks = inBanks_ || showBanks(images, palette);
    if (kept_) {
        const std::optional<EntrySet> kept = parseEntries(*kept_, palette.count);
        if (!kept) {
            console.refuse(say(CliText::WrongValue, {"--keep", *kept_}));
            return ExitCode::Usage;
        }
        order_.kept = *kept;
    }
    const EntryOrderPlan plan = planOf(order_, palette, images);
    if (!plan.map) {
        console.fail(files.name(), say(CliText::PaletteNoPlace));
        return ExitCode::Files;
    }
    bool canFollow = true;
    for (std::size_t i = 0; i < plan.images.size(); ++i) {
        const FollowPlan& follows = plan.images[i].follows;
        if (follows.leaving > 0) {
            console.fail(plan.images[i].name,
                         say(CliText::PaletteLeavesBank, {std::to_string(follows.leaving)}));
            canFollow = false;
        } else {
            files.renumberImage(i, follows.values);
        }
    }
    if (!canFollow)
        return ExitCode::Files;
    if (plan.map->isPermutation())
        plan.map->applyTo(palette);
    return ExitCode::Done;
}

ExitCode RampCommand::change(PaletteFiles& files, EntryRange range, Console&) {
    rampEntries(files.palette(), range);
    return ExitCode::Done;
}

void AdjustCommand::declareOwn(Options& options) {
    options.number("--hue", hue_, -EntryAdjustment::kHalfTurn, EntryAdjustment::kHalfTurn,
                   CliText::TypeNumber, CliText::PaletteHue);
    options.number("--saturation", saturation_, -EntryAdjustment::kWhole, EntryAdjustment::kWhole,
                   CliText::TypeNumber, CliText::PaletteSaturation);
    options.number("--brightness", brightness_, -EntryAdjustment::kWhole, EntryAdjustment::kWhole,
                   CliText::TypeNumber, CliText::PaletteBrightness);
    options.choice("--channel", channel_, {"red", "green", "blue", "intensity"}, CliText::TypeWay,
                   CliText::PaletteChannel);
    options.number("--steps", steps_, -255, 255, CliText::TypeNumber, CliText::PaletteSteps);
    options.number("--alpha", alpha_, -255, 255, CliText::TypeNumber, CliText::PaletteAlpha);
}

ExitCode AdjustCommand::change(PaletteFiles& files, EntryRange range, Console& console) {
    constexpr std::size_t kIntensity = 3;
    const bool isIa = files.palette().colourType == ColourType::Ia;
    if (channel_ && (*channel_ == kIntensity) != isIa) {
        console.fail(files.name(), say(CliText::PaletteNoChannel));
        return ExitCode::Files;
    }
    if (channel_.has_value() != steps_.has_value()) {
        console.refuse(say(CliText::MissingArgument, {channel_ ? "--steps" : "--channel"}));
        return ExitCode::Usage;
    }
    EntryAdjustment adjustment;
    adjustment.hue = hue_.value_or(0);
    adjustment.saturation = saturation_.value_or(0);
    adjustment.brightness = brightness_.value_or(0);
    // An intensity is kept in the first channel.
    adjustment.channel = channel_ && !isIa ? static_cast<Channel>(*channel_) : Channel::Red;
    adjustment.channelBy = steps_.value_or(0);
    adjustment.alphaBy = alpha_.value_or(0);
    adjustEntries(files.palette(), range, adjustment);
    return ExitCode::Done;
}

std::optional<EntryRange> parseEntryRange(std::string_view text) {
    const std::size_t dash = text.find('-');
    const std::optional<std::int32_t> first = parseNumber(text.substr(0, dash));
    const std::optional<std::int32_t> last = dash == text.npos ? first : parseNumber(text.substr(dash + 1));
    if (!first || !last || *first < 0 || *last < *first || *last > 255)
        return std::nullopt;
    return EntryRange{*first, *last};
}

} // namespace dyeworks
