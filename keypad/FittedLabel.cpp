// SPDX-License-Identifier: MIT
#include "FittedLabel_p.h"

#include "FittedText_p.h"

#include <QPainter>
#include <QStyle>

namespace Keypad {

int textWidth(const QLabel *label)
{
    return sizeOf(label->text(), label->font(), 0).width();
}

bool paintFitted(QLabel *label)
{
    const QRect room = label->contentsRect();
    const QFont font = fittedFont(label->font(), label->text(), 0, room.size());
    if (font == label->font())
        return false;
    QPainter painter(label);
    painter.setFont(font);
    label->style()->drawItemText(&painter, room, int(label->alignment()), label->palette(),
                                 label->isEnabled(), measurable(label->text()),
                                 label->foregroundRole());
    return true;
}

} // namespace Keypad
