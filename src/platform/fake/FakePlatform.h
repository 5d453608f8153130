#pragma once

#include "platform/Platform.h"
#include "platform/fake/FakeClipboard.h"
#include "platform/fake/FakeFileDialogs.h"
#include "platform/fake/FakeFileWatcher.h"
#include "platform/fake/FakeFiles.h"
#include "platform/fake/FakeLibrary.h"
#include "platform/fake/FakeLocale.h"
#include "platform/fake/FakeMessages.h"
#include "platform/fake/FakePictureReader.h"
#include "platform/fake/FakeProfile.h"
#include "platform/fake/FakeShell.h"
#include "platform/fake/FakeTexts.h"
#include "platform/fake/FakeVersionInfo.h"
#include "platform/fake/FakeWaitCursor.h"
#include "platform/posix/PosixStateFolder.h"

#include <memory>

namespace dyeworks {

/// A platform for tests. It is the installed one while it lives, and the one before it is installed again
/// when it goes. Each part is prepared and looked at through its member:
///
///     FakePlatform fake;
///     fake.files.putFile("c:\\tex\\sky.tlf", bytes);
///     fake.messages.answerWith(MessageAnswer::Yes);
///     EXPECT_TRUE(palette.readTlf("c:\\tex\\sky.tlf"));
///     EXPECT_THAT(fake.messages.shown, IsEmpty());
class FakePlatform {
public:
    FakePlatform();
    ~FakePlatform();
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    FakeMessages messages;
    FakeFileDialogs dialogs;
    FakeFiles files;
    FakeFileWatcher fileWatcher;
    FakeProfile profile;
    FakeClipboard clipboard;
    FakePictureReader pictures;
    FakeLibrary library;
    FakeVersionInfo versionInfo;
    FakeLocale locale;
    FakeShell shell;
    /// In a folder beside the drives.
    PosixStateFolder stateFolder{files.hostFolder() + "/state"};
    FakeWaitCursor waitCursor;
    FakeTexts texts;

private:
    // The operations of Platform have the names that the members above deserve.
    class Face;
    std::unique_ptr<Face> face_;
    Platform* before_;
};

} // namespace dyeworks
