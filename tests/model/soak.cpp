// SPDX-License-Identifier: MIT
#include "CharacterModel.h"
#include "LastWords.h"
#include "Run.h"
#include "support/QtDifferences.h"
#include "support/Text.h"

#include <QApplication>
#include <QElapsedTimer>

#include <cstdio>

// Goes on where the tests end: random actions on all keypads in turn, for as long as told.

namespace {

const int bytesInSequence = 1600; // 400 actions
const qint64 millisecondsInMinute = 60000;

// The platform that draws nowhere tells over and over what it cannot do.
HMI_MESSAGE_HANDLER(printOthers, text)
{
    const QString message = QtDifferences::messageText(text);
    if (!message.startsWith(u("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void tell(unsigned first, unsigned last, const Report *reports, qint64 milliseconds)
{
    qint64 actions = 0;
    for (int i = 0; i < KeypadCount; ++i)
        actions += reports[i].actions;
    std::printf("seeds %u to %u: %lld actions, %lld seconds, %lld actions a second\n", first, last,
                actions, milliseconds / 1000, actions * 1000 / (milliseconds + 1));
    std::fflush(stdout);
}

void tellEach(const Report *reports)
{
    for (int i = 0; i < KeypadCount; ++i)
        std::printf("%-15s %9lld actions %9s distinct states\n", className(KeypadName(i)),
                    reports[i].actions, qPrintable(reports[i].statesTold()));
}

bool goOn(KeypadName name, unsigned seed, Report *report)
{
    const QByteArray bytes = randomBytes(seed, bytesInSequence);
    if (runActions(name, reinterpret_cast<const unsigned char *>(bytes.constData()),
                   std::size_t(bytes.size()), report))
        return true;
    std::printf("seed %u, %s\n", seed, qPrintable(report->failure));
    return false;
}

// Each seed stands for one sequence on every keypad.
bool goOn(unsigned seed, Report *reports)
{
    LastWords::setSeed(seed);
    bool same = true;
    for (int i = 0; same && i < KeypadCount; ++i)
        same = goOn(KeypadName(i), seed, &reports[i]);
    return same;
}

} // namespace

// Arguments: minutes and the first seed.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    bool isSeed = false;
    const qint64 milliseconds = millisecondsInMinute * arguments.value(1).toInt();
    const unsigned first = arguments.value(2).toUInt(&isSeed);
    if (milliseconds <= 0 || !isSeed || arguments.size() != 3) {
        std::fprintf(stderr, "usage: model_soak <minutes> <seed, 0 to 4294967295>\n");
        return 2;
    }
    LastWords::keepReady();
    QtDifferences::installMessageHandler(printOthers);
    QtDifferences::readLiteralsAsGbk();
    DictionaryFile dictionary;
    dictionary.create(modelWords());
    Report reports[KeypadCount];
    QElapsedTimer clock;
    clock.start();
    qint64 told = 0;
    bool same = true;
    unsigned seed = first;
    for (; same && clock.elapsed() < milliseconds; ++seed) {
        same = goOn(seed, reports);
        if (clock.elapsed() / millisecondsInMinute > told) {
            told = clock.elapsed() / millisecondsInMinute;
            tell(first, seed, reports, clock.elapsed());
        }
    }
    tellEach(reports);
    tell(first, seed - 1, reports, clock.elapsed());
    return same ? 0 : 1;
}
