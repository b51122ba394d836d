// SPDX-License-Identifier: MIT
#include "ScreenView.h"

#include "PanelRunner.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

ScreenView::ScreenView(PanelRunner *panel, QWidget *parent)
    : QWidget(parent)
    , m_panel(panel)
{
    setObjectName(QLatin1String("screen"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(panel, SIGNAL(changed()), SLOT(takeSize()));
    connect(panel, SIGNAL(painted(QRect)), SLOT(updatePart(QRect)));
}

QSize ScreenView::sizeHint() const
{
    return m_panel->picture().size();
}

void ScreenView::takeSize()
{
    setFixedSize(sizeHint());
    updateGeometry();
    update();
}

void ScreenView::updatePart(const QRect &place)
{
    update(place);
}

void ScreenView::paintEvent(QPaintEvent *event)
{
    QPainter(this).drawImage(event->rect(), m_panel->picture(), event->rect());
}

// No key but Ctrl+Q is a shortcut of the simulator while the screen has the focus: the panel gets
// all others.
bool ScreenView::event(QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QWidget::event(event);
    const QKeyEvent *key = static_cast<QKeyEvent *>(event);
    event->setAccepted(key->key() != Qt::Key_Q || key->modifiers() != Qt::ControlModifier);
    return true;
}

bool ScreenView::focusNextPrevChild(bool)
{
    return false;
}

void ScreenView::mousePressEvent(QMouseEvent *event)
{
    send(*event);
}

void ScreenView::mouseMoveEvent(QMouseEvent *event)
{
    send(*event);
}

void ScreenView::mouseReleaseEvent(QMouseEvent *event)
{
    send(*event);
}

void ScreenView::mouseDoubleClickEvent(QMouseEvent *event)
{
    send(*event);
}

void ScreenView::keyPressEvent(QKeyEvent *event)
{
    send(*event);
}

void ScreenView::keyReleaseEvent(QKeyEvent *event)
{
    send(*event);
}

void ScreenView::send(const QMouseEvent &event)
{
    m_panel->send(Protocol::MouseInput { event.type(), event.pos(), int(event.button()),
                                         int(event.buttons()) });
}

void ScreenView::send(const QKeyEvent &event)
{
    m_panel->send(
        Protocol::KeyInput { event.type(), event.key(), int(event.modifiers()), event.text() });
}
