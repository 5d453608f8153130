// A library to be loaded before all others (LD_PRELOAD) that lets one call that changes files fail. Whoever
// has it loaded finds `dyeworksFault` and `dyeworksFaultCalls`; a program that knows nothing of it is told
// with DYEWORKS_FAULT=call:number:error, as in "write:3:28".

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::array<char, 16> chosen{};    // Name of the calls that are counted.
std::atomic<int> calls = 0;       // That were made.
std::atomic<int> failing = 0;     // Number of the one that fails, from 1 on; 0 for none.
std::atomic<int> errorNumber = 0; // With which it fails.

bool isRegular(int file) {
    struct stat status {};
    return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

bool isWritten(int file) {
    const int flags = ::fcntl(file, F_GETFL);
    return flags >= 0 && (flags & O_ACCMODE) != O_RDONLY && isRegular(file);
}

/// Whether this call is to fail; errno is set then.
bool fails(const char* call) {
    if (std::strcmp(chosen.data(), call) != 0)
        return false;
    if (++calls != failing)
        return false;
    errno = errorNumber;
    return true;
}

bool makes(int flags) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

int opened(int folder, const char* path, int flags, mode_t mode) {
    const char* const hanging = std::getenv("DYEWORKS_HANG");
    while (hanging != nullptr && std::strstr(path, hanging) != nullptr)
        ::pause();
    if (makes(flags) && fails("make"))
        return -1;
    return static_cast<int>(::syscall(SYS_openat, folder, path, flags, mode));
}

mode_t modeOf(int flags, std::va_list arguments) {
    return makes(flags) ? va_arg(arguments, mode_t) : 0;
}

} // namespace

extern "C" {

// NOLINTBEGIN(cert-dcl50-cpp)

/// From now on the calls of that name are counted, and the `number`th fails with `error`.
void dyeworksFault(const char* call, int number, int error) {
    std::snprintf(chosen.data(), chosen.size(), "%s", call);
    calls = 0;
    failing = number;
    errorNumber = error;
}

int dyeworksFaultCalls() {
    return calls;
}

ssize_t write(int file, const void* bytes, std::size_t size) {
    if (isRegular(file) && fails("write"))
        return -1;
    return ::syscall(SYS_write, file, bytes, size);
}

int fsync(int file) {
    return fails("flush") ? -1 : static_cast<int>(::syscall(SYS_fsync, file));
}

int fdatasync(int file) {
    return fails("flush") ? -1 : static_cast<int>(::syscall(SYS_fdatasync, file));
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
    return fails("link") ? -1
                         : static_cast<int>(::syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    return fails("rename")
               ? -1
               : static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

int renameat(int fromFolder, const char* from, int toFolder, const char* to) {
    return renameat2(fromFolder, from, toFolder, to, 0);
}

int rename(const char* from, const char* to) {
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int close(int file) {
    // As the system does it, the file is closed all the same.
    const bool refused = isWritten(file) && fails("close");
    const auto result = static_cast<int>(::syscall(SYS_close, file));
    if (refused)
        errno = errorNumber;
    return refused ? -1 : result;
}

int openat(int folder, const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return opened(folder, path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return opened(folder, path, flags, mode);
}

int open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return opened(AT_FDCWD, path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return opened(AT_FDCWD, path, flags, mode);
}

__attribute__((constructor)) void dyeworksFaultFromEnvironment() {
    std::array<char, 16> call{};
    int number = 0;
    int error = 0;
    const char* const asked = std::getenv("DYEWORKS_FAULT");
    if (asked != nullptr && std::sscanf(asked, "%15[^:]:%d:%d", call.data(), &number, &error) == 3)
        dyeworksFault(call.data(), number, error);
}

// NOLINTEND(cert-dcl50-cpp)

} // extern "C"
