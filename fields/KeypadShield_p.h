// SPDX-License-Identifier: MIT
#ifndef KEYPADSHIELD_P_H
#define KEYPADSHIELD_P_H

#include "FocusShield_p.h"
#include "KeyShield_p.h"
#include "TapShield_p.h"

#include <QObject>

namespace Fields {

// Stands between an open keypad and the program, so that each goes on as if the other were not
// there. While it has something to do it is the application's first event filter.
class KeypadShield : public QObject
{
public:
    explicit KeypadShield(QObject *parent);

    // \a opening is the tap that opens the keypad.
    void protect(QDialog *keypad, const Tap &opening);
    void release();

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    QPointer<QDialog> m_keypad;
    KeyShield m_keys;
    FocusShield m_focus;
    TapShield m_taps;
};

} // namespace Fields

#endif
