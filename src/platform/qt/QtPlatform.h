#pragma once

#include "platform/Platform.h"
#include "platform/posix/PosixLibrary.h"
#include "platform/posix/PosixLocale.h"
#include "platform/posix/PosixStateFolder.h"
#include "platform/posix/PosixVersionInfo.h"
#include "platform/qt/PatientFiles.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtFileDialogs.h"
#include "platform/qt/QtFileWatcher.h"
#include "platform/qt/QtMessages.h"
#include "platform/qt/QtPictureReader.h"
#include "platform/qt/QtProfile.h"
#include "platform/qt/QtShell.h"
#include "platform/qt/QtTexts.h"
#include "platform/qt/QtWaitCursor.h"
#include "platform/qt/WindowContext.h"

namespace dyeworks {

/// The desktop as Qt and a POSIX host give it. Made after the application object and destroyed before it.
class QtPlatform : public Platform {
public:
    /// `settingsFile` is the host path of the settings; empty: the user's own.
    explicit QtPlatform(const std::string& settingsFile = {});
    ~QtPlatform() override;

    /// The window that dialogs belong to when no other one is active. Not owned; may be destroyed first.
    void setMainWindow(QWidget* window) { windows_.mainWindow = window; }

    /// False: no dialog waits for an answer. Messages go to the standard error stream and are answered as if
    /// closed; file dialogs are cancelled.
    void setInteractive(bool interactive) { windows_.interactive = interactive; }

    Messages& messages() override { return messages_; }
    FileDialogs& fileDialogs() override { return fileDialogs_; }
    Files& files() override { return files_; }
    FileWatcher& fileWatcher() override { return fileWatcher_; }
    QtProfile& profile() override { return profile_; }
    Clipboard& clipboard() override { return clipboard_; }
    PictureReader& pictureReader() override { return pictureReader_; }
    Library& library() override { return library_; }
    VersionInfo& versionInfo() override { return versionInfo_; }
    Locale& locale() override { return locale_; }
    Shell& shell() override { return shell_; }
    StateFolder& stateFolder() override { return stateFolder_; }
    WaitCursor& waitCursor() override { return waitCursor_; }
    Texts& texts() override { return texts_; }

private:
    WindowContext windows_;
    QtProfile profile_;
    PatientFiles files_;
    QtFileWatcher fileWatcher_{files_};
    QtMessages messages_;
    QtFileDialogs fileDialogs_;
    QtClipboard clipboard_;
    QtPictureReader pictureReader_;
    PosixLibrary library_;
    PosixVersionInfo versionInfo_;
    PosixLocale locale_;
    QtShell shell_;
    PosixStateFolder stateFolder_{PosixStateFolder::usersBase()};
    QtWaitCursor waitCursor_;
    QtTexts texts_;
};

} // namespace dyeworks
