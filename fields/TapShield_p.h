// SPDX-License-Identifier: MIT
#ifndef TAPSHIELD_P_H
#define TAPSHIELD_P_H

#include <QPoint>

class QEvent;
class QMouseEvent;
class QObject;

namespace Fields {

// \a event, if a mouse button goes down or up by it, or null.
const QMouseEvent *asClick(const QEvent *event);

// A press of the left mouse button, or of a finger.
struct Tap
{
    QPoint position; // on the screen
    qint64 time;     // in milliseconds, as the windowing system counts; 0 when it does not say

    Tap();
    explicit Tap(const QMouseEvent *press);
};

// An operator who taps twice presses no key: the second tap of a double tap finds the keypad under
// the finger that the first has opened.
class TapShield
{
public:
    TapShield();

    // \a opening is the tap that opens the keypad.
    void protect(const Tap &opening);
    void release();

    // Returns true for an event in a keypad that belongs to the double tap.
    bool filter(const QMouseEvent *event);

private:
    bool belongsToOpening(const Tap &tap) const;

    Tap m_opening;
    bool m_isOpen;
    bool m_isSecondTap; // is down
};

} // namespace Fields

#endif
