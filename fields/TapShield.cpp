// SPDX-License-Identifier: MIT
#include "TapShield_p.h"

#include "QtDifferences_p.h"

#include <QApplication>

namespace Fields {

namespace {

const int doubleTapDistance = 32; // pixels, what a finger does not feel

} // namespace

const QMouseEvent *asClick(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        return static_cast<const QMouseEvent *>(event);
    default:
        return nullptr;
    }
}

Tap::Tap()
    : time(0)
{
}

Tap::Tap(const QMouseEvent *press)
    : position(QtDifferences::globalPosition(press))
    , time(qint64(press->timestamp()))
{
}

TapShield::TapShield()
    : m_isOpen(false)
    , m_isSecondTap(false)
{
}

void TapShield::protect(const Tap &opening)
{
    m_opening = opening;
    m_isOpen = true;
    m_isSecondTap = false;
}

void TapShield::release()
{
    m_isOpen = false;
}

bool TapShield::filter(const QMouseEvent *event)
{
    if (!m_isOpen || event->button() != Qt::LeftButton)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_isSecondTap = m_isSecondTap || belongsToOpening(Tap(event));
        m_isOpen = m_isSecondTap; // a tap elsewhere is a fresh start, also for this place
        return m_isSecondTap;
    case QEvent::MouseButtonRelease: {
        const bool wasSecondTap = m_isSecondTap;
        m_isSecondTap = false;
        return wasSecondTap;
    }
    default:
        return false;
    }
}

bool TapShield::belongsToOpening(const Tap &tap) const
{
    const qint64 later = tap.time - m_opening.time;
    return m_opening.time > 0 && later >= 0 && later < QApplication::doubleClickInterval()
        && (tap.position - m_opening.position).manhattanLength() < doubleTapDistance;
}

} // namespace Fields
