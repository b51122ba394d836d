// SPDX-License-Identifier: MIT
#ifndef FAILINGMEMORY_H
#define FAILINGMEMORY_H

#include <functional>
#include <map>
#include <string>

// Memory that runs out: at the n-th allocation of a piece of work, for many n.
//
// The work is done once. At every allocation that is to fail the process forks: the child gets no
// memory, goes on as well as it can and tells how it ended; the parent gets its memory and goes on
// to the next. glibc's malloc() and its relatives are replaced for the whole program, Qt included.

namespace FailingMemory {

enum Lack {
    OneAllocation, // the n-th alone
    AllFurtherOnes // the n-th and all after it
};

enum Outcome {
    WentOn,         // the work was done to its end
    Thrown,         // std::bad_alloc reached the caller of the work
    Terminated,     // std::bad_alloc met a function of another library that lets none through
    LeftDestructor, // std::bad_alloc left a destructor that the work called, which is the end
    Aborted,        // another library called abort(), as qFatal() does
    CrashedInside,  // a signal, the innermost frame being of another library
    EndedInOurs,    // one of these three, by the library or by this program
    TargetBroken,   // the target had a text that it may not have
    Hung,           // no end within seconds
    OutcomeCount
};

struct Tally
{
    long allocations; // in the work
    long tried;
    long outcomes[OutcomeCount];
    std::map<std::string, long> places; // where the program ended, with the library's name
};

// Does \a work, with the allocations in it failing whose number can be divided by \a stride.
// Children ask \a isTargetWhole whenever they end, which must not allocate.
Tally tryAll(const std::function<void()> &work, bool (*isTargetWhole)(), Lack lack, long stride);

// The library whose ends are ours, by a part of its file's name.
void setOurs(const char *library);

} // namespace FailingMemory

#endif
