#pragma once

#include "platform/Clipboard.h"
#include "platform/FileDialogs.h"
#include "platform/FileWatcher.h"
#include "platform/Files.h"
#include "platform/Library.h"
#include "platform/Locale.h"
#include "platform/Messages.h"
#include "platform/PictureReader.h"
#include "platform/Profile.h"
#include "platform/Shell.h"
#include "platform/StateFolder.h"
#include "platform/Text.h"
#include "platform/VersionInfo.h"
#include "platform/WaitCursor.h"

namespace dyeworks {

/// Everything the program asks of the desktop. One instance serves the process.
class Platform {
public:
    virtual ~Platform() = default;

    virtual Messages& messages() = 0;
    virtual FileDialogs& fileDialogs() = 0;
    virtual Files& files() = 0;
    virtual FileWatcher& fileWatcher() = 0;
    virtual Profile& profile() = 0;
    virtual Clipboard& clipboard() = 0;
    virtual PictureReader& pictureReader() = 0;
    virtual Library& library() = 0;
    virtual VersionInfo& versionInfo() = 0;
    virtual Locale& locale() = 0;
    virtual Shell& shell() = 0;
    virtual StateFolder& stateFolder() = 0;
    virtual WaitCursor& waitCursor() = 0;
    virtual Texts& texts() = 0;
};

/// The installed platform. There must be one.
Platform& platform();

/// Installs `instance`, which must outlive its use; null takes the installed one away. Returns what was
/// installed before.
Platform* installPlatform(Platform* instance);

} // namespace dyeworks
