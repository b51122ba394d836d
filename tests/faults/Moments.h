// SPDX-License-Identifier: MIT
#ifndef MOMENTS_H
#define MOMENTS_H

#include "support/AnyKeypad.h"

#include <QPointer>

#include <functional>

// The moments of an entry in which an application may do something that breaks it.

enum When {
    BeforeOpening,
    InTypingKey,   // in clicked() of a key that types
    InTheLoop,     // by an event of its own, while the keypad is open
    InTextChanged, // of the edit line
    InTheSetter,   // of the target's property "text"
    InAccepted,    // these four of the keypad
    InRejected,
    InFinished,
    InKeyHandedOn,
    InClicked, // of the key that ends the entry, which the keypad hears first
    AfterClosing
};

// How the operator ends the entry.
enum End { ByConfirming, ByCancelling, ByHandedOnKey };

struct Moment
{
    const char *name;
    When when;
    End end;

    // Before the text goes into the target, if it does.
    bool isBeforeWriting() const { return when <= InTextChanged; }
};

// For data functions: the column "moment", an index into momentTable().
void addMomentRows(bool (*wanted)(const Moment &) = nullptr);
const Moment &momentAt(int index);

// A field of an application's own, which does something when it has got a text.
class HookedField : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    QString text() const { return m_text; }
    void setText(const QString &text);

    std::function<void()> whenSet; // may destroy the field

private:
    QString m_text;
};

// Calls a function once: when \a sender emits \a signal for the first time, or when told to.
class Once : public QObject
{
    Q_OBJECT

public:
    explicit Once(const std::function<void()> &action);

    void watch(const QObject *sender, const char *signal);
    bool isDone() const { return m_isDone; }

public Q_SLOTS:
    void act();

private:
    std::function<void()> m_action;
    bool m_isDone;
};

// Makes an entry into \a field on \a keypad, on a panel of type 13: a text is set, one key changes
// it, and the entry ends as \a moment says; \a fault happens at that moment. Asserts that it has
// happened, and that exec() ends with \a expected.
void enter(AnyKeypad *keypad, HookedField *field, const Moment &moment,
           const std::function<void()> &fault, Outcome expected);

// How an entry ends that nothing disturbs. A keypad without text hands no key on.
Outcome undisturbedOutcome(const Moment &moment);

// Types one character. Asserts that it reaches the edit line.
void typeOne(QDialog *keypad);

// Ends an entry. Asserts that there is a key for it.
void endEntry(QDialog *keypad, End end);

// An entry into a new field, which must go well. Asserts that it did.
void verifyUsable(AnyKeypad *keypad);

#endif
