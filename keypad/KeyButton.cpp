// SPDX-License-Identifier: MIT
#include "KeyButton_p.h"

#include "FittedText_p.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace Keypad {

namespace {

const int frameWidth = 2; // pixels

} // namespace

KeyButton::KeyButton(QWidget *parent)
    : QToolButton(parent)
{
}

QSize KeyButton::sizeHint() const
{
    const int lineHeight = fontMetrics().height();
    return QSize(lineHeight, lineHeight);
}

QSize KeyButton::minimumSizeHint() const
{
    return QSize(0, 0);
}

void KeyButton::paintEvent(QPaintEvent *)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const QSize room = size() - QSize(2 * frameWidth, 2 * frameWidth);
    option.font = fittedFont(font(), option.text, Qt::TextShowMnemonic, room);
    option.fontMetrics = QFontMetrics(option.font);

    QStylePainter painter(this);
    painter.setFont(option.font);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

} // namespace Keypad
