// SPDX-License-Identifier: MIT
#ifndef KEYSHIELD_P_H
#define KEYSHIELD_P_H

#include <QPointer>
#include <QSet>

class QDialog;
class QEvent;
class QKeyEvent;
class QObject;

namespace Fields {

// Hard keys go to the open keypad and nowhere else, not even past the event filters that the
// program has installed on its application.
class KeyShield
{
public:
    void protect(QDialog *keypad);
    void release();

    // Whether a key that was pressed in a keypad is still to be released.
    bool isBusy() const { return !m_held.isEmpty(); }

    // Returns true for an event that nobody else may see.
    bool filter(QObject *receiver, QEvent *event);

private:
    bool filterKey(QObject *receiver, QKeyEvent *event);
    bool filterLateKey(QKeyEvent *event);
    bool isForKeypad(QObject *receiver) const;

    QPointer<QDialog> m_keypad;
    QSet<int> m_held; // keys that are down
};

} // namespace Fields

#endif
