#include "platform/FileMessages.h"

#include "platform/Messages.h"
#include "platform/StringId.h"
#include "platform/Text.h"

namespace dyeworks {

void tellNotSaved(const std::string& path, FileError why) {
    applicationWarning(text(StringId::CannotSaveFile, {displayPath(path), describe(why)}),
                       adviceOnSaving(why));
}

void tellNotOpened(const std::string& path, FileError why) {
    applicationWarning(text(StringId::CannotOpenFile, {displayPath(path), describe(why)}),
                       adviceOnOpening(why));
}

} // namespace dyeworks
