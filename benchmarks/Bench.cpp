// SPDX-License-Identifier: MIT
#include "Bench.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFontInfo>
#include <QRegularExpression>
#include <QSysInfo>
#include <QTextStream>

#include <algorithm>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#ifdef __has_include
#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#define HMI_HAS_CALLGRIND
#endif
#endif

namespace {

const int nameWidth = 60;
const int uncountedRounds = 3;
const int fewestCounted = 5;
const int mostCounted = 50;

void printHeading(const char *unit)
{
    QTextStream(stdout) << QString::fromLatin1(unit).leftJustified(nameWidth)
                        << "   library     floor   ratio  at most\n";
}

void print(const Row &row, double library, double floor)
{
    const double ratio = library / floor;
    QTextStream out(stdout);
    out << row.name.leftJustified(nameWidth) << ' '
        << QString::number(library, 'f', 1).rightJustified(9) << ' '
        << QString::number(floor, 'f', 1).rightJustified(9) << ' '
        << QString::number(ratio, 'f', 2).rightJustified(7);
    if (row.most > 0)
        out << ' ' << QString::number(row.most, 'f', 2).rightJustified(8)
            << (ratio > row.most ? "  missed" : "");
    out << '\n';
}

template <class Measure>
auto measured(const Operation &operation, Measure measure) -> decltype(measure(operation.run))
{
    operation.prepare();
    const auto result = measure(operation.run);
    operation.undo();
    return result;
}

double microseconds(const std::function<void()> &run)
{
    QElapsedTimer timer;
    timer.start();
    run();
    return timer.nsecsElapsed() / 1000.0;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double growth(const std::function<void()> &run)
{
    const double before = HeapBench::allocated();
    run();
    return HeapBench::allocated() - before;
}

#ifdef HMI_HAS_CALLGRIND
// The first rounds, after which the style has pictures of the keys in all their states, are not
// counted.
void count(const Operation &operation, int rounds, const QString &description)
{
    for (int i = 0; i < uncountedRounds; ++i)
        measured(operation, microseconds);
    for (int i = 0; i < rounds; ++i) {
        operation.prepare();
        CALLGRIND_TOGGLE_COLLECT;
        operation.run();
        CALLGRIND_TOGGLE_COLLECT;
        operation.undo();
    }
    CALLGRIND_DUMP_STATS_AT(description.toUtf8().constData());
}
#else
void count(const Operation &, int, const QString &)
{
}
#endif

} // namespace

TimeBench::TimeBench()
{
    printHeading("microseconds, medians");
}

void TimeBench::compare(const Row &row, const Operation &library, const Operation &floor)
{
    std::vector<double> ofLibrary;
    std::vector<double> ofFloor;
    measured(library, microseconds);
    measured(floor, microseconds);
    for (int i = 0; i < row.rounds; ++i) {
        ofLibrary.push_back(measured(library, microseconds));
        ofFloor.push_back(measured(floor, microseconds));
    }
    print(row, median(ofLibrary), median(ofFloor));
}

InstructionBench::InstructionBench()
{
    QTextStream(stdout) << "conditions: Qt " << qVersion() << ", compiler " << __VERSION__ << ", "
                        << QSysInfo::buildAbi() << ", font "
                        << QFontInfo(QFont(QLatin1String("simsun"))).family() << '\n';
}

void InstructionBench::compare(const Row &row, const Operation &library, const Operation &floor)
{
    const int rounds = qBound(fewestCounted, row.rounds / 20, mostCounted);
    const QString description =
        QString::fromLatin1("%1|%2|%3").arg(row.name).arg(row.most).arg(rounds);
    count(library, rounds, description + QLatin1String("|library"));
    count(floor, rounds, description + QLatin1String("|floor"));
    QTextStream(stdout) << "counted: " << row.name << '\n';
}

bool InstructionBench::isPossible()
{
#ifdef HMI_HAS_CALLGRIND
    return RUNNING_ON_VALGRIND;
#else
    return false;
#endif
}

HeapBench::HeapBench()
{
    printHeading("KiB of heap");
}

void HeapBench::compare(const Row &row, const Operation &library, const Operation &floor)
{
    for (int i = 0; i < 2; ++i) {
        measured(library, growth);
        measured(floor, growth);
    }
    double ofLibrary = measured(library, growth);
    double ofFloor = measured(floor, growth);
    ofFloor += measured(floor, growth);
    ofLibrary += measured(library, growth);
    print(row, ofLibrary / 2, ofFloor / 2);
}

double HeapBench::allocated()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    const auto heap = mallinfo2();
    return (heap.uordblks + heap.hblkhd) / 1024.0;
#elif defined(__GLIBC__)
    const auto heap = mallinfo();
    return (unsigned(heap.uordblks) + unsigned(heap.hblkhd)) / 1024.0;
#else
    return 0;
#endif
}

bool HeapBench::isPossible()
{
    return allocated() > 0;
}

long residentMemory()
{
    QFile status(QLatin1String("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QRegularExpression line(QLatin1String("VmRSS:\\s+(\\d+) kB"));
    return line.match(QString::fromLatin1(status.readAll())).captured(1).toLong();
}
