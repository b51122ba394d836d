// SPDX-License-Identifier: MIT
#include "Holdings.h"
#include "Visits.h"
#include "support/DictionaryFile.h"
#include "support/MessageLog.h"
#include "support/Text.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QGraphicsView>
#include <QPixmapCache>

#include <cstdio>
#include <limits>

// endurance [openings]: opens, works and closes every keypad so many times, as a machine's operator
// does in weeks, and fails where the process then holds more than it did after the first part.

namespace {

const int warmUp = 1000;             // openings, rounded to whole rounds of visits
const int roundsWithoutPainting = 8; // painting takes most of the time

// What keypads hold that are kept comes and goes by a few kilobytes: lists keep memory for their
// next use. A single object that is left at each opening is many times this.
const double keptAllowance = 32 * 1024; // bytes

// Some twenty bytes at each opening of new keypads, of which no tool has shown the place. A QObject
// that is left at each takes several times that.
const double newAllowance = 48 * 1024;    // bytes
const double newAllowancePerOpening = 40; // bytes

// What Qt's platform without a display says of windows that have a smallest size.
const char messageOfThePlatform[] = "This plugin does not support propagateSizeHints()";

void runRounds(Operator *worker, int rounds)
{
    for (int round = 0; round < rounds; ++round) {
        for (int i = 0; i < visitCount(); ++i)
            worker->fillIn(visitAt(i), round % roundsWithoutPainting == 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

struct Growth
{
    bool isWithinAllowance;
    double bytesPerOpening;
};

// The visits of both measurements are the same, so that texts and modes are the same as well.
Growth grow(Source source, const char *what, int openings, double allowance, double perOpening)
{
    QElapsedTimer timer;
    timer.start();
    const int firstRounds = (warmUp + visitCount() - 1) / visitCount();
    const int rounds = openings / visitCount() - firstRounds;
    const int more = rounds * visitCount();
    Operator worker(source);
    runRounds(&worker, firstRounds);
    const Holdings before = currentHoldings();
    runRounds(&worker, rounds);
    const Holdings after = currentHoldings();
    std::printf("%s: %d openings, and %d more in %.0f seconds in all\n", what,
                firstRounds * visitCount(), more, double(timer.elapsed()) / 1000);
    const long long heapAllowance = static_cast<long long>(allowance + perOpening * more);
    const double bytes = double(after.heapBytes - before.heapBytes) / more;
    return Growth { isWithinAllowance(before, after, heapAllowance), bytes };
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const int openings = argc > 1 ? QByteArray(argv[1]).toInt() : 200000;
    if (openings < 3 * warmUp) {
        std::fprintf(stderr, "usage: endurance [openings, at least %d]\n", 3 * warmUp);
        return 2;
    }
    QPixmapCache::setCacheLimit(0); // its names would stay until Qt's clock tells otherwise
    DictionaryFile dictionary;
    dictionary.create(everydayWords());
    QGraphicsView view;
    view.resize(480, 272);
    view.show();
    HMIDeviceInfo::setGraphicsView(&view);

    const MessageLog log;
    const Growth bare = grow(BareDialogs, "Bare dialogs", openings / 10 + 2 * warmUp,
                             std::numeric_limits<int>::max(), 0);
    const double ofQt = qMax(0.0, bare.bytesPerOpening); // Qt 6 leaves some for each activation
    const Growth fresh = grow(NewKeypads, "New keypads", openings / 20 + 2 * warmUp, newAllowance,
                              newAllowancePerOpening);
    const Growth kept = grow(KeptKeypads, "Kept keypads", openings, keptAllowance, ofQt);
    QStringList messages = log.messages();
    messages.removeAll(QLatin1String(messageOfThePlatform));
    if (!messages.isEmpty())
        std::printf("printed: %s\n", qPrintable(messages.join(QLatin1String("\n"))));
    return bare.isWithinAllowance && fresh.isWithinAllowance && kept.isWithinAllowance
            && messages.isEmpty()
        ? 0
        : 1;
}
