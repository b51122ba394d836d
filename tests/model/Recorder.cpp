// SPDX-License-Identifier: MIT
#include "Recorder.h"

#include "support/Text.h"

#include <QDialog>
#include <QMetaObject>
#include <QVariant>

void Recorder::attachTo(QDialog *keypad)
{
    m_keypad = keypad;
    m_target = nullptr;
    connect(keypad, SIGNAL(accepted()), SLOT(accepted()));
    connect(keypad, SIGNAL(rejected()), SLOT(rejected()));
    connect(keypad, SIGNAL(finished(int)), SLOT(finished(int)));
    const char signal[] = "signal_kTypeKeyPressed(int)";
    if (keypad->metaObject()->indexOfSignal(signal) >= 0)
        connect(keypad, SIGNAL(signal_kTypeKeyPressed(int)), SLOT(keyPressed(int)));
}

QStringList Recorder::takeHappenings()
{
    const QStringList list = m_happenings + m_finished;
    m_happenings.clear();
    m_finished.clear();
    return list;
}

// The target has been written by then.
void Recorder::accepted()
{
    note(u("accepted ") + (m_target ? m_target->property("text").toString() : QString()));
}

void Recorder::rejected()
{
    note(u("rejected"));
}

// Whether this comes before the two above, Qt's versions disagree; so it is told after all others.
void Recorder::finished(int result)
{
    m_finished << told(u("finished ") + QString::number(result));
}

void Recorder::keyPressed(int key)
{
    note(u("key ") + QString::number(key));
}

void Recorder::note(const QString &happening)
{
    m_happenings << told(happening);
}

QString Recorder::told(const QString &happening) const
{
    return happening + u(m_keypad->isVisible() ? " while it is open" : "");
}
