#pragma once

#include "cli/TableTexts.h"
#include "platform/Platform.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixLocale.h"

#include <map>
#include <memory>
#include <string>

namespace dyeworks {

/// A platform without a desktop: files, locale and texts, and picture files as far as this program reads them
/// itself. Messages go to the standard error stream and are answered as if closed; there are no dialogs, no
/// settings, no clipboard and no libraries. It is the installed one while it lives.
class CommandLinePlatform final : public Platform {
public:
    /// `language` is "ja", or anything else for English.
    explicit CommandLinePlatform(const std::string& language);
    ~CommandLinePlatform() override;
    CommandLinePlatform(const CommandLinePlatform&) = delete;
    CommandLinePlatform& operator=(const CommandLinePlatform&) = delete;

    /// The drive of that letter, in either case, stands for an absolute host folder from now on.
    void mapDrive(char letter, const std::string& folder);

    Messages& messages() override;
    FileDialogs& fileDialogs() override;
    Files& files() override { return files_; }
    FileWatcher& fileWatcher() override;
    Profile& profile() override;
    Clipboard& clipboard() override;
    PictureReader& pictureReader() override;
    Library& library() override;
    VersionInfo& versionInfo() override;
    Locale& locale() override { return locale_; }
    Shell& shell() override;
    StateFolder& stateFolder() override;
    WaitCursor& waitCursor() override;
    Texts& texts() override { return texts_; }

private:
    struct Absent;

    std::map<char, std::string> drives_;
    PosixFiles files_;
    PosixLocale locale_;
    TableTexts texts_;
    std::unique_ptr<Absent> absent_; ///< Whatever there is none of here.
    Platform* before_;
};

/// The language that the environment asks for: the first of LANGUAGE that is known, unless the locale is C,
/// then that of LC_ALL, LC_MESSAGES or LANG. "en" where none says.
[[nodiscard]] std::string userLanguage();

} // namespace dyeworks
