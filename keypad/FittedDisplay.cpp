// SPDX-License-Identifier: MIT
#include "FittedDisplay_p.h"

#include "FittedText_p.h"

#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleOptionFrame>

namespace Keypad {

namespace {

const int cursorRoom = 2; // pixels, that a line keeps free on both sides of its text

} // namespace

FittedDisplay::FittedDisplay(QWidget *parent)
    : KeyBoardLineEdit(parent)
{
}

// The palette says how a disabled text looks. No style does something more to it, as it may do to
// that of a label.
void FittedDisplay::paintEvent(QPaintEvent *event)
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect rect = style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                           .adjusted(cursorRoom, 0, -cursorRoom, 0);
    if (isEnabled() || fits(sizeOf(displayText(), font(), 0), rect.size())) {
        KeyBoardLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    const QFont smaller = fittedFont(font(), displayText(), 0, rect.size());
    painter.setFont(smaller);
    const QRect textRect = QStyle::alignedRect(layoutDirection(), alignment(),
                                               sizeOf(displayText(), smaller, 0), rect);
    style()->drawItemText(&painter, textRect, 0, palette(), true, displayText(), QPalette::Text);
}

} // namespace Keypad
