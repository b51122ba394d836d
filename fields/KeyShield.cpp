// SPDX-License-Identifier: MIT
#include "KeyShield_p.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

namespace Fields {

namespace {

bool isKey(const QEvent *event)
{
    return event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease
        || event->type() == QEvent::ShortcutOverride;
}

// As QApplication::notify() does it, but past the application's event filters: a key that is not
// accepted goes on to the parent.
void deliver(QWidget *receiver, QKeyEvent *event)
{
    const bool accepted = event->isAccepted();
    QPointer<QWidget> widget(receiver);
    while (widget) {
        event->setAccepted(accepted);
        QObject *object = widget;
        const bool handled = object->event(event);
        if (!widget || widget->isWindow() || (handled && event->isAccepted()))
            return;
        widget = widget->parentWidget();
    }
}

} // namespace

void KeyShield::protect(QDialog *keypad)
{
    m_keypad = keypad;
}

void KeyShield::release()
{
    m_keypad = nullptr;
}

bool KeyShield::filter(QObject *receiver, QEvent *event)
{
    if (!isKey(event))
        return false;
    QKeyEvent *key = static_cast<QKeyEvent *>(event);
    return m_keypad ? filterKey(receiver, key) : filterLateKey(key);
}

bool KeyShield::filterKey(QObject *receiver, QKeyEvent *event)
{
    if (!isForKeypad(receiver))
        return QApplication::activeModalWidget() == m_keypad; // the keypad blocks all other windows
    if (event->type() == QEvent::KeyPress)
        m_held.insert(event->key());
    else if (event->type() == QEvent::KeyRelease && !event->isAutoRepeat())
        m_held.remove(event->key());
    if (receiver->isWidgetType())
        deliver(static_cast<QWidget *>(receiver), event);
    else
        receiver->event(event); // the keypad's window, which hands it on to a widget
    return true;
}

// The keypad is closed, but the key that closed it may still be down.
bool KeyShield::filterLateKey(QKeyEvent *event)
{
    if (!m_held.contains(event->key()))
        return false;
    const bool isLast = event->type() == QEvent::KeyRelease && !event->isAutoRepeat();
    const bool isFresh = event->type() != QEvent::KeyRelease && !event->isAutoRepeat();
    if (isLast || isFresh)
        m_held.remove(event->key());
    return !isFresh;
}

bool KeyShield::isForKeypad(QObject *receiver) const
{
    if (receiver->isWidgetType())
        return static_cast<QWidget *>(receiver)->window() == m_keypad;
    return receiver == m_keypad->windowHandle();
}

} // namespace Fields
