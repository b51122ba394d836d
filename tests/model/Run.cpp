// SPDX-License-Identifier: MIT
#include "Run.h"

#include "Session.h"
#include "support/Text.h"

#include <random>

namespace {

bool differs(KeypadName name, const QList<Action> &actions)
{
    return !Session(name).run(actions);
}

QList<Action> without(const QList<Action> &actions, int from, int count)
{
    return actions.mid(0, from) + actions.mid(from + count);
}

// Leaves actions out, first many at a time, as long as keypad and model still differ.
QList<Action> shortened(KeypadName name, QList<Action> actions)
{
    for (int count = int(actions.size()) / 2; count > 0;) {
        bool shorter = false;
        for (int from = int(actions.size()) - count; from >= 0; from -= count) {
            const QList<Action> fewer = without(actions, from, count);
            if (differs(name, fewer)) {
                actions = fewer;
                shorter = true;
            }
        }
        if (!shorter || count > 1)
            count = shorter && count == 1 ? 1 : count / 2;
    }
    return actions;
}

QString told(KeypadName name, const QList<Action> &actions)
{
    Session session(name);
    QStringList story;
    session.run(actions, &story);
    QStringList lines(
        QString::fromLatin1("%1: keypad and model differ after").arg(u(className(name))));
    lines << u("    ") + story.join(u("\n    ")) << session.divergence().differences
          << u("To see it again, add to the known sequences:")
          << QString::fromLatin1("    { \"%1\", \"%2\" },")
                 .arg(u(className(name)), QString::fromLatin1(encoded(actions).toHex()));
    return lines.join(u("\n"));
}

} // namespace

bool runActions(KeypadName name, const unsigned char *bytes, std::size_t size, Report *report)
{
    const QList<Action> actions =
        decoded(QByteArray(reinterpret_cast<const char *>(bytes), int(size)));
    int done = 0;
    {
        Session session(name);
        const bool same = session.run(actions);
        done = session.actionsDone();
        report->actions += done;
        report->states += session.states();
        if (same)
            return true;
    }
    report->failure = told(name, shortened(name, actions.mid(0, done + 1)));
    return false;
}

QByteArray randomBytes(unsigned seed, int size)
{
    std::mt19937 random(seed);
    QByteArray bytes;
    while (bytes.size() < size)
        bytes += char(random() >> 24);
    return bytes;
}
