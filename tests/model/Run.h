// SPDX-License-Identifier: MIT
#ifndef MODEL_RUN_H
#define MODEL_RUN_H

#include "Machine.h"

#include <QByteArray>
#include <QSet>

#include <cstddef>

// What came of a run.
struct Report
{
    enum { mostStates = 200000 }; // are kept: a soak of days would fill the memory

    qint64 actions = 0;   // that reached the keypad
    QSet<quint64> states; // by their hashes
    QString failure;      // empty, or the shortest way found to make keypad and model differ

    // How many states, and "or more" where not all were kept.
    QString statesTold() const;
};

// Does the actions that \a bytes stand for to a new keypad and a new model, and compares them after
// each. Where they differ, false, and the report tells how to see it again. What is there already
// in the report is added to. Before the way to a difference is shortened, which takes its time, it
// is printed as it is.
bool runActions(KeypadName name, const unsigned char *bytes, std::size_t size, Report *report);

// What is done, in words, as it stands beside the known sequences.
QString storyOf(KeypadName name, const QByteArray &actions);

// Bytes that a seed stands for.
QByteArray randomBytes(unsigned seed, int size);

#endif
