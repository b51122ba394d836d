// SPDX-License-Identifier: MIT
#include "KeyBoardLineEdit.h"

KeyBoardLineEdit::KeyBoardLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
}

// The three handlers do nothing of their own. They are kept because a class that an application has
// derived from this one calls them by these names.

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
