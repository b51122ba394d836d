// SPDX-License-Identifier: MIT
#include "Moments.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QKeyEvent>
#include <QSpinBox>

namespace {

// clang-format off
const Moment momentTable[] = {
    { "before it is opened",                 BeforeOpening, ByConfirming  },
    { "while it is open",                    InTheLoop,     ByConfirming  },
    { "in clicked() of a typing key",        InTypingKey,   ByConfirming  },
    { "in textChanged()",                    InTextChanged, ByConfirming  },
    { "in clicked() of the confirming key",  InClicked,     ByConfirming  },
    { "in the target's setter",              InTheSetter,   ByConfirming  },
    { "in accepted()",                       InAccepted,    ByConfirming  },
    { "in finished(), confirmed",            InFinished,    ByConfirming  },
    { "in clicked() of the cancelling key",  InClicked,     ByCancelling  },
    { "in rejected()",                       InRejected,    ByCancelling  },
    { "in finished(), cancelled",            InFinished,    ByCancelling  },
    { "in rejected(), by a handed on key",   InRejected,    ByHandedOnKey },
    { "in finished(), by a handed on key",   InFinished,    ByHandedOnKey },
    { "in signal_kTypeKeyPressed()",         InKeyHandedOn, ByHandedOnKey },
    { "after it was closed",                 AfterClosing,  ByConfirming  }
};
// clang-format on

QToolButton *endingKey(const QDialog *keypad, End end)
{
    return keypad->findChild<QToolButton *>(
        QLatin1String(end == ByConfirming ? "enterKey" : "escKey"));
}

// Everything that a keypad says is heard by one object, so that a moment is one connection.
void watchFor(Once *once, QDialog *keypad, HookedField *field, const Moment &moment)
{
    switch (moment.when) {
    case InTextChanged:
        once->watch(editLine(keypad), SIGNAL(textChanged(QString)));
        break;
    case InTypingKey:
        once->watch(key(keypad, u("1")), SIGNAL(clicked()));
        break;
    case InClicked:
        once->watch(endingKey(keypad, moment.end), SIGNAL(clicked()));
        break;
    case InTheSetter:
        field->whenSet = [once] {
            once->act();
        };
        break;
    case InAccepted:
        once->watch(keypad, SIGNAL(accepted()));
        break;
    case InRejected:
        once->watch(keypad, SIGNAL(rejected()));
        break;
    case InFinished:
        once->watch(keypad, SIGNAL(finished(int)));
        break;
    case InKeyHandedOn:
        once->watch(keypad, SIGNAL(signal_kTypeKeyPressed(int)));
        break;
    case BeforeOpening:
    case InTheLoop:
    case AfterClosing:
        break;
    }
}

} // namespace

void addMomentRows(bool (*wanted)(const Moment &))
{
    QTest::addColumn<int>("moment");
    const int count = int(sizeof(momentTable) / sizeof(momentTable[0]));
    for (int i = 0; i < count; ++i) {
        if (!wanted || wanted(momentTable[i]))
            QTest::newRow(momentTable[i].name) << i;
    }
}

const Moment &momentAt(int index)
{
    return momentTable[index];
}

void HookedField::setText(const QString &text)
{
    m_text = text;
    const std::function<void()> hook = whenSet; // which goes with the field
    if (hook)
        hook();
}

Once::Once(const std::function<void()> &action)
    : m_action(action)
    , m_isDone(false)
{
}

void Once::watch(const QObject *sender, const char *signal)
{
    connect(sender, signal, SLOT(act()));
}

void Once::act()
{
    if (m_isDone)
        return;
    m_isDone = true;
    m_action();
}

void typeOne(QDialog *keypad)
{
    QApplication::setActiveWindow(keypad);
    const QList<QSpinBox *> fields = keypad->findChildren<QSpinBox *>();
    if (!fields.isEmpty())
        fields.last()->setFocus(Qt::TabFocusReason); // else its keys type nowhere
    const QPointer<QDialog> open(keypad);
    const QString before = editLine(keypad)->text();
    CHECKED(tap(keypad, u("1")));
    if (open)
        QVERIFY(editLine(keypad)->text() != before);
}

void endEntry(QDialog *keypad, End end)
{
    if (end == ByHandedOnKey) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_F5,
                        Qt::NoModifier); // nobody may hear the release
        QApplication::sendEvent(keypad->focusWidget() ? keypad->focusWidget() : keypad, &press);
        return;
    }
    QToolButton *key = endingKey(keypad, end);
    QVERIFY(key);
    key->click();
}

Outcome undisturbedOutcome(const Moment &moment)
{
    if (moment.end == ByConfirming)
        return Accepts;
    return moment.end == ByCancelling || currentKind().has(TypesText) ? Rejects : StaysOpen;
}

void enter(AnyKeypad *keypad, HookedField *field, const Moment &moment,
           const std::function<void()> &fault, Outcome expected)
{
    QDialog *dialog = keypad->dialog();
    Once once(fault);
    keypad->setObject(field);
    keypad->setText(u(currentKind().sampleText));
    if (moment.end != ByHandedOnKey || currentKind().has(TypesText))
        watchFor(&once, dialog, field, moment);
    if (moment.when == BeforeOpening)
        once.act();
    const QPointer<QDialog> open(dialog);
    CHECKED(execWhile(
        dialog,
        [&] {
            if (moment.when == InTheLoop)
                once.act();
            if (open)
                CHECKED(typeOne(dialog));
            if (open)
                CHECKED(endEntry(dialog, moment.end));
        },
        expected));
    if (moment.when == AfterClosing)
        once.act();
    QCOMPARE(once.isDone(), moment.end != ByHandedOnKey || currentKind().has(TypesText));
}

void verifyUsable(AnyKeypad *keypad)
{
    QLineEdit field;
    keypad->setObject(&field);
    keypad->setText(u(currentKind().otherText));
    CHECKED(execWhile(
        keypad->dialog(), [&] { CHECKED(endEntry(keypad->dialog(), ByConfirming)); }, Accepts));
    QCOMPARE(field.text(), u(currentKind().otherText));
}
