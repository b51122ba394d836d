// SPDX-License-Identifier: MIT
#include "KeypadShield_p.h"

#include <QApplication>
#include <QDialog>
#include <QMouseEvent>

namespace Fields {

namespace {

bool isInside(QObject *receiver, const QWidget *window)
{
    return receiver->isWidgetType() && static_cast<QWidget *>(receiver)->window() == window;
}

} // namespace

KeypadShield::KeypadShield(QObject *parent)
    : QObject(parent)
{
}

void KeypadShield::protect(QDialog *keypad, const Tap &opening)
{
    m_keypad = keypad;
    m_keys.protect(keypad);
    m_focus.protect();
    m_taps.protect(opening);
    qApp->installEventFilter(
        this); // before those of the program, also when it is installed already
}

void KeypadShield::release()
{
    m_keypad = nullptr;
    m_keys.release();
    m_focus.release();
    m_taps.release();
}

bool KeypadShield::eventFilter(QObject *receiver, QEvent *event)
{
    if (m_keys.filter(receiver, event) || m_focus.filter(receiver, event))
        return true;
    if (m_keypad) {
        const QMouseEvent *mouse = asClick(event);
        return mouse && isInside(receiver, m_keypad) && m_taps.filter(mouse);
    }
    if (!m_keys.isBusy() && !m_focus.isBusy())
        qApp->removeEventFilter(this);
    return false;
}

} // namespace Fields
