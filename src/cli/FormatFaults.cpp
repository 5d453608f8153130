#include "cli/FormatFaults.h"

#include "cli/CliTexts.h"
#include "platform/Platform.h"

namespace dyeworks {

std::string describe(const TmfError& error) {
    switch (error.kind) {
    case TmfError::Kind::ShortHeader:
        return say(CliText::FileCutOff);
    case TmfError::Kind::ImproperTag:
        return say(CliText::NoImage);
    case TmfError::Kind::NoImage:
    case TmfError::Kind::Told:
        break;
    }
    return say(CliText::ImageTooLarge);
}

std::string describe(TlfError error) {
    switch (error) {
    case TlfError::ShortHeader:
    case TlfError::ShortBody:
        return say(CliText::FileCutOff);
    case TlfError::BadHeader:
        return say(CliText::NoPalette);
    case TlfError::NoMemory:
        break;
    }
    return say(CliText::ImageTooLarge);
}

std::string describe(const InterchangeError& error) {
    return describe(error, platform().texts());
}

} // namespace dyeworks
