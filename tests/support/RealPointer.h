// SPDX-License-Identifier: MIT
#ifndef REALPOINTER_H
#define REALPOINTER_H

#include "Text.h"

#include <QPoint>
#include <QProcess>
#include <QStringList>
#include <QtTest>

// The pointer of an X server, for tests of what lies above what.

// Clicks with the left button. The events come later, from the server. Asserts that it can.
inline void clickReally(const QPoint &global)
{
    QStringList arguments(u("mousemove"));
    arguments << QString::number(global.x()) << QString::number(global.y());
    arguments << u("click") << u("1");
    QCOMPARE(QProcess::execute(u("xdotool"), arguments), 0);
}

// Handles events until \a condition holds; false when it does not within some seconds.
template <class Condition>
bool comesTrue(const Condition &condition)
{
    const int attempts = 500;
    for (int i = 0; i < attempts && !condition(); ++i)
        QTest::qWait(10);
    return condition();
}

#endif
