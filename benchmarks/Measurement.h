// SPDX-License-Identifier: MIT
#ifndef MEASUREMENT_H
#define MEASUREMENT_H

#include <functional>

struct Comparison
{
    double library; // microseconds
    double floor;   // microseconds
};

// Medians of rounds, each of which runs both operations once, in turns, so that a change of the
// processor's pace touches both alike.
Comparison compare(const std::function<void()> &library, const std::function<void()> &floor,
                   int rounds);

// The process's resident memory in KiB, or 0 where the system does not tell.
long residentMemory();

// What is allocated on the heap in KiB, or 0 where the C library does not tell.
long allocatedMemory();

#endif
