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
    case FileError::NotRegular:
        return StringId::FileErrorNotRegular;
    case FileError::BrokenLink:
        return StringId::FileErrorBrokenLink;
    case FileError::Other:
        break;
    }
    return StringId::FileErrorOther;
}

StringId wordingOfOpenAdvice(FileError error) {
    switch (error) {
    case FileError::NotFound:
    case FileError::NameTooLong:
        return StringId::OpenAdviceNotFound;
    case FileError::AccessDenied:
        return StringId::OpenAdviceAccessDenied;
    case FileError::NotAFile:
        return StringId::OpenAdviceNotAFile;
    case FileError::NotRegular:
        return StringId::OpenAdviceNotRegular;
    case FileError::BrokenLink:
        return StringId::OpenAdviceBrokenLink;
    case FileError::TooLarge:
        return StringId::OpenAdviceMemory;
    case FileError::NoSpace:
    case FileError::ReadOnly:
    case FileError::Other:
        break;
    }
    return StringId::OpenAdviceOther;
}

StringId wordingOfSaveAdvice(FileError error) {
    switch (error) {
    case FileError::NotFound:
    case FileError::BrokenLink:
        return StringId::SaveAdviceNotFound;
    case FileError::AccessDenied:
        return StringId::SaveAdviceAccessDenied;
    case FileError::NotAFile:
    case FileError::NotRegular:
        return StringId::SaveAdviceNotAFile;
    case FileError::NoSpace:
        return StringId::SaveAdviceNoSpace;
    case FileError::ReadOnly:
        return StringId::SaveAdviceReadOnly;
    case FileError::NameTooLong:
        return StringId::SaveAdviceNameTooLong;
    case FileError::TooLarge:
        return StringId::SaveAdviceMemory;
    case FileError::Other:
        break;
    }
    return StringId::SaveAdviceOther;
}

} // namespace

std::string describe(FileError error) {
    return text(wording(error));
}

std::string adviceOnOpening(FileError error) {
    return text(wordingOfOpenAdvice(error));
}

std::string adviceOnSaving(FileError error) {
    return text(wordingOfSaveAdvice(error)) + ' ' + text(StringId::WorkStaysOpen);
}

std::string displayPath(const std::string& path) {
    return platform().files().displayPath(path);
}

} // namespace dyeworks
