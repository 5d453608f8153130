#include "platform/Files.h"

#include "platform/Platform.h"
#include "platform/StringId.h"

namespace dyeworks {

namespace {

StringId wording(FileError error) {
    switch (error) {
    case FileError::NotFound:
        return StringId::FileErrorNotFound;
    case FileError::AccessDenied:
        return StringId::FileErrorAccessDenied;
    case FileError::NotAFile:
        return StringId::FileErrorNotAFile;
    case FileError::NoSpace:
        return StringId::FileErrorNoSpace;
    case FileError::ReadOnly:
        return StringId::FileErrorReadOnly;
    case FileError::NameTooLong:
        return StringId::FileErrorNameTooLong;
    case FileError::TooLarge:
        return StringId::FileErrorTooLarge;
    case FileError::Other:
        break;
    }
    return StringId::FileErrorOther;
}

} // namespace

std::string describe(FileError error) {
    return text(wording(error));
}

std::string displayPath(const std::string& path) {
    return platform().files().displayPath(path);
}

} // namespace dyeworks
