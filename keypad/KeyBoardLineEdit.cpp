// SPDX-License-Identifier: MIT
#include "KeyBoardLineEdit.h"

KeyBoardLineEdit::KeyBoardLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
}

void KeyBoardLineEdit::mousePressEvent(QMouseEvent *event)
{
    QLineEdit::mousePressEvent(event);
}

void KeyBoardLineEdit::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
}

void KeyBoardLineEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
}
