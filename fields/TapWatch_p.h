// SPDX-License-Identifier: MIT
#ifndef TAPWATCH_P_H
#define TAPWATCH_P_H

#include "TapShield_p.h"

#include <QObject>
#include <QPointer>

class QAbstractItemView;
class QMouseEvent;
class QWidget;

namespace Fields {

// Sees every tap in the program and says which of them are meant for a field: a tap on a field,
// and a double tap on a cell that the view is about to edit.
class TapWatch : public QObject
{
    Q_OBJECT

public:
    explicit TapWatch(QObject *parent);

    // The last time that the operator touched the screen.
    const Tap &lastTap() const { return m_lastTap; }

Q_SIGNALS:
    // A field was tapped. Sent when the field itself has dealt with the tap.
    void tapped(QWidget *field);

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private Q_SLOTS:
    void announce();

private:
    void press(QWidget *widget, const QMouseEvent *event);
    void release(QWidget *widget, const QMouseEvent *event);

    Tap m_lastTap;
    bool m_isButtonDown; // as the windowing system has it
    bool m_isDoubleTap;
    QPointer<QWidget> m_pressed; // the widget under the finger
    QPointer<QWidget> m_tapped;  // the field to be announced
};

} // namespace Fields

#endif
