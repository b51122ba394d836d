// SPDX-License-Identifier: MIT
#ifndef OUTOFMEMORY_P_H
#define OUTOFMEMORY_P_H

#include <qglobal.h>

// Included before everything else. Without exceptions Qt's containers, whose code is compiled into
// this library, do not look at what they are given when memory has run out, and write to address 0.
// Here they answer with std::bad_alloc all the same, which Qt throws on their behalf.
#undef Q_CHECK_PTR
#define Q_CHECK_PTR(pointer) \
    do { \
        if (!(pointer)) \
            qBadAlloc(); \
    } while (false)

#endif
