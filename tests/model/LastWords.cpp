// SPDX-License-Identifier: MIT
#include "LastWords.h"

#include "Action.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

// GCC's UndefinedBehaviorSanitizer does not call back: it is to end the program by a signal.
extern "C" const char *__ubsan_default_options();
extern "C" const char *__ubsan_default_options()
{
    return "abort_on_error=1";
}

namespace {

// A signal's handler may neither allocate nor format: all is kept as it is to be printed. Of more
// actions than these the first are printed.
const int mostDigits = 2 * 8192;

char seedTold[32];
const char *volatile keypad = nullptr; // null while nothing is done to any
char digits[mostDigits];
volatile std::sig_atomic_t given = 0, done = 0; // digits

const int fatal[] = { SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTERM };
const int fatalCount = int(sizeof(fatal) / sizeof(fatal[0]));
struct sigaction former[fatalCount];

void print(const char *text, std::size_t size)
{
    while (size > 0) {
        const ssize_t written = write(STDERR_FILENO, text, size);
        if (written <= 0)
            return;
        text += written;
        size -= std::size_t(written);
    }
}

void print(const char *text)
{
    print(text, std::strlen(text));
}

void tell()
{
    const char *name = keypad;
    if (!name)
        return;
    keypad = nullptr; // a sanitizer may end the program by a signal
    print("\nThe program ends in the midst of actions");
    print(seedTold);
    print(". To see it again, add to the known sequences:\n    { \"");
    print(name);
    print("\", \"");
    print(digits, std::size_t(done));
    print("\",\n      \"\" },\n");
}

// The signal comes once more as soon as this returns, and means what it meant before.
void tellAndDie(int signal)
{
    tell();
    for (int i = 0; i < fatalCount; ++i) {
        if (fatal[i] == signal)
            sigaction(signal, &former[i], nullptr);
    }
    raise(signal);
}

void tellAndFail()
{
    if (!keypad)
        return;
    tell();
    _exit(EXIT_FAILURE);
}

// Where a sanitizer watches, it tells of most signals itself, and then calls back.
bool isTheSanitizers(int signal)
{
    return __sanitizer_set_death_callback && signal != SIGABRT && signal != SIGTERM;
}

} // namespace

void LastWords::keepReady()
{
    static char otherStack[1 << 16]; // for when the usual one has no room left
    stack_t stack = {};
    stack.ss_sp = otherStack;
    stack.ss_size = sizeof(otherStack);
    struct sigaction action = {};
    action.sa_handler = tellAndDie;
    action.sa_flags = SA_ONSTACK;
    if (__sanitizer_set_death_callback)
        __sanitizer_set_death_callback(tell);
    else
        sigaltstack(&stack, nullptr);
    for (int i = 0; i < fatalCount; ++i) {
        if (!isTheSanitizers(fatal[i]))
            sigaction(fatal[i], &action, &former[i]);
    }
    std::atexit(tellAndFail);
}

void LastWords::setSeed(unsigned seed)
{
    const QByteArray told = ", seed " + QByteArray::number(seed);
    std::strcpy(seedTold, told.constData());
}

LastWords::LastWords(KeypadName name)
{
    given = done = 0;
    keypad = className(name);
}

LastWords::~LastWords()
{
    keypad = nullptr;
}

void LastWords::begin(const QByteArray &actions)
{
    const QByteArray hex = actions.toHex().left(mostDigits);
    std::memcpy(digits, hex.constData(), std::size_t(hex.size()));
    given = int(hex.size());
}

void LastWords::goOn(int count)
{
    done = qMin(int(given), 2 * bytesPerAction * (count + 1));
}
