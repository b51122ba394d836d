// SPDX-License-Identifier: MIT
#include <cerrno>
#include <cstdarg>

#include <dlfcn.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

// QEMU 7.2 answers waitid() for process file descriptors and refuses clone() with one. QProcess of
// Qt 5.15 goes by the answer, takes the refusal for a child with the number -1, and when it ends
// that child it ends every process that the user may end. Programs that are linked with this
// library find these functions before those of the C library: QProcess forks as on an old kernel,
// and nobody ends everything.

namespace {

const long processFileDescriptor = 3; // P_PIDFD, which not every C library names

template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" long syscall(long number, ...) noexcept
{
    long words[6];
    va_list arguments;
    va_start(arguments, number);
    for (long &word : words)
        word = va_arg(arguments, long);
    va_end(arguments);
    if (number == SYS_waitid && words[0] == processFileDescriptor) {
        errno = EINVAL;
        return -1;
    }
    static const auto original = next<long (*)(long, ...)>("syscall");
    return original(number, words[0], words[1], words[2], words[3], words[4], words[5]);
}

extern "C" int kill(pid_t process, int signalNumber) noexcept
{
    if (process == -1) {
        errno = EPERM;
        return -1;
    }
    static const auto original = next<int (*)(pid_t, int)>("kill");
    return original(process, signalNumber);
}
