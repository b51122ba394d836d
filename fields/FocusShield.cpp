// SPDX-License-Identifier: MIT
#include "FocusShield_p.h"

#include <QApplication>
#include <QFocusEvent>
#include <QWidget>

namespace Fields {

FocusShield::FocusShield()
    : m_isOpen(false)
    , m_isAway(false)
{
}

void FocusShield::protect()
{
    m_isOpen = true;
    if (isBusy()) // a keypad that opens again, before the focus was back
        return;
    m_widget = QApplication::focusWidget();
    m_isAway = false;
}

void FocusShield::release()
{
    m_isOpen = false;
}

bool FocusShield::filter(QObject *receiver, QEvent *event)
{
    if (!m_widget || !receiver->isWidgetType())
        return false;
    switch (event->type()) {
    case QEvent::FocusOut:
        if (!m_isOpen || receiver != m_widget)
            return false;
        m_isAway = true;
        return true;
    case QEvent::FocusIn:
        return m_isAway && filterFocusIn(receiver);
    case QEvent::ActivationChange:
        return (m_isOpen || m_isAway) && isPartOfWidget(receiver);
    default:
        return false;
    }
}

bool FocusShield::filterFocusIn(QObject *receiver)
{
    if (receiver == m_widget) {
        m_isAway = false;
        return true;
    }
    if (m_isOpen)
        return false;
    m_isAway = false;
    QFocusEvent lost(QEvent::FocusOut);
    QApplication::sendEvent(m_widget, &lost);
    return false;
}

bool FocusShield::isPartOfWidget(QObject *receiver) const
{
    const QWidget *widget = static_cast<QWidget *>(receiver);
    return widget == m_widget || m_widget->isAncestorOf(widget);
}

} // namespace Fields
