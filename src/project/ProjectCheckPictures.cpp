#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "platform/Platform.h"
#include "platform/TextCase.h"
#include "project/NamedFile.h"
#include "project/PathHelpers.h"
#include "project/ProjectCheck.h"

#include <algorithm>
#include <array>
#include <new>
#include <span>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::int32_t kMostBanks = 16;
constexpr std::int32_t kMostEntries = 256;

/// Of an 8-bit image.
std::int32_t highestIndex(const TmfImage& image) {
    std::byte highest{0};
    for (std::int32_t y = 0; y < image.height; ++y) {
        const auto row = image.block().subspan(static_cast<std::size_t>(y * image.stride()),
                                               static_cast<std::size_t>(image.width));
        for (const std::byte index : row)
            highest = std::max(highest, index);
    }
    return std::to_integer<std::int32_t>(highest);
}

} // namespace

/// The file of the picture, if it exists.
std::optional<std::string> ProjectCheck::find(std::size_t index, bool palette) {
    const PictureEntry& entry = pictures_[index].entry;
    const std::string& name = palette ? entry.tlfFile : entry.tmfFile;
    const std::string& directories = palette ? paletteDirectories_ : imageDirectories_;
    const auto addOne = [&](ProjectProblem problem, const std::string& file, const std::string& other = {}) {
        addToPicture(index, {.problem = problem, .file = file, .ofPalette = palette, .other = other});
    };
    if (name.empty()) {
        addOne(ProjectProblem::NoFile, {});
        return std::nullopt;
    }
    std::string path;
    if (!PathSearch(path, directories, name, true)) {
        missing_.push_back({index, palette, placeOf(directories, name)});
        return std::nullopt;
    }
    if (namedBy_.try_emplace(platform().files().hostPath(path), index).second)
        named_.push_back(path);
    if (const auto spelling = otherSpelling(name, path))
        addOne(ProjectProblem::CaseOfName, path, *spelling);
    if (!isInside(tpfDir_, path) && !isInsideAny(palette ? paletteFolders_ : imageFolders_, path))
        addOne(ProjectProblem::FileOutside, path);
    return path;
}

std::optional<ImageShape> ProjectCheck::readShape(std::size_t index, const std::string& path) {
    ProjectFinding unreadable{.problem = ProjectProblem::UnreadableFile, .file = path};
    const auto file = platform().files().openForReading(path);
    if (file) {
        const auto header = readTmfHeader(*file.value());
        TmfImage image;
        if (header) {
            image.width = header.value().width;
            image.height = header.value().height;
            image.bits = header.value().bits;
            if (image.blockSize() > 0)
                return ImageShape{{image.width, image.height}, image.bits};
        }
    } else {
        unreadable.error = file.error();
    }
    addToPicture(index, std::move(unreadable));
    return std::nullopt;
}

std::optional<TlutData> ProjectCheck::readTable(std::size_t index, const std::string& path) {
    ProjectFinding unreadable{.problem = ProjectProblem::UnreadableFile, .file = path, .ofPalette = true};
    if (const auto file = platform().files().openForReading(path)) {
        std::array<std::byte, kLargestTlfSize> bytes;
        auto table = parseTlf(std::span(bytes).first(file.value()->read(bytes)));
        if (table)
            return std::move(table.value());
    } else {
        unreadable.error = file.error();
    }
    addToPicture(index, std::move(unreadable));
    return std::nullopt;
}

void ProjectCheck::checkPicture(std::size_t index) {
    const std::int32_t number = pictures_[index].entry.paletteNo;
    const std::optional<std::string> image = find(index, false);
    const std::optional<std::string> palette = find(index, true);
    const std::optional<ImageShape> shape = image ? readShape(index, *image) : std::nullopt;
    const std::optional<TlutData> table = palette ? readTable(index, *palette) : std::nullopt;

    // At 8 bits a picture's number chooses nothing.
    const std::int32_t banks = table && shape && shape->bits == 4 ? table->count / kBankSize : kMostBanks;
    const bool isBank = number >= 0 && number < banks;
    if (!isBank)
        addToPicture(index, {.problem = ProjectProblem::PaletteNumber,
                             .file = palette.value_or(std::string()),
                             .ofPalette = true,
                             .first = number,
                             .second = banks});
    if (shape) {
        const TlutData* const colours = table ? &*table : nullptr;
        const std::int32_t first = isBank ? kBankSize * number : 0;
        const bool mayLackEntries = table && shape->bits == 8 && table->count < kMostEntries;
        if (mayLackEntries || RuleCheck::needsTexels(rules_, *shape, colours, first))
            checkTexels(index, *image, colours, first);
        else
            report(index, *image, RuleCheck(rules_, *shape, colours, first).report());
    }
    checkTwins(index, image.value_or(std::string()), palette.value_or(std::string()));
}

/// Without an image or a palette a picture is no double of another one.
void ProjectCheck::checkTwins(std::size_t index, const std::string& image, const std::string& palette) {
    const Files& files = platform().files();
    if (!image.empty() && !palette.empty()) {
        const std::string pair = files.hostPath(image) + "\n" + files.hostPath(palette) + "\n" +
                                 std::to_string(pictures_[index].entry.paletteNo);
        if (const auto [first, isNew] = pairs_.try_emplace(pair, index); !isNew)
            addToPicture(
                index,
                {.problem = ProjectProblem::SamePicture, .file = image, .other = nameOf(first->second)});
    }
    if (const auto [first, isNew] = foldedNames_.try_emplace(foldedCase(nameOf(index)), index); !isNew)
        addToPicture(
            index, {.problem = ProjectProblem::PictureTwins, .file = image, .other = nameOf(first->second)});
}

/// Reads the image. What the rules say of its texels is left to further steps.
void ProjectCheck::checkTexels(std::size_t index, const std::string& path, const TlutData* table,
                               std::int32_t first) {
    const auto file = platform().files().openForReading(path);
    const auto image = file ? parseTmf(*file.value()) : Result<TmfImage, TmfError>(TmfError{});
    auto canvas =
        image ? std::unique_ptr<TextureCanvas>(new (std::nothrow) TextureCanvas(image.value())) : nullptr;
    if (canvas == nullptr || canvas->block().empty()) {
        addToPicture(index, {.problem = ProjectProblem::UnreadableFile,
                             .file = path,
                             .error = file ? std::nullopt : std::optional(file.error())});
        return;
    }
    if (table != nullptr && image.value().bits == 8) {
        if (const std::int32_t highest = highestIndex(image.value()); highest >= table->count)
            addToPicture(index, {.problem = ProjectProblem::TooFewEntries,
                                 .file = path,
                                 .first = highest,
                                 .second = table->count});
    }
    auto check = std::make_unique<RuleCheck>(rules_, *canvas, table, first);
    open_ = {path, std::move(canvas), std::move(check)};
}

void ProjectCheck::report(std::size_t index, const std::string& path, const RuleReport& report) {
    for (const RuleFindings& ofRule : report) {
        if (!ofRule.first.empty())
            addToPicture(index, {.problem = ProjectProblem::BrokenRule,
                                 .file = path,
                                 .first = ofRule.count,
                                 .rule = ofRule.first.front()});
    }
}

} // namespace dyeworks
