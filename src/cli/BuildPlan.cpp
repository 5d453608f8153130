#include "cli/BuildPlan.h"

#include "cli/CliTexts.h"
#include "cli/NamedFile.h"
#include "cli/ProjectFile.h"
#include "interchange/TextureSource.h"
#include "platform/Version.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace dyeworks {

namespace {

/// A picture's name can hold anything but a comma, and must not lead out of the folder or hide there.
std::string stemFor(const std::string& name) {
    std::string stem = name;
    for (char& c : stem) {
        const bool isControl = static_cast<unsigned char>(c) < ' ' || c == '\x7f';
        if (isControl || c == '/' || c == '\\')
            c = '_';
    }
    if (stem.empty() || stem.front() == '.' || stem.front() == '-')
        stem.insert(0, "_");
    return stem;
}

bool isSource(OutputFormat format) {
    return format == OutputFormat::Source || format == OutputFormat::Header;
}

bool isThere(const BuiltPicture::Output& output, const std::string& folder) {
    const std::optional<BuildStamp> stamp = stampOf(inFolder(folder, output.name));
    return stamp && *stamp == output.stamp;
}

/// Whether what was made last time is what would be made now.
bool isCurrent(const BuildJob& job, const BuiltPicture& before, OutputFormat format,
               const std::string& folder) {
    const BuiltPicture& now = job.picture;
    if (now.image != before.image || now.palette != before.palette || now.bank != before.bank ||
        now.imageStamp != before.imageStamp || now.paletteStamp != before.paletteStamp)
        return false;
    const std::vector<std::string> names = outputNames(format, job.stem);
    return std::ranges::equal(names, before.outputs, {}, {}, &BuiltPicture::Output::name) &&
           std::ranges::all_of(before.outputs, [&](const auto& output) { return isThere(output, folder); });
}

void fail(BuildJob& job, const std::string& file, const std::string& why) {
    job.hasFailed = true;
    job.file = file;
    job.why = why;
}

void take(BuildJob& job, const FoundFile& found, std::string& path, BuildStamp& stamp) {
    path = found.path;
    if (found.stamp)
        stamp = *found.stamp;
    else if (!job.hasFailed)
        fail(job, path, describe(FileError::NotFound));
}

} // namespace

std::uint64_t BuildOptions::hash() const {
    const std::string text = std::string(kVersionText) + " " + std::to_string(static_cast<int>(format)) +
                             " " + std::to_string(alignment) + (wholePalette ? " 1" : " 0");
    std::uint64_t hash = 14695981039346656037U; // FNV-1a.
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    return hash;
}

std::size_t BuildPlan::outOfDate() const {
    return static_cast<std::size_t>(std::ranges::count(jobs, false, &BuildJob::isCurrent));
}

std::vector<std::string> outputNames(OutputFormat format, const std::string& stem) {
    const auto named = [&stem](OutputFormat one) {
        return stem + "." + outputFormatNames()[static_cast<std::size_t>(one)];
    };
    if (format == OutputFormat::Source)
        return {named(OutputFormat::Source), named(OutputFormat::Header)};
    if (format == OutputFormat::Tmf)
        return {named(OutputFormat::Tmf), named(OutputFormat::Tlf)};
    return {named(format)};
}

BuildPlan planBuild(const CTPFFile& project, const BuildOptions& options, const BuildState& before,
                    const std::string& folder) {
    std::unordered_map<std::string_view, const BuiltPicture*> known;
    for (const BuiltPicture& picture : before.pictures)
        known.emplace(picture.name, &picture);
    const bool sameOptions = before.options == options.hash();

    BuildPlan plan;
    plan.jobs.reserve(project.order.size());
    PictureFiles files(project);
    std::unordered_map<std::string, std::string> pictureOf; // By what may be used once only.
    std::unordered_set<std::string> made;
    for (const std::string& name : project.order) {
        const PictureEntry& entry = project.pictures.at(name);
        BuildJob& job = plan.jobs.emplace_back();
        job.stem = stemFor(name);
        job.picture.name = name;
        job.picture.bank = entry.paletteNo;
        const std::string key = isSource(options.format) ? identifierOf(name) : job.stem;
        if (const auto [other, isNew] = pictureOf.try_emplace(key, name); !isNew)
            fail(job, name, say(CliText::BuildSameName, {other->second}));
        take(job, files.image(entry.tmfFile), job.picture.image, job.picture.imageStamp);
        if (!entry.tlfFile.empty())
            take(job, files.palette(entry.tlfFile), job.picture.palette, job.picture.paletteStamp);
        for (std::string& output : outputNames(options.format, job.stem))
            made.insert(std::move(output));
        const auto last = known.find(name);
        if (last == known.end())
            continue;
        job.isCurrent =
            !job.hasFailed && sameOptions && isCurrent(job, *last->second, options.format, folder);
        // Until it is made again, what is there is what was made last time.
        job.picture.width = last->second->width;
        job.picture.height = last->second->height;
        job.picture.bits = last->second->bits;
        job.picture.outputs = last->second->outputs;
    }
    for (const BuiltPicture& picture : before.pictures) {
        for (const BuiltPicture::Output& output : picture.outputs) {
            if (!made.contains(output.name) && isThere(output, folder))
                plan.leftOver.push_back(output);
        }
    }
    return plan;
}

} // namespace dyeworks
