// SPDX-License-Identifier: MIT
#include "TapWatch_p.h"

#include "FieldAccess_p.h"
#include "KeypadRun_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>

namespace Fields {

namespace {

// Names what a view tells its heirs only.
struct Inside : QAbstractItemView
{
    static bool isEditing(const QAbstractItemView *view)
    {
        return (view->*(&Inside::state))() == EditingState;
    }
};

bool isView(const QWidget *field)
{
    return qobject_cast<const QAbstractItemView *>(field);
}

// The view that is editing a cell with \a widget, or null.
QAbstractItemView *viewEditingWith(const QWidget *widget)
{
    const QWidget *viewport = widget->parentWidget();
    QWidget *area = viewport ? viewport->parentWidget() : nullptr;
    QAbstractItemView *view = qobject_cast<QAbstractItemView *>(area);
    return view && view->viewport() == viewport && Inside::isEditing(view) ? view : nullptr;
}

} // namespace

TapWatch::TapWatch(QObject *parent)
    : QObject(parent)
    , m_isButtonDown(false)
    , m_isDoubleTap(false)
{
    qApp->installEventFilter(this);
}

bool TapWatch::eventFilter(QObject *receiver, QEvent *event)
{
    const QMouseEvent *click = asClick(event);
    if (click && receiver->isWindowType())
        m_isButtonDown = click->buttons() & Qt::LeftButton;
    if (!click || !receiver->isWidgetType())
        return false;
    QWidget *widget = static_cast<QWidget *>(receiver);
    if (click->type() == QEvent::MouseButtonRelease)
        release(widget, click);
    else
        press(widget, click);
    return false;
}

void TapWatch::press(QWidget *widget, const QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? widget : nullptr;
    m_isDoubleTap = event->type() == QEvent::MouseButtonDblClick;
    m_lastTap = Tap(event);
    if (m_isDoubleTap && m_pressed && !m_isButtonDown)
        release(widget, event); // a tool for tests made it up, and may leave out the release
}

void TapWatch::release(QWidget *widget, const QMouseEvent *event)
{
    const int moved = (Tap(event).position - m_lastTap.position).manhattanLength();
    const bool isTap = widget == m_pressed && event->button() == Qt::LeftButton
        && moved < QApplication::startDragDistance() && !isKeypad(widget->window());
    m_pressed = nullptr;
    QWidget *field = isTap ? fieldOf(widget) : nullptr;
    if (!field || (isView(field) && !m_isDoubleTap))
        return;
    m_tapped = field;
    QMetaObject::invokeMethod(this, "announce", Qt::QueuedConnection);
}

void TapWatch::announce()
{
    QWidget *field = m_tapped;
    m_tapped = nullptr;
    if (!field)
        return;
    if (QAbstractItemView *view = viewEditingWith(field))
        Q_EMIT tapped(view);
    else if (!isView(field) || Inside::isEditing(static_cast<QAbstractItemView *>(field)))
        Q_EMIT tapped(field);
}

} // namespace Fields
