// SPDX-License-Identifier: MIT
#ifndef FOCUSSHIELD_P_H
#define FOCUSSHIELD_P_H

#include <QPointer>

class QEvent;
class QObject;
class QWidget;

namespace Fields {

// The widget that has the focus when a keypad opens does not hear that it has lost it: many fields
// take a loss of the focus for the end of their editing. When the focus comes back after the keypad
// it does not hear that either; when the focus goes elsewhere then, it hears of the loss.
class FocusShield
{
public:
    FocusShield();

    void protect();
    void release();

    // Whether the focus has yet to come back.
    bool isBusy() const { return m_isAway && m_widget; }

    // Returns true for an event that nobody else may see.
    bool filter(QObject *receiver, QEvent *event);

private:
    bool filterFocusIn(QObject *receiver);
    bool isPartOfWidget(QObject *receiver) const;

    QPointer<QWidget> m_widget;
    bool m_isOpen; // a keypad
    bool m_isAway; // the focus
};

} // namespace Fields

#endif
