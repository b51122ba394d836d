// SPDX-License-Identifier: MIT
#include "Measurement.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

double microseconds(const std::function<void()> &operation)
{
    QElapsedTimer timer;
    timer.start();
    operation();
    return timer.nsecsElapsed() / 1000.0;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

Comparison compare(const std::function<void()> &library, const std::function<void()> &floor,
                   int rounds)
{
    std::vector<double> ofLibrary;
    std::vector<double> ofFloor;
    library();
    floor();
    for (int i = 0; i < rounds; ++i) {
        ofLibrary.push_back(microseconds(library));
        ofFloor.push_back(microseconds(floor));
    }
    return { median(ofLibrary), median(ofFloor) };
}

long residentMemory()
{
    QFile status(QLatin1String("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QRegularExpression line(QLatin1String("VmRSS:\\s+(\\d+) kB"));
    return line.match(QString::fromLatin1(status.readAll())).captured(1).toLong();
}

long allocatedMemory()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    const auto heap = mallinfo2();
    return long((heap.uordblks + heap.hblkhd) / 1024);
#elif defined(__GLIBC__)
    const auto heap = mallinfo();
    return long((unsigned(heap.uordblks) + unsigned(heap.hblkhd)) / 1024);
#else
    return 0;
#endif
}
