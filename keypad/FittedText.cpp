// SPDX-License-Identifier: MIT
#include "FittedText_p.h"

#include <QFontInfo>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace Keypad {

namespace {

const int frameWidth = 2; // pixels
const int smallestPixelSize = 8;
// A dictionary may hold any text; measuring stops where no panel is wide enough.
const int longestMeasuredText = 1000;

QSize sizeOf(const QFont &font, const QString &text, int flags)
{
    return QFontMetrics(font).size(flags, text.left(longestMeasuredText));
}

bool fits(const QSize &size, const QSize &room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

/* \a font, made as much smaller as a text of \a size in it needs to be drawn inside \a room. */
QFont scaledDown(const QFont &font, const QSize &size, const QSize &room)
{
    const double scale =
        qMin(double(room.width()) / qMax(1, size.width()), double(room.height()) / size.height());
    QFont scaled(font);
    scaled.setPixelSize(qMax(smallestPixelSize, int(QFontInfo(font).pixelSize() * scale)));
    return scaled;
}

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
    const QSize needed = sizeOf(font(), option.text, Qt::TextShowMnemonic);
    if (!fits(needed, room))
        option.font = scaledDown(font(), needed, room);
    option.fontMetrics = QFontMetrics(option.font);

    QStylePainter painter(this);
    painter.setFont(option.font);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

int textWidth(const QLabel *label)
{
    return sizeOf(label->font(), label->text(), 0).width();
}

bool paintFitted(QLabel *label)
{
    const QRect room = label->contentsRect();
    const QSize needed = sizeOf(label->font(), label->text(), 0);
    if (fits(needed, room.size()))
        return false;
    QPainter painter(label);
    painter.setFont(scaledDown(label->font(), needed, room.size()));
    label->style()->drawItemText(&painter, room, int(label->alignment()), label->palette(),
                                 label->isEnabled(), label->text().left(longestMeasuredText),
                                 label->foregroundRole());
    return true;
}

} // namespace Keypad
