// SPDX-License-Identifier: MIT
#include "Run.h"

#include "Session.h"
#include "support/Text.h"

#include <cstdio>
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

QString row(KeypadName name, const QByteArray &actions, QString story)
{
    story.replace(QLatin1Char('\\'), u("\\\\")).replace(QLatin1Char('"'), u("\\\""));
    return QString::fromLatin1("    { \"%1\", \"%2\",\n      \"%3\" },")
        .arg(u(className(name)), QString::fromLatin1(actions.toHex()), story);
}

QString told(KeypadName name, const QList<Action> &actions, const QStringList &firstSeen)
{
    Session session(name);
    QStringList story;
    QStringList lines;
    if (session.run(actions, &story))
        lines << QString::fromLatin1("%1: not repeatable. Keypad and model once differed after")
                     .arg(u(className(name)));
    else
        lines << QString::fromLatin1("%1: keypad and model differ after").arg(u(className(name)));
    lines << u("    ") + story.join(u("\n    "));
    if (session.divergence().differences.isEmpty())
        lines << firstSeen;
    else
        lines << session.divergence().differences;
    lines << u("To see it again, add to the known sequences:")
          << row(name, encoded(actions), story.join(u("; ")));
    return lines.join(u("\n"));
}

void printFirst(const QString &row, const QStringList &differences)
{
    std::fprintf(stderr,
                 "Keypad and model differ:\n%s\nafter these actions, not shortened yet:\n%s\n",
                 differences.join(u("\n")).toUtf8().constData(), row.toUtf8().constData());
}

} // namespace

QString Report::statesTold() const
{
    return QString::number(states.size()) + u(states.size() < mostStates ? "" : " or more");
}

bool runActions(KeypadName name, const unsigned char *bytes, std::size_t size, Report *report)
{
    const QList<Action> actions =
        decoded(QByteArray(reinterpret_cast<const char *>(bytes), int(size)));
    QList<Action> done = actions;
    QStringList differences;
    {
        Session session(name);
        const bool same = session.run(actions);
        report->actions += session.actionsFelt();
        if (report->states.size() < Report::mostStates)
            report->states += session.states();
        if (same)
            return true;
        done = actions.mid(0, session.actionsDone() + 1);
        differences = session.divergence().differences;
    }
    printFirst(row(name, encoded(done), QString()), differences);
    report->failure = told(name, shortened(name, done), differences);
    return false;
}

QString storyOf(KeypadName name, const QByteArray &actions)
{
    QStringList story;
    Session(name).run(decoded(actions), &story);
    return story.join(u("; "));
}

QByteArray randomBytes(unsigned seed, int size)
{
    std::mt19937 random(seed);
    QByteArray bytes;
    while (bytes.size() < size)
        bytes += char(random() >> 24);
    return bytes;
}
