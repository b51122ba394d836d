// SPDX-License-Identifier: MIT
#include "FieldLabel_p.h"

namespace Keypad {

FieldLabel::FieldLabel(const QString &text, QWidget *parent)
    : FittedLabel<QLabel>(text, parent, anyWidth, oneLine)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    setMinimumWidth(1); // for the policy would take the room that a value needs
}

QString FieldLabel::label() const
{
    return text();
}

int FieldLabel::wholeLabelSize() const
{
    return wholeTextSize(this);
}

bool FieldLabel::event(QEvent *event)
{
    heed(event);
    return FittedLabel<QLabel>::event(event);
}

void FieldLabel::paintEvent(QPaintEvent *event)
{
    const int size = sharedLabelSize(anySize);
    if (size == anySize) {
        FittedLabel<QLabel>::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    paintFittedText(&painter, this, size);
}

} // namespace Keypad
