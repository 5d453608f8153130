#include "cli/thumbnailer/RunThumbnailer.h"

#include "cli/CliTexts.h"
#include "cli/CommandLinePlatform.h"
#include "cli/Console.h"
#include "cli/NamedFile.h"
#include "cli/Options.h"
#include "cli/TrueColourPng.h"
#include "cli/thumbnailer/EditorSettings.h"
#include "cli/thumbnailer/FileAddress.h"
#include "cli/thumbnailer/Limits.h"
#include "cli/thumbnailer/Thumbnail.h"
#include "platform/Version.h"
#include "platform/posix/HostFile.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <optional>

namespace dyeworks {

namespace {

constexpr const char* kProgram = "dyeworks-thumbnailer";
constexpr std::int32_t kUsualSide = 128;
constexpr std::int32_t kMostSide = 2048;

struct Request {
    std::string input;
    std::string output;
    std::int32_t side = kUsualSide;
};

/// Replaces the file, or, where its folder takes no other or it is mounted by itself, writes into it.
std::optional<FileError> writePicture(const std::string& name, const std::string& png) {
    const std::span<const std::byte> bytes = bytesOf(png);
    const std::optional<FileError> error = writeHostFile(name, FilePieces(&bytes, 1), Flush::No);
    // A file that is mounted is busy, and that has no name of its own.
    const bool mayBeMounted = error == FileError::Other && isFile(name);
    if (!error || (!mayBeMounted && !takesNothingButContents(name, *error)))
        return error;
    bool torn = false;
    return writeIntoHostFile(name, FilePieces(&bytes, 1), torn);
}

void make(const Request& request, CommandLinePlatform& platform, Console& console) {
    const std::optional<std::string> path = pathOfAddress(request.input);
    if (!path) {
        console.fail(request.input, say(CliText::ThumbnailNotHere));
        return;
    }
    const auto file = openHostFile(*path);
    if (!file) {
        console.fail(request.input, file.error());
        return;
    }
    const EditorSettings settings = EditorSettings::ofUser();
    for (const auto& [letter, folder] : settings.drives())
        platform.mapDrive(letter, folder);
    const Result<Picture, std::string> picture =
        thumbnail(*file.value(), std::filesystem::absolute(*path).string(), request.side, settings);
    if (!picture) {
        console.fail(request.input, picture.error());
        return;
    }
    const std::string png = trueColourPng(picture.value());
    if (png.empty())
        console.fail(request.output, say(CliText::OutOfMemory));
    else if (const auto error = writePicture(request.output, png))
        console.fail(request.output, *error);
}

} // namespace

int runThumbnailer(const std::vector<std::string>& arguments) {
    CommandLinePlatform platform(userLanguage());
    Console console(kProgram);
    Request request;
    std::optional<std::int32_t> side;
    bool version = false;
    Options options(kProgram, CliText::ThumbnailSummary);
    options.file("FILE", request.input, CliText::ThumbnailInput);
    options.file("OUTPUT", request.output, CliText::ThumbnailOutput);
    options.number("-s,--size", side, 1, kMostSide, CliText::TypeNumber, CliText::ThumbnailSize);
    options.flag("--version", version, CliText::HelpVersion);
    options.footer(CliText::ThumbnailFooter);
    if (arguments == std::vector<std::string>{"--version"}) {
        console.print(std::string(kProgram) + " " + kVersionText + "\n");
        return static_cast<int>(console.finish(ExitCode::Done));
    }
    const Options::Answer answer = options.parse(arguments);
    switch (answer.next) {
    case Options::Next::Show:
        console.print(answer.text);
        return static_cast<int>(console.finish(ExitCode::Done));
    case Options::Next::Refuse:
        console.refuse(answer.text);
        return static_cast<int>(console.finish(ExitCode::Usage));
    case Options::Next::Run:
        break;
    }
    request.side = side.value_or(kUsualSide);
    holdToLimits(request.input + ": " + say(CliText::ThumbnailTooLong), static_cast<int>(ExitCode::Files));
    try {
        make(request, platform, console);
    } catch (const std::bad_alloc&) {
        console.fail(request.input, say(CliText::ThumbnailTooLong));
    }
    return static_cast<int>(console.finish(ExitCode::Done));
}

} // namespace dyeworks
