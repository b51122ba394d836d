// SPDX-License-Identifier: MIT
#include "FailingCalls.h"

#include <cerrno>
#include <cstdarg>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

// The functions below have the names of the C library's, and are found first.

namespace {

const int mostFiles = 1024;

int callToFail = 0;
bool failuresAreOver = true;
int errorToSet = 0;
FailingCalls::Way wayToFail = FailingCalls::Once;
int callsCounted = 0;
bool turnHasCome = false;
const char *nameOfFailure = nullptr;
bool isOfDictionary[mostFiles];
bool isForReadingOnly = false;

template <class Function>
Function *next(const char *name, Function *)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

#define NEXT(name) next(#name, static_cast<decltype(::name) *>(nullptr))

bool endsLike(const char *path, const char *end)
{
    const size_t length = std::strlen(path);
    const size_t endLength = std::strlen(end);
    return length >= endLength && std::strcmp(path + length - endLength, end) == 0;
}

bool concerns(const char *path)
{
    static const char *const ends[] = { "/data.db", "/data.db-journal", "/data.db-wal",
                                        "/data.db-shm" };
    for (const char *end : ends) {
        if (path && endsLike(path, end))
            return true;
    }
    return false;
}

bool concerns(int file)
{
    return file >= 0 && file < mostFiles && isOfDictionary[file];
}

// Whether it is the turn of this call to fail.
template <class FileOrPath>
bool isTurnOf(FileOrPath what)
{
    if (failuresAreOver || !concerns(what))
        return false;
    ++callsCounted;
    const bool turn =
        wayToFail == FailingCalls::Once ? callsCounted == callToFail : callsCounted >= callToFail;
    turnHasCome = turnHasCome || turn;
    return turn;
}

void noteFailure(const char *name)
{
    if (!nameOfFailure)
        nameOfFailure = name;
    errno = errorToSet;
}

// The bytes that are read: -1 for an error.
template <class Read>
ssize_t readOrFail(int file, const char *name, size_t size, const Read &read)
{
    if (!isTurnOf(file))
        return read(size);
    noteFailure(name);
    return errorToSet == FailingCalls::shortRead ? read((size + 1) / 2) : -1;
}

// Only reads can be short.
template <class FileOrPath>
bool failsWithAnError(FileOrPath what, const char *name)
{
    if (!isTurnOf(what) || errorToSet == FailingCalls::shortRead)
        return false;
    noteFailure(name);
    return true;
}

} // namespace

void FailingCalls::arrange(int number, int error, Way way)
{
    failuresAreOver = false;
    callToFail = number;
    errorToSet = error;
    wayToFail = way;
    callsCounted = 0;
    turnHasCome = false;
    nameOfFailure = nullptr;
}

void FailingCalls::end()
{
    failuresAreOver = true;
}

bool FailingCalls::isOver()
{
    return failuresAreOver;
}

int FailingCalls::callsSeen()
{
    return callsCounted;
}

bool FailingCalls::isReached()
{
    return turnHasCome;
}

bool FailingCalls::hasFailed()
{
    return nameOfFailure != nullptr;
}

const char *FailingCalls::failedCall()
{
    return nameOfFailure ? nameOfFailure : "none";
}

int FailingCalls::openFiles()
{
    int count = 0;
    for (const bool open : isOfDictionary)
        count += open;
    return count;
}

bool FailingCalls::mayOnlyRead()
{
    return isForReadingOnly;
}

// clang-format off
#define FAILING(type, name, parameters, arguments, which, throwing) \
    extern "C" type name parameters throwing \
    { \
        return failsWithAnError(which, #name) ? type(-1) : NEXT(name) arguments; \
    }

FAILING(int, access, (const char *path, int mode), (path, mode), path, noexcept)
FAILING(int, stat64, (const char *path, struct stat64 *result), (path, result), path, noexcept)
FAILING(int, lstat64, (const char *path, struct stat64 *result), (path, result), path, noexcept)
FAILING(int, fstat64, (int file, struct stat64 *result), (file, result), file, noexcept)
FAILING(int, unlink, (const char *path), (path), path, noexcept)
FAILING(ssize_t, readlink, (const char *path, char *target, size_t size), (path, target, size), path, noexcept)
FAILING(int, ftruncate64, (int file, off64_t size), (file, size), file, noexcept)
FAILING(int, fchmod, (int file, mode_t mode), (file, mode), file, noexcept)
FAILING(int, fchown, (int file, uid_t owner, gid_t group), (file, owner, group), file, noexcept)
FAILING(ssize_t, write, (int file, const void *bytes, size_t size), (file, bytes, size), file, )
FAILING(ssize_t, pwrite64, (int file, const void *bytes, size_t size, off64_t place), (file, bytes, size, place), file, )
// clang-format on

#undef FAILING

// The tests need not outlast a power failure.
extern "C" int fdatasync(int file)
{
    if (failsWithAnError(file, "fdatasync"))
        return -1;
    return concerns(file) ? 0 : NEXT(fdatasync)(file);
}

extern "C" ssize_t read(int file, void *bytes, size_t size)
{
    return readOrFail(file, "read", size,
                      [&](size_t part) { return NEXT(read)(file, bytes, part); });
}

extern "C" ssize_t pread64(int file, void *bytes, size_t size, off64_t place)
{
    return readOrFail(file, "pread64", size,
                      [&](size_t part) { return NEXT(pread64)(file, bytes, part, place); });
}

extern "C" void *mmap64(void *address, size_t size, int protection, int flags, int file,
                        off64_t place) noexcept
{
    return failsWithAnError(file, "mmap64")
        ? MAP_FAILED
        : NEXT(mmap64)(address, size, protection, flags, file, place);
}

extern "C" int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int mode = va_arg(arguments, int); // means nothing where no file can be made
    va_end(arguments);
    if (failsWithAnError(path, "open64"))
        return -1;
    const int file = NEXT(open64)(path, flags, mode);
    if (file >= 0 && file < mostFiles)
        isOfDictionary[file] = concerns(path);
    if (file >= 0 && endsLike(path, "/data.db"))
        isForReadingOnly = (flags & O_ACCMODE) == O_RDONLY;
    return file;
}

// A file is closed even where that fails.
extern "C" int close(int file)
{
    const bool failing = failsWithAnError(file, "close");
    const int error = errno;
    const int result = NEXT(close)(file);
    if (concerns(file))
        isOfDictionary[file] = false;
    if (!failing)
        return result;
    errno = error;
    return -1;
}

// The kernel lets no release of a lock fail, and SQLite is not made for that, nor for locks that
// fail for good: in journal mode WAL it would try again for some ten seconds a query.
extern "C" int fcntl64(int file, int command, ...)
{
    va_list arguments;
    va_start(arguments, command);
    void *const argument = va_arg(arguments, void *); // or a number of no more bits
    va_end(arguments);
    const bool succeeds = command == F_SETLK
        && (wayToFail == FailingCalls::FromThenOn
            || static_cast<const struct flock *>(argument)->l_type == F_UNLCK);
    if (!succeeds && failsWithAnError(file, "fcntl64"))
        return -1;
    return NEXT(fcntl64)(file, command, argument);
}
