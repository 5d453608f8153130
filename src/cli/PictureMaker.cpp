#include "cli/PictureMaker.h"

#include "cli/CliTexts.h"
#include "cli/FormatFaults.h"
#include "cli/NamedFile.h"
#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "interchange/TextureSource.h"
#include "paint/CanvasDepth.h"
#include "platform/posix/HostFile.h"

#include <algorithm>
#include <atomic>
#include <new>
#include <thread>
#include <vector>

namespace dyeworks {

namespace {

/// One thread's work.
class PictureMaker {
public:
    PictureMaker(const BuildOptions& options, const std::string& folder)
        : options_(options)
        , folder_(folder) {}

    void make(BuildJob& job) {
        try {
            makeOrThrow(job);
        } catch (const std::bad_alloc&) {
            fail(job, job.picture.image, say(CliText::OutOfMemory));
        }
        job.picture.imageStamp = settled(job.picture.imageStamp);
        job.picture.paletteStamp = settled(job.picture.paletteStamp);
    }

private:
    static void fail(BuildJob& job, const std::string& file, const std::string& why) {
        job.hasFailed = true;
        job.file = file;
        job.why = why;
    }

    void makeOrThrow(BuildJob& job) {
        BuiltPicture& picture = job.picture;
        const Result<ByteBuffer, FileError> file = readHostFile(picture.image);
        if (!file)
            return fail(job, picture.image, describe(file.error()));
        const Result<TmfImage, TmfError> image = parseTmf(file.value().bytes());
        if (!image)
            return fail(job, picture.image, describe(image.error()));
        if (!picture.palette.empty() && !readPalette(job))
            return;
        const TlutData* const palette = picture.palette.empty() ? nullptr : &palette_;
        // A palette without such a bank shows its first, as a view does.
        const bool isBank =
            palette != nullptr && picture.bank >= 0 && picture.bank < palette->count / kBankSize;
        SourceOptions source;
        source.name = picture.name;
        source.alignment = options_.alignment;
        source.wholePalette = options_.wholePalette;
        Result<OutputFiles, std::string> files = outputOf(
            options_.format, image.value(), palette, isBank ? kBankSize * picture.bank : 0, source, job.stem);
        if (!files)
            return fail(job, picture.image, files.error());
        if (options_.format == OutputFormat::Tmf && palette != nullptr)
            files.value().push_back({"tlf", tlfBytes(*palette)});
        write(job, image.value(), files.value());
    }

    bool readPalette(BuildJob& job) {
        const std::string& path = job.picture.palette;
        if (path == palettePath_)
            return true;
        const Result<ByteBuffer, FileError> file = readHostFile(path);
        if (!file) {
            fail(job, path, describe(file.error()));
            return false;
        }
        Result<TlutData, TlfError> palette = parseTlf(file.value().bytes());
        if (!palette) {
            fail(job, path, describe(palette.error()));
            return false;
        }
        palette_ = std::move(palette).value();
        palettePath_ = path;
        return true;
    }

    /// A header stays the same when a texel changes; written again, it would have all compiled that includes
    /// it.
    static bool holds(const std::string& path, std::span<const std::byte> bytes) {
        const std::optional<BuildStamp> stamp = stampOf(path);
        if (!stamp || stamp->size != bytes.size())
            return false;
        const Result<ByteBuffer, FileError> file = readHostFile(path);
        return file && std::ranges::equal(file.value().bytes(), bytes);
    }

    void write(BuildJob& job, const TmfImage& image, const OutputFiles& files) const {
        std::vector<BuiltPicture::Output> written;
        for (const OutputFile& file : files) {
            const std::string name = job.stem + "." + file.ending;
            const std::string path = inFolder(folder_, name);
            const std::span<const std::byte> bytes = bytesOf(file.bytes);
            const auto error =
                holds(path, bytes) ? std::nullopt : writeHostFile(path, FilePieces(&bytes, 1), Flush::No);
            if (error)
                return fail(job, path, describe(*error));
            written.push_back({name, stampOf(path).value_or(BuildStamp{})});
        }
        job.picture.outputs = std::move(written);
        job.picture.width = image.width;
        job.picture.height = image.height;
        job.picture.bits = image.bits;
    }

    const BuildOptions& options_;
    const std::string& folder_;
    std::string palettePath_; ///< Of the palette that was read last.
    TlutData palette_;
};

} // namespace

void makePictures(BuildPlan& plan, const BuildOptions& options, const std::string& folder,
                  std::int32_t threads, const std::function<void(std::size_t done)>& told) {
    std::vector<BuildJob*> jobs;
    for (BuildJob& job : plan.jobs) {
        if (!job.isCurrent && !job.hasFailed)
            jobs.push_back(&job);
    }
    std::atomic<std::size_t> next{0};
    std::atomic<std::size_t> done{0};
    const auto work = [&](bool tells) {
        PictureMaker maker(options, folder);
        for (std::size_t at = next++; at < jobs.size(); at = next++) {
            maker.make(*jobs[at]);
            ++done;
            if (tells)
                told(done);
        }
    };
    std::vector<std::jthread> others;
    const auto wanted = std::min(static_cast<std::size_t>(threads), jobs.size());
    for (std::size_t i = 1; i < wanted; ++i)
        others.emplace_back(work, false);
    work(true);
}

} // namespace dyeworks
