// SPDX-License-Identifier: MIT
#include "KeyBoardLineEdit.h"

KeyBoardLineEdit::KeyBoardLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
}

// The three handlers do nothing of their own. They are kept because an application that was built
// against this class calls them through its table of virtual functions, of which they are a part.

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
