// SPDX-License-Identifier: MIT
#ifndef CHECKED_H
#define CHECKED_H

#include <QtTest>

// Calls a helper that asserts. A failed assertion leaves the helper alone; this ends the function
// (or lambda) that called it, too. Every call of such a helper stands in it.
#define CHECKED(...) \
    do { \
        __VA_ARGS__; \
        if (QTest::currentTestFailed()) \
            return; \
    } while (false)

#endif
