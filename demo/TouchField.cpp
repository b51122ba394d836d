// SPDX-License-Identifier: MIT
#include "TouchField.h"

#include "FieldTable.h"

#include <QKeyEvent>
#include <QMouseEvent>

TouchField::TouchField(const FieldRule &rule, QWidget *parent)
    : QLineEdit(QLatin1String(rule.value), parent)
    , m_rule(rule)
{
    setObjectName(QLatin1String(rule.name));
    setReadOnly(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    setFocusPolicy(Qt::StrongFocus);
    setEchoMode(rule.masked ? QLineEdit::Password : QLineEdit::Normal);
    setAlignment(rule.unit ? Qt::AlignRight : Qt::AlignLeft);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumWidth(1);
    connect(this, SIGNAL(textChanged(QString)), SLOT(showBeginning()));
    showBeginning();
}

// A finger selects nothing, so the mouse events of QLineEdit are kept from it.

void TouchField::mousePressEvent(QMouseEvent *)
{
}

void TouchField::mouseMoveEvent(QMouseEvent *)
{
}

void TouchField::mouseReleaseEvent(QMouseEvent *event)
{
    if (rect().contains(event->pos()))
        Q_EMIT tapped(this);
}

void TouchField::mouseDoubleClickEvent(QMouseEvent *)
{
}

// On a panel without a touch screen the arrow keys lead from field to field.
void TouchField::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT tapped(this);
        break;
    case Qt::Key_Up:
    case Qt::Key_Left:
        focusPreviousChild();
        break;
    case Qt::Key_Down:
    case Qt::Key_Right:
        focusNextChild();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void TouchField::showBeginning()
{
    setCursorPosition(0);
}
