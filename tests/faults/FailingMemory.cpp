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
#include <unwind.h>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
}

namespace FailingMemory {

namespace {

const int mostSeconds = 20;
const int mostFrames = 200;
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
char *place = nullptr;                     // of the end, in memory that parent and child share
void *functionWithoutExceptions = nullptr; // while an exception ends the program there

[[noreturn]] void endChild(Outcome outcome)
{
    isFailing = false;
    isCounting = false;
    _exit(firstStatus + (isTargetWhole() ? outcome : TargetBroken));
}

// How a child came to its end, and what that is called where nothing of ours was to blame.
struct End
{
    const char *name;
    Outcome outcomeOfOthers;
};
const End crash = { "a signal", CrashedInside };
const End abortion = { "abort()", Aborted };
const End termination = { "std::terminate()", Terminated };

// What stands in for the system's functions here, and what ends a program on behalf of its caller.
const char *const standIns[] = { "malloc",
                                 "calloc",
                                 "realloc",
                                 "memalign",
                                 "aligned_alloc",
                                 "posix_memalign",
                                 "__gxx_personality_v0" };
const char *const throwers[] = { "__cxa_throw", "__cxa_rethrow" };
const char *const reporters[] = { "_ZNK14QMessageLogger5fatalEPKcz", "_Z9qt_assertPKcS0_i",
                                  "_Z11qt_assert_xPKcS0_S0_i", "_Z10qTerminatev" };

template <size_t count>
bool isNamed(const Dl_info &frame, const char *const (&names)[count])
{
    for (const char *name : names) {
        if (frame.dli_sname && std::strcmp(frame.dli_sname, name) == 0)
            return true;
    }
    return false;
}

bool isOf(const Dl_info &frame, const char *library)
{
    return frame.dli_fname && std::strstr(frame.dli_fname, library);
}

bool isOfTheSystem(const Dl_info &frame)
{
    return !frame.dli_fname || isOf(frame, "/libc.so") || isOf(frame, "/libstdc++")
        || isOf(frame, "/libgcc_s") || isOf(frame, "/ld-linux") || isOf(frame, "linux-vdso")
        || isNamed(frame, standIns);
}

bool isProgram(const Dl_info &frame)
{
    return !isOf(frame, ".so");
}

// The frame to which a call returns; the byte before is the call's, which may end its function.
bool findFrame(void *address, Dl_info *frame)
{
    return address && dladdr(static_cast<char *>(address) - 1, frame);
}

// Notes the place, if a library or program is there.
bool findPlace(void *address, const End &end, Outcome *outcome)
{
    Dl_info frame;
    if (!findFrame(address, &frame) || isOfTheSystem(frame) || isNamed(frame, reporters))
        return false;
    *outcome = isProgram(frame) || isOf(frame, ours) ? EndedInOurs : end.outcomeOfOthers;
    if (*outcome == EndedInOurs) {
        std::snprintf(place, longestPlace, "%s in %s, address %#tx, at allocation %ld", end.name,
                      frame.dli_fname,
                      static_cast<char *>(address) - static_cast<char *>(frame.dli_fbase),
                      tally->allocations);
    } else {
        std::snprintf(place, longestPlace, "%s in %s: %s", end.name, frame.dli_fname,
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

// The frames of a handler come first, then one of the system, which called it.
Outcome innermostPlace(const End &end)
{
    void *frames[mostFrames];
    const int count = backtrace(frames, mostFrames);
    Dl_info frame;
    int first = 0;
    while (first < count && !(findFrame(frames[first], &frame) && isOfTheSystem(frame)))
        ++first;
    for (int i = first; i < count; ++i) {
        if (findFrame(frames[i], &frame) && isNamed(frame, reporters))
            first = i + 1;
    }
    Outcome outcome = EndedInOurs; // until somebody knows better
    for (int i = first; i < count; ++i) {
        if (findPlace(frames[i], end, &outcome))
            return outcome;
    }
    std::snprintf(place, longestPlace, "%s in an unknown place, after allocation %ld", end.name,
                  tally->allocations);
    return outcome;
}

void onSignal(int signal, siginfo_t *, void *context)
{
    isFailing = false;
    Outcome outcome = EndedInOurs;
    if (signal == SIGABRT)
        endChild(innermostPlace(abortion));
    if (findPlace(callerOfNothing(static_cast<const ucontext_t *>(context)), crash, &outcome))
        endChild(outcome);
    endChild(innermostPlace(crash));
}

// Where the unwinder found no way on, though the program would have caught the exception.
void *endOfTheWay()
{
    void *frames[mostFrames];
    Dl_info frame;
    int last = backtrace(frames, mostFrames) - 1;
    bool isThrown = false;
    for (int i = 0; i <= last; ++i)
        isThrown = isThrown || (findFrame(frames[i], &frame) && isNamed(frame, throwers));
    return isThrown ? frames[last] : nullptr;
}

// Not the function that has thrown is to blame, but the one that must let no exception out, or that
// the exception cannot pass. In this program that is the deletion of what it has built.
void onTerminate()
{
    isFailing = false;
    Outcome outcome = EndedInOurs;
    Dl_info frame;
    if (findFrame(functionWithoutExceptions, &frame) && isProgram(frame))
        endChild(LeftDestructor);
    for (void *blamed : { functionWithoutExceptions, endOfTheWay() }) {
        if (findPlace(blamed, termination, &outcome))
            endChild(outcome);
    }
    endChild(innermostPlace(termination));
}

void listenForTheEnd()
{
    static char stack[1 << 16]; // a crash may be for want of one
    stack_t alternative = {};
    alternative.ss_sp = stack;
    alternative.ss_size = sizeof(stack);
    sigaltstack(&alternative, nullptr);
    struct sigaction action = {};
    action.sa_sigaction = onSignal;
    action.sa_flags = int(SA_SIGINFO | SA_ONSTACK | SA_RESETHAND);
    for (int signal : { SIGABRT, SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGTRAP })
        sigaction(signal, &action, nullptr);
    std::signal(SIGALRM, SIG_DFL);
    std::set_terminate(onTerminate);
    alarm(mostSeconds);
    dup2(open("/dev/null", O_WRONLY), STDERR_FILENO); // where Qt complains of exceptions
}

void note(int status)
{
    ++tally->tried;
    Outcome outcome = EndedInOurs; // until somebody knows better
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

// Is asked by the unwinder what to do in a frame. What ends the program by std::terminate() does so
// from within the question. The ABI of 32-bit ARM asks otherwise: there the thrower is told.
#ifndef __ARM_EABI_UNWINDER__
extern "C" __attribute__((visibility("default"))) _Unwind_Reason_Code __gxx_personality_v0(
    int version, _Unwind_Action actions, _Unwind_Exception_Class type, _Unwind_Exception *exception,
    _Unwind_Context *context)
{
    typedef _Unwind_Reason_Code Personality(int, _Unwind_Action, _Unwind_Exception_Class,
                                            _Unwind_Exception *, _Unwind_Context *);
    static Personality *const next =
        reinterpret_cast<Personality *>(dlsym(RTLD_NEXT, "__gxx_personality_v0"));
    if (actions & _UA_HANDLER_FRAME)
        functionWithoutExceptions = reinterpret_cast<void *>(_Unwind_GetIP(context));
    const _Unwind_Reason_Code answer = next(version, actions, type, exception, context);
    functionWithoutExceptions = nullptr;
    return answer;
}
#endif
