// SPDX-License-Identifier: MIT
#include "FittedText_p.h"

#include <QFontInfo>
#include <QFontMetrics>

namespace Keypad {

namespace {

const int smallestPixelSize = 8;
const int longestMeasuredText = 1000;

} // namespace

QString measurable(const QString &text)
{
    return text.left(longestMeasuredText);
}

QSize sizeOf(const QString &text, const QFont &font, int flags)
{
    return QFontMetrics(font).size(flags, measurable(text));
}

QFont fittedFont(const QFont &font, const QString &text, int flags, const QSize &room)
{
    const QSize needed = sizeOf(text, font, flags);
    if (needed.width() <= room.width() && needed.height() <= room.height())
        return font;
    const double scale = qMin(double(room.width()) / qMax(1, needed.width()),
                              double(room.height()) / needed.height());
    QFont smaller(font);
    smaller.setPixelSize(qMax(smallestPixelSize, int(QFontInfo(font).pixelSize() * scale)));
    return smaller;
}

} // namespace Keypad
