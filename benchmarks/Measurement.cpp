// SPDX-License-Identifier: MIT
#include "Measurement.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <vector>

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
