// SPDX-License-Identifier: MIT
#ifndef KEYPADWATCH_H
#define KEYPADWATCH_H

#include <QObject>

class QDialog;
class TouchField;

// Tells what the keypads do, line by line:
//
//     NumericKeypad: accepted()               a signal, with its arguments; a key by its name
//     NumericKeypad: exec() = Accepted        a result, or "Rejected"
//     Y = -12.5                               a field's name and the text that was written into it
//     warning: parts did not take "12": its "text" property is read-only
//
// A masked text is told as it is shown.
class KeypadWatch : public QObject
{
    Q_OBJECT

public:
    // Tells the signals of keypad from now on; once, however often it is asked for.
    void watch(const QDialog *keypad);

    void tellResult(const QDialog *keypad, int result);

    // Whether target, which stands for field, holds text, as it should after its keypad has been
    // accepted. Warns when it does not.
    bool tellWritten(const TouchField &field, const QObject &target, const QString &text);

    void tellText(const TouchField &field);

Q_SIGNALS:
    void told(const QString &line);

private Q_SLOTS:
    void tellAccepted();
    void tellRejected();
    void tellFinished(int result);
    void tellHardKey(int key);

private:
    void tell(const QObject *keypad, const QString &what);
};

#endif
