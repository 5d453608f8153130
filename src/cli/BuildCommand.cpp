#include "cli/BuildCommand.h"

#include "cli/Console.h"
#include "cli/JsonReports.h"
#include "cli/MakeRule.h"
#include "cli/NamedFile.h"
#include "cli/Options.h"
#include "cli/PictureMaker.h"
#include "cli/ProjectFile.h"
#include "platform/posix/HostFile.h"

#include <algorithm>
#include <bit>
#include <thread>
#include <unistd.h>

namespace dyeworks {

namespace {

constexpr const char* kStateName = ".dyeworks-build";
constexpr const char* kIndexName = "index.json";

} // namespace

void BuildCommand::declare(Options& options) {
    options.file("PROJECT", project_, CliText::BuildProject);
    options.requiredText("-o,--output", folder_, CliText::TypeFolder, CliText::BuildOutput);
    options.choice("-f,--format", format_,
                   {outputFormatNames().begin(),
                    outputFormatNames().begin() + static_cast<std::ptrdiff_t>(OutputFormat::Tlf)},
                   CliText::TypeFormat, CliText::BuildFormat);
    options.number("-j,--jobs", jobs_, 1, 256, CliText::TypeNumber, CliText::BuildJobs);
    options.flag("-n,--dry-run", dryRun_, CliText::BuildDryRun);
    options.flag("--all", all_, CliText::BuildAll);
    options.text("--depfile", depfile_, CliText::TypeFile, CliText::BuildDepfile);
    options.number("--align", alignment_, 1, 4096, CliText::TypeNumber, CliText::ConvertAlign);
    options.flag("--whole-palette", options_.wholePalette, CliText::ConvertWholePalette);
    options.footer(CliText::BuildFooter);
}

BuildState BuildCommand::readState() const {
    if (all_)
        return {};
    const Result<ByteBuffer, FileError> file = readNamed(inFolder(folder_, kStateName));
    // A state that cannot be read is as good as none: everything is made.
    return file ? parseBuildState(file.value().bytes()).value_or(BuildState{}) : BuildState{};
}

void BuildCommand::tellPlan(const BuildPlan& plan, Console& console) const {
    for (const BuildJob& job : plan.jobs) {
        if (job.hasFailed)
            console.fail(job.file, job.why);
        if (job.isCurrent || job.hasFailed)
            continue;
        for (const std::string& name : outputNames(options_.format, job.stem))
            console.print(inFolder(folder_, name) + "\n");
    }
}

/// Not flushed, as nothing of a build is: what a crash of the machine takes is not what the state says, and a
/// state that is lost has everything made again.
bool BuildCommand::write(const char* name, const std::string& text, Console& console) const {
    const std::string path = inFolder(folder_, name);
    const std::span<const std::byte> bytes = bytesOf(text);
    const auto error = writeHostFile(path, FilePieces(&bytes, 1), Flush::No);
    if (error)
        console.fail(path, *error);
    return !error;
}

bool BuildCommand::writeDependencies(const BuildPlan& plan, Console& console) const {
    std::vector<std::string> files{project_};
    for (const BuildJob& job : plan.jobs) {
        files.push_back(job.picture.image);
        if (!job.picture.palette.empty())
            files.push_back(job.picture.palette);
    }
    const std::optional<std::string> rule = makeRule(inFolder(folder_, kIndexName), files);
    if (!rule) {
        console.fail(*depfile_, say(CliText::BuildNameWithLine));
        return false;
    }
    const auto error = writeNamed(*depfile_, bytesOf(*rule));
    if (error)
        console.fail(*depfile_, *error);
    return !error;
}

void BuildCommand::carryOut(BuildPlan& plan, const BuildState& before, Console& console) {
    const std::size_t wanted = plan.outOfDate();
    const auto threads =
        jobs_.value_or(static_cast<std::int32_t>(std::clamp(std::thread::hardware_concurrency(), 1U, 256U)));
    makePictures(plan, options_, folder_, threads, [&](std::size_t done) {
        console.progress(static_cast<std::int64_t>(done), static_cast<std::int64_t>(wanted));
    });
    for (const BuiltPicture::Output& output : plan.leftOver)
        (void)::unlink(inFolder(folder_, output.name).c_str());

    BuildState state;
    state.options = options_.hash();
    state.project = settled(projectStamp_);
    std::int64_t failed = 0;
    for (BuildJob& job : plan.jobs) {
        if (job.hasFailed) {
            ++failed;
            console.fail(job.file, job.why);
            // It is tried again, whatever the files look like then.
            job.picture.imageStamp = {};
        }
        if (!job.picture.outputs.empty())
            state.pictures.push_back(job.picture);
    }
    // Whoever watches the index by its time sees that something was made, and that something is still to be
    // made as long as a picture fails.
    const std::string index = inFolder(folder_, kIndexName);
    const bool isNews = wanted > 0 || !plan.leftOver.empty() || before.project != projectStamp_ ||
                        before.options != state.options || before.index != stampOf(index);
    const bool isWritten = isNews && failed == 0 && write(kIndexName, jsonOf(state), console);
    state.index = isWritten ? stampOf(index).value_or(BuildStamp{}) : before.index;
    if (isWritten || failed > 0)
        (void)write(kStateName, serialise(state), console);
    console.note(say(CliText::BuildDone, {std::to_string(static_cast<std::int64_t>(wanted) - failed),
                                          std::to_string(plan.jobs.size() - wanted),
                                          std::to_string(plan.leftOver.size()), std::to_string(failed)}));
}

ExitCode BuildCommand::run(Console& console) {
    options_.format =
        static_cast<OutputFormat>(format_.value_or(static_cast<std::size_t>(OutputFormat::Png)));
    options_.alignment = alignment_.value_or(options_.alignment);
    if (!std::has_single_bit(static_cast<std::uint32_t>(options_.alignment))) {
        console.refuse(say(CliText::WrongValue, {"--align", std::to_string(options_.alignment)}));
        return ExitCode::Usage;
    }
    projectStamp_ = stampOf(project_).value_or(BuildStamp{});
    const Result<std::unique_ptr<CTPFFile>, FileError> project = readProject(project_);
    if (!project) {
        console.fail(project_, project.error());
        return ExitCode::Files;
    }
    const BuildState before = readState();
    BuildPlan plan = planBuild(*project.value(), options_, before, folder_);
    if (dryRun_) {
        tellPlan(plan, console);
        return ExitCode::Done;
    }
    if (const std::optional<FileError> error = makeFolder(folder_)) {
        console.fail(folder_, *error);
        return ExitCode::Files;
    }
    carryOut(plan, before, console);
    if (depfile_)
        (void)writeDependencies(plan, console);
    return ExitCode::Done;
}

} // namespace dyeworks
