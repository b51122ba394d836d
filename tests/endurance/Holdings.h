// SPDX-License-Identifier: MIT
#ifndef HOLDINGS_H
#define HOLDINGS_H

#include <cstddef>

class QString;

// What the process holds of things that could pile up.
struct Holdings
{
    long long heapBytes;
    int openFiles;
    int sqlConnections;
    int children; // of all keypads, and theirs
    int windows;  // top-level widgets
    int widgets;  // all
};

Holdings currentHoldings();

// Tells both on the standard output. False where one has grown by more than it may.
bool isWithinAllowance(const Holdings &before, const Holdings &after, long long heapAllowance);

#endif
