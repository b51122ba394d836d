// SPDX-License-Identifier: MIT
#include "KeyBoardLineEdit.h"

#include "FittedText_p.h"

#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleOptionFrame>

namespace {

const int cursorRoom = 2; // pixels, that a line keeps free on both sides of its text

} // namespace

KeyBoardLineEdit::KeyBoardLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
}

// The palette says how a disabled text looks. No style does something more to it, as it may do to
// that of a label.
void KeyBoardLineEdit::paintEvent(QPaintEvent *event)
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect rect = style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                           .adjusted(cursorRoom, 0, -cursorRoom, 0);
    if (isEnabled() || Keypad::fits(Keypad::sizeOf(displayText(), font(), 0), rect.size())) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    const QFont smaller = Keypad::fittedFont(font(), displayText(), 0, rect.size());
    painter.setFont(smaller);
    const QRect textRect = QStyle::alignedRect(layoutDirection(), alignment(),
                                               Keypad::sizeOf(displayText(), smaller, 0), rect);
    style()->drawItemText(&painter, textRect, 0, palette(), true, displayText(), QPalette::Text);
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
