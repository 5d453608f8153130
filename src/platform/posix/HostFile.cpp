#include "platform/posix/HostFile.h"

#include <cerrno>

namespace dyeworks {

FileError fileErrorFrom(int errorNumber) {
    switch (errorNumber) {
    case ENOENT:
    case ENOTDIR:
        return FileError::NotFound;
    case EACCES:
    case EPERM:
    case ETXTBSY:
        return FileError::AccessDenied;
    case EISDIR:
        return FileError::NotAFile;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return FileError::NoSpace;
    case EROFS:
        return FileError::ReadOnly;
    case ENAMETOOLONG:
        return FileError::NameTooLong;
    case ENOMEM:
        return FileError::TooLarge;
    default:
        return FileError::Other;
    }
}

} // namespace dyeworks
