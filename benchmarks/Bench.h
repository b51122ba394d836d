// SPDX-License-Identifier: MIT
#ifndef BENCH_H
#define BENCH_H

#include <QString>

#include <functional>

// What is measured, with what has to be done before and after it each time.
struct Operation
{
    std::function<void()> prepare, run, undo;
};

struct Row
{
    QString name;
    double most; // times the floor, or 0 where nothing is promised
    int rounds;  // that give a time which repeats
};

// Measures the library beside its floor, and prints both with their ratio.
class Bench
{
public:
    virtual ~Bench() = default;
    virtual void compare(const Row &row, const Operation &library, const Operation &floor) = 0;
};

// In microseconds: medians of rounds, each of which runs both operations once, in turns, so that a
// change of the processor's pace touches both alike.
class TimeBench : public Bench
{
public:
    TimeBench();
    void compare(const Row &row, const Operation &library, const Operation &floor) override;
};

// In instructions, which Valgrind's callgrind writes into its files: one for each operation and
// side, that is described by what this has printed of it.
class InstructionBench : public Bench
{
public:
    InstructionBench(); // prints what the counts depend on beside the library
    void compare(const Row &row, const Operation &library, const Operation &floor) override;

    // Whether this program runs under Valgrind, and was compiled to tell it what to count.
    static bool isPossible();
};

// In KiB of the heap that stay allocated between run and undo: means of both orders, after both
// have been run for what Qt keeps.
class HeapBench : public Bench
{
public:
    HeapBench();
    void compare(const Row &row, const Operation &library, const Operation &floor) override;

    static bool isPossible();
    static double allocated(); // KiB
};

// The process's resident memory in KiB, or 0 where the system does not tell.
long residentMemory();

#endif
