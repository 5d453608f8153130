#include "cli/PaletteFiles.h"

#include "cli/CliTexts.h"
#include "cli/Console.h"
#include "cli/FormatFaults.h"
#include "cli/LoadedPicture.h"
#include "cli/NamedFile.h"
#include "cli/OutputFormat.h"
#include "cli/ProjectFile.h"
#include "paint/CanvasDepth.h"
#include "paint/CanvasRenumber.h"
#include "paint/TexelCounts.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <set>
#include <sys/stat.h>
#include <utility>

namespace dyeworks {

namespace {

std::string fileText(const ByteBuffer& file) {
    return {reinterpret_cast<const char*>(file.data()), file.size()};
}

/// Whether both names lead to the same file.
bool isSameFile(const std::string& one, const std::string& other) {
    struct stat first {};
    struct stat second {};
    return ::stat(one.c_str(), &first) == 0 && ::stat(other.c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

struct Change {
    std::string name;
    std::string before; ///< Empty for a file that is made.
    std::string after;
};

void takeBack(std::span<const Change> changes) {
    for (const Change& change : changes) {
        if (!change.before.empty())
            (void)writeNamed(change.name, bytesOf(change.before));
    }
}

} // namespace

struct PaletteFiles::Image {
    std::string name;
    std::string bytes; ///< As they were read.
    std::int32_t bits = 0;
    std::int32_t bank = 0;
    TextureCanvas canvas;

    explicit Image(const TmfImage& image)
        : bits(image.bits)
        , canvas(image) {}
};

PaletteFiles::PaletteFiles() = default;
PaletteFiles::~PaletteFiles() = default;

bool PaletteFiles::readPalette(const std::string& name, Console& console) {
    const Result<ByteBuffer, FileError> file = readNamed(name);
    if (!file) {
        console.fail(name, file.error());
        return false;
    }
    Result<TlutData, TlfError> palette = parseTlf(file.value().bytes());
    if (!palette) {
        console.fail(name, describe(palette.error()));
        return false;
    }
    name_ = name;
    paletteBytes_ = fileText(file.value());
    palette_ = std::move(palette).value();
    return true;
}

bool PaletteFiles::readImage(const std::string& name, std::int32_t bank, Console& console) {
    const Result<ByteBuffer, FileError> file = readNamed(name);
    if (!file) {
        console.fail(name, file.error());
        return false;
    }
    const Result<TmfImage, TmfError> image = parseTmf(file.value().bytes());
    if (!image) {
        console.fail(name, describe(image.error()));
        return false;
    }
    const std::int32_t shown = image.value().bits == 4 ? bank : 0;
    if (shown >= std::max(palette_.count / kBankSize, 1)) {
        console.fail(name, say(CliText::NoSuchBank, {std::to_string(shown)}));
        return false;
    }
    const auto same =
        std::ranges::find_if(images_, [&](const auto& other) { return isSameFile(other->name, name); });
    if (same != images_.end()) {
        if ((*same)->bank == shown)
            return true;
        console.fail(name, say(CliText::PaletteTwoBanks));
        return false;
    }
    auto added = std::make_unique<Image>(image.value());
    added->name = name;
    added->bytes = fileText(file.value());
    added->bank = shown;
    images_.push_back(std::move(added));
    return true;
}

bool PaletteFiles::readProject(const std::string& name, Console& console) {
    const Result<std::unique_ptr<CTPFFile>, FileError> project = dyeworks::readProject(name);
    if (!project) {
        console.fail(name, project.error());
        return false;
    }
    PictureFiles files(*project.value());
    for (const std::string& picture : project.value()->order) {
        const PictureEntry& entry = project.value()->pictures.at(picture);
        if (entry.tlfFile.empty() || !isSameFile(files.palette(entry.tlfFile).path, name_))
            continue;
        // A palette without such a bank shows its first, as a view does.
        const bool isBank = entry.paletteNo >= 0 && entry.paletteNo < palette_.count / kBankSize;
        if (!readImage(files.image(entry.tmfFile).path, isBank ? entry.paletteNo : 0, console))
            return false;
    }
    return true;
}

std::vector<AttachedImage> PaletteFiles::images() const {
    std::vector<AttachedImage> attached;
    for (const auto& image : images_)
        attached.push_back({image->name, 1 << image->bits, image->bits == 4 ? kBankSize * image->bank : 0,
                            TexelCounts::of(image->canvas)});
    return attached;
}

void PaletteFiles::renumberImage(std::size_t index, const ByteTable& map) {
    renumber(images_[index]->canvas, map);
}

bool PaletteFiles::write(const std::string& folder, Console& console) {
    std::vector<Change> changes;
    std::set<std::string> targets;
    const auto add = [&](const std::string& name, const std::string& before, std::string after) {
        const std::string target = folder.empty() ? name : inFolder(folder, lastPartOf(name));
        if (!targets.insert(target).second) {
            console.fail(name, say(CliText::WrittenTwice, {target}));
            return false;
        }
        if (!folder.empty() || before != after)
            changes.push_back({target, folder.empty() ? before : "", std::move(after)});
        return true;
    };
    for (const auto& image : images_) {
        const std::unique_ptr<TmfImage> texels = image->canvas.ToImage();
        Result<OutputFiles, std::string> file =
            texels == nullptr ? Result<OutputFiles, std::string>(say(CliText::OutOfMemory))
                              : outputOf(OutputFormat::Tmf, *texels, nullptr, 0, {}, {});
        if (!file) {
            console.fail(image->name, file.error());
            return false;
        }
        if (!add(image->name, image->bytes, std::move(file.value().front().bytes)))
            return false;
    }
    if (!add(name_, paletteBytes_, tlfBytes(palette_)))
        return false;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const auto error = writeNamed(changes[i].name, bytesOf(changes[i].after));
        if (!error)
            continue;
        takeBack(std::span(changes).first(i));
        console.fail(changes[i].name, *error);
        return false;
    }
    console.note(say(CliText::PaletteDone, {std::to_string(changes.size())}));
    return true;
}

} // namespace dyeworks
