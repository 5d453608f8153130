#include "platform/qt/QtPlatform.h"

#include "platform/LargeBlock.h"
#include "platform/posix/HugePages.h"
#include "platform/qt/ProgramVersion.h"

#include <QCoreApplication>

#include <cctype>

namespace dyeworks {

namespace {

/// The host folder that the settings keep for a drive ("c:" in the section "Drives"), letters compared
/// without regard to case.
std::optional<std::string> mappedDrive(const Profile& profile, char letter) {
    const auto code = static_cast<unsigned char>(letter);
    for (const int spelling : {std::tolower(code), std::toupper(code)}) {
        const std::string entry{static_cast<char>(spelling), ':'};
        if (std::optional<std::string> folder = profile.text(kDriveSection, entry))
            return folder;
    }
    return std::nullopt;
}

} // namespace

QtPlatform::QtPlatform(const std::string& settingsFile)
    : profile_(settingsFile)
    , files_(
          windows_, [this](char letter) { return mappedDrive(profile_, letter); },
          QCoreApplication::applicationDirPath().toStdString())
    , messages_(windows_)
    , fileDialogs_(windows_, files_, messages_)
    , library_(files_)
    , versionInfo_(files_, programVersion())
    , shell_(files_, profile_.fileName()) {
    setPrepareBlock(askForHugePages);
}

QtPlatform::~QtPlatform() = default;

} // namespace dyeworks
