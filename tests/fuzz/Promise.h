// SPDX-License-Identifier: MIT
#ifndef FUZZ_PROMISE_H
#define FUZZ_PROMISE_H

#include <QString>

#include <cstdio>
#include <cstdlib>

// Ends the program, which is what a fuzzer notices, where \a kept is false.
inline void promise(bool kept, const char *what, const QString &butWas = QString())
{
    if (kept)
        return;
    std::fprintf(stderr, "broken promise: %s; %s\n", what, qPrintable(butWas));
    std::abort();
}

#endif
