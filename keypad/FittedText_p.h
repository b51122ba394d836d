// SPDX-License-Identifier: MIT
#ifndef FITTEDTEXT_P_H
#define FITTEDTEXT_P_H

#include <QFont>
#include <QSize>
#include <QString>

// Texts that are drawn smaller where they would be clipped otherwise. Flags are Qt::TextFlag
// values.

namespace Keypad {

// A text may come from a dictionary and be of any length: one beyond this number of characters is
// measured and drawn only so far, as no panel is as wide.
const int longestMeasuredText = 1000;

// The pixels that \a text needs in \a font.
QSize sizeOf(const QString &text, const QFont &font, int flags);

bool fits(const QSize &size, const QSize &room);

// \a font, or as much smaller a one as \a text needs to be drawn inside \a room; not illegibly
// small. In \a isWhole, unless that is null, whether it fits then.
QFont fittedFont(const QFont &font, const QString &text, int flags, const QSize &room,
                 bool *isWhole = nullptr);

// \a text, or what of it can be drawn in \a font inside \a room, ending in an ellipsis.
QString fittedText(const QFont &font, const QString &text, int flags, const QSize &room);

} // namespace Keypad

#endif
