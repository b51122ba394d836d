// SPDX-License-Identifier: MIT
#include "CharacterModel.h"
#include "Run.h"
#include "support/QtDifferences.h"
#include "support/Text.h"

#include <QApplication>
#include <QElapsedTimer>

#include <cstdio>

// Goes on where the tests end: random actions on all keypads in turn, for as long as told.

namespace {

const int bytesInSequence = 1600; // 400 actions

// The platform that draws nowhere tells over and over what it cannot do.
HMI_MESSAGE_HANDLER(printOthers, text)
{
    const QString message = QtDifferences::messageText(text);
    if (!message.startsWith(u("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void tell(const char *prefix, const Report *reports, qint64 milliseconds)
{
    int actions = 0, states = 0;
    for (int i = 0; i < KeypadCount; ++i) {
        actions += reports[i].actions;
        states += int(reports[i].states.size());
    }
    std::printf("%s%d actions, %d distinct states, %d seconds, %d actions a second\n", prefix,
                actions, states, int(milliseconds / 1000),
                int(actions * qint64(1000) / (milliseconds + 1)));
    std::fflush(stdout);
}

void tellEach(const Report *reports)
{
    for (int i = 0; i < KeypadCount; ++i)
        std::printf("%-15s %9d actions %9d distinct states\n", className(KeypadName(i)),
                    reports[i].actions, int(reports[i].states.size()));
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

} // namespace

// Arguments: minutes and the first seed, each of which stands for one sequence on every keypad.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const qint64 milliseconds = 60000 * arguments.value(1).toInt();
    const unsigned first = arguments.value(2).toUInt();
    if (milliseconds <= 0 || arguments.size() != 3)
        return 2;
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
        for (int i = 0; same && i < KeypadCount; ++i)
            same = goOn(KeypadName(i), seed, &reports[i]);
        if (clock.elapsed() / 60000 > told)
            tell("  ", reports, 60000 * (told = clock.elapsed() / 60000));
    }
    tellEach(reports);
    std::printf("seeds %u to %u: ", first, seed - 1);
    tell("", reports, clock.elapsed());
    return same ? 0 : 1;
}
