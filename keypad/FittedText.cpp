// SPDX-License-Identifier: MIT
#include "FittedText_p.h"

#include <QFontInfo>
#include <QFontMetrics>

#include <cmath>

namespace Keypad {

namespace {

const int smallestPixelSize = 8;

// At least the pixel size that makes \a needed, measured at \a pixelSize, fit into \a room.
int largestPixelSize(int pixelSize, const QSize &needed, const QSize &room)
{
    const double scale = qMin(double(room.width()) / qMax(1, needed.width()),
                              double(room.height()) / qMax(1, needed.height()));
    return int(std::ceil(pixelSize * scale)) + 1; // sizes do not quite follow the pixel size
}

} // namespace

QSize sizeOf(const QString &text, const QFont &font, int flags)
{
    return QFontMetrics(font).size(flags, text.left(longestMeasuredText));
}

bool fits(const QSize &size, const QSize &room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

QFont fittedFont(const QFont &font, const QString &text, int flags, const QSize &room,
                 bool *isWhole)
{
    const QSize needed = sizeOf(text, font, flags);
    QFont fitted(font);
    bool isFitting = fits(needed, room);
    if (!isFitting) {
        const int pixelSize = QFontInfo(font).pixelSize();
        const int least = qMin(pixelSize, smallestPixelSize);
        int size = qMin(pixelSize, largestPixelSize(pixelSize, needed, room)) + 1;
        do {
            fitted.setPixelSize(qMax(--size, least));
            isFitting = fits(sizeOf(text, fitted, flags), room);
        } while (!isFitting && size > least);
    }
    if (isWhole)
        *isWhole = isFitting;
    return fitted;
}

QString fittedText(const QFont &font, const QString &text, int flags, const QSize &room)
{
    const QString start = text.left(longestMeasuredText);
    if (sizeOf(start, font, flags).width() <= room.width())
        return start;
    return QFontMetrics(font).elidedText(start, Qt::ElideRight, room.width(), flags);
}

} // namespace Keypad
