#include "cli/CheckCommand.h"

#include "cli/Console.h"
#include "cli/FileInfo.h"
#include "cli/FormatFaults.h"
#include "cli/JsonReports.h"
#include "cli/LoadedPicture.h"
#include "cli/NamedFile.h"
#include "cli/Options.h"
#include "cli/PaletteOption.h"
#include "cli/ProjectFile.h"
#include "core/TmfFormat.h"
#include "paint/CanvasDepth.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "project/FindingTexts.h"
#include "project/ProjectCheck.h"
#include "project/RuleTexts.h"

#include <utility>

namespace dyeworks {

namespace {

/// Without marks between the thousands, as programs read numbers.
std::string plainNumber(std::int64_t number) {
    return std::to_string(number);
}

Finding findingOf(const ProjectFinding& found, const CTPFFile& project, const std::string& projectName) {
    const FindingWords words = wordsOf(found, project, plainNumber);
    return {severityOf(found.problem), found.file.empty() ? projectName : displayPath(found.file),
            words.place, words.check, words.reason};
}

} // namespace

void CheckCommand::declare(Options& options) {
    options.files("FILE", files_, CliText::CheckFiles);
    options.flag("--json", json_, CliText::InfoJson);
    options.choice("--least", least_, {"note", "warning", "error"}, CliText::TypeWay, CliText::CheckLeast);
    options.text("--rules", rulesOf_, CliText::TypeFile, CliText::CheckRules);
    options.text("-p,--palette", palette_, CliText::TypeFile, CliText::CheckPalette);
    options.number("-b,--bank", bank_, 0, 15, CliText::TypeNumber, CliText::ConvertBank);
    options.footer(CliText::CheckFooter);
}

bool CheckCommand::readRulesAndPalette(Console& console) {
    if (rulesOf_) {
        const Result<std::unique_ptr<CTPFFile>, FileError> project = readProject(*rulesOf_);
        if (!project) {
            console.fail(*rulesOf_, project.error());
            return false;
        }
        rules_ = readRules(*project.value()->store);
    }
    if (palette_) {
        table_ = readPaletteOption(*palette_, bank_.value_or(0), console);
        if (!table_)
            return false;
    }
    return true;
}

void CheckCommand::add(Finding finding) {
    constexpr std::size_t kError = 2;
    const std::size_t weight = kError - static_cast<std::size_t>(finding.severity);
    if (weight >= least_.value_or(0))
        findings_.push_back(std::move(finding));
}

void CheckCommand::checkProjectFile(const std::string& name, Console& console) {
    const Result<std::unique_ptr<CTPFFile>, FileError> project = readProject(name);
    if (!project) {
        console.fail(name, project.error());
        return;
    }
    const auto found =
        checkProject(*project.value(), readRules(*project.value()->store), [&](int thousandths) {
            console.progress(thousandths, 1000);
            return true;
        });
    for (const ProjectFinding& finding : found.value_or(std::vector<ProjectFinding>{}))
        add(findingOf(finding, *project.value(), name));
}

void CheckCommand::checkImage(const std::string& name, std::span<const std::byte> file) {
    const Result<TmfImage, TmfError> image = parseTmf(file);
    if (!image) {
        add({Severity::Error, name, text(StringId::FindingWholeImage), {}, describe(image.error())});
        return;
    }
    const TmfHeader header{0, image.value().width, image.value().height, image.value().bits};
    if (const std::uint64_t missing = missingTexelBytes(header, file.size()); missing > 0)
        add({Severity::Error,
             name,
             text(StringId::FindingWholeImage),
             {},
             say(CliText::CheckTexelsMissing, {std::to_string(missing)})});
    const auto report = checkRules(rules_, TextureCanvas(image.value()), table_ ? &*table_ : nullptr,
                                   image.value().bits == 4 ? kBankSize * bank_.value_or(0) : 0);
    for (const RuleFindings& findings : report.value_or(RuleReport{})) {
        for (const RuleFinding& finding : findings.first)
            add({Severity::Warning, name, placeText(finding, plainNumber), ruleName(finding.rule),
                 reasonText(finding, plainNumber)});
        const std::int64_t more = findings.count - static_cast<std::int64_t>(findings.first.size());
        if (more > 0)
            add({Severity::Warning, name, text(StringId::FindingWholeImage), ruleName(findings.first[0].rule),
                 text(StringId::FindingMore, {plainNumber(more)})});
    }
}

void CheckCommand::check(const std::string& name, Console& console) {
    const Result<ByteBuffer, FileError> file = readNamed(name);
    if (!file) {
        console.fail(name, file.error());
        return;
    }
    const std::span<const std::byte> bytes = file.value().bytes();
    switch (kindOf(bytes, name)) {
    case FileKind::Project:
        return checkProjectFile(name, console);
    case FileKind::Image:
        return checkImage(name, bytes);
    default:
        break;
    }
    if (const Result<FileInfo, std::string> info = inspect(bytes, name); !info)
        add({Severity::Error, name, say(CliText::CheckWholeFile), {}, info.error()});
}

ExitCode CheckCommand::run(Console& console) {
    if (!readRulesAndPalette(console))
        return ExitCode::Files;
    for (const std::string& name : files_)
        check(name, console);
    if (json_) {
        console.print(jsonOf(findings_));
    } else {
        for (const Finding& finding : findings_)
            console.print(finding.file + ":" + finding.place + ": " +
                          (finding.check.empty() ? "" : finding.check + ": ") + finding.reason + "\n");
        if (!findings_.empty())
            console.note(say(CliText::CheckDone, {std::to_string(findings_.size())}));
    }
    return findings_.empty() ? ExitCode::Done : ExitCode::Findings;
}

} // namespace dyeworks
