// SPDX-License-Identifier: MIT
#include "FailingMemory.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>

#include <cerrno>
#include <dlfcn.h>
#include <execinfo.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <ucontext.h>
#include <unistd.h>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
}

namespace FailingMemory {

namespace {

const int mostSeconds = 20;
const int mostFrames = 100;
const size_t longestPlace = 400;
const int firstStatus = 64; // of a child that tells its outcome; others are those of exit()

// Only the thread that works is counted; Qt may have others.
thread_local bool isCounting = false;
bool isFailing = false; // in a child, for as long as it gets nothing

long stride = 1;
Lack lack = OneAllocation;
Tally *tally = nullptr;
bool (*isTargetWhole)() = nullptr;
const char *ours = nullptr;
char *place = nullptr; // of a crash, in memory that parent and child share

[[noreturn]] void endChild(Outcome outcome)
{
    isFailing = false;
    isCounting = false;
    _exit(firstStatus + (isTargetWhole() ? outcome : TargetBroken));
}

bool isOf(const Dl_info &frame, const char *library)
{
    return frame.dli_fname && std::strstr(frame.dli_fname, library);
}

bool isOfTheSystem(const Dl_info &frame)
{
    return !frame.dli_fname || isOf(frame, "/libc.so") || isOf(frame, "/libstdc++")
        || isOf(frame, "/libgcc_s") || isOf(frame, "/ld-linux") || isOf(frame, "linux-vdso");
}

// Notes the place, if a library or program is there.
bool findPlace(void *address, Outcome *outcome)
{
    Dl_info frame;
    if (!dladdr(address, &frame) || isOfTheSystem(frame))
        return false;
    const bool isProgram = !std::strstr(frame.dli_fname, ".so");
    *outcome = isProgram || isOf(frame, ours) ? CrashedInOurs : CrashedInside;
    if (*outcome == CrashedInOurs) {
        std::snprintf(place, longestPlace, "%s, address %#tx, at allocation %ld", frame.dli_fname,
                      static_cast<char *>(address) - static_cast<char *>(frame.dli_fbase),
                      tally->allocations);
    } else {
        std::snprintf(place, longestPlace, "%s: %s", frame.dli_fname,
                      frame.dli_sname ? frame.dli_sname : "(no name)");
    }
    return true;
}

// Where a call to no function at all came from.
void *callerOfNothing(const ucontext_t *context)
{
#if defined(__x86_64__)
    void *called = reinterpret_cast<void *>(context->uc_mcontext.gregs[REG_RIP]);
    Dl_info frame;
    if (!dladdr(called, &frame))
        return *reinterpret_cast<void **>(context->uc_mcontext.gregs[REG_RSP]);
#else
    (void)context;
#endif
    return nullptr;
}

// The frames of this handler come first, then that of the kernel's return from it, which is libc's.
Outcome placeOfCrash(const ucontext_t *context)
{
    Outcome outcome = CrashedInOurs; // until somebody knows better
    if (findPlace(callerOfNothing(context), &outcome))
        return outcome;
    void *frames[mostFrames];
    const int count = backtrace(frames, mostFrames);
    bool isBelowTheHandler = false;
    for (int i = 0; i < count; ++i) {
        Dl_info frame;
        if (dladdr(frames[i], &frame) && isOfTheSystem(frame))
            isBelowTheHandler = true;
        else if (isBelowTheHandler && findPlace(frames[i], &outcome))
            return outcome;
    }
    std::snprintf(place, longestPlace, "an unknown place, after allocation %ld",
                  tally->allocations);
    return outcome;
}

void onCrash(int, siginfo_t *, void *context)
{
    isFailing = false;
    endChild(placeOfCrash(static_cast<const ucontext_t *>(context)));
}

void onAbort(int)
{
    endChild(Aborted);
}

void onTerminate()
{
    endChild(Terminated);
}

void listenForTheEnd()
{
    static char stack[1 << 16]; // a crash may be for want of one
    stack_t alternative = {};
    alternative.ss_sp = stack;
    alternative.ss_size = sizeof(stack);
    sigaltstack(&alternative, nullptr);
    struct sigaction crash = {};
    crash.sa_sigaction = onCrash;
    crash.sa_flags = int(SA_SIGINFO | SA_ONSTACK | SA_RESETHAND);
    for (int signal : { SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGTRAP })
        sigaction(signal, &crash, nullptr);
    std::signal(SIGABRT, onAbort);
    std::signal(SIGALRM, SIG_DFL);
    std::set_terminate(onTerminate);
    alarm(mostSeconds);
    dup2(open("/dev/null", O_WRONLY), STDERR_FILENO); // where Qt complains of exceptions
}

void note(int status)
{
    ++tally->tried;
    Outcome outcome = CrashedInOurs; // until somebody knows better
    if (WIFEXITED(status) && WEXITSTATUS(status) >= firstStatus)
        outcome = Outcome(WEXITSTATUS(status) - firstStatus);
    else if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM)
        outcome = Hung;
    else
        std::snprintf(place, longestPlace, "an unknown place, after allocation %ld: status %#x",
                      tally->allocations, unsigned(status));
    ++tally->outcomes[outcome];
    if (*place != '\0')
        ++tally->places[place];
}

// Whether the allocation that is asked for fails here: in every child, and never in the parent.
bool failsNow()
{
    if (isFailing)
        return true;
    if (!isCounting)
        return false;
    ++tally->allocations;
    if (tally->allocations % stride != 0)
        return false;
    isCounting = false;
    *place = '\0';
    const pid_t child = fork();
    if (child == 0) {
        listenForTheEnd();
        isFailing = lack == AllFurtherOnes;
        return true;
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR)
        ;
    note(status);
    isCounting = true;
    return false;
}

void *failed()
{
    errno = ENOMEM;
    return nullptr;
}

} // namespace

void setOurs(const char *library)
{
    ours = library;
}

Tally tryAll(const std::function<void()> &work, bool (*isWhole)(), Lack ofWhat, long everyHowMany)
{
    Tally found = {};
    tally = &found;
    isTargetWhole = isWhole;
    lack = ofWhat;
    stride = everyHowMany;
    place = static_cast<char *>(
        mmap(nullptr, longestPlace, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    void *frame;
    backtrace(&frame, 1); // loads what it needs
    const pid_t parent = getpid();
    isCounting = true;
    try {
        work();
    } catch (const std::bad_alloc &) {
        endChild(Thrown);
    }
    isCounting = false;
    if (getpid() != parent)
        endChild(WentOn);
    munmap(place, longestPlace);
    return found;
}

} // namespace FailingMemory

using namespace FailingMemory;

void *malloc(size_t size)
{
    return failsNow() ? failed() : __libc_malloc(size);
}

void *calloc(size_t count, size_t size)
{
    return failsNow() ? failed() : __libc_calloc(count, size);
}

void *realloc(void *memory, size_t size)
{
    return failsNow() ? failed() : __libc_realloc(memory, size);
}

void *memalign(size_t alignment, size_t size)
{
    return failsNow() ? failed() : __libc_memalign(alignment, size);
}

void *aligned_alloc(size_t alignment, size_t size)
{
    return failsNow() ? failed() : __libc_memalign(alignment, size);
}

int posix_memalign(void **memory, size_t alignment, size_t size)
{
    if (failsNow())
        return ENOMEM;
    *memory = __libc_memalign(alignment, size);
    return *memory ? 0 : ENOMEM;
}
