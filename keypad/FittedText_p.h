// SPDX-License-Identifier: MIT
#ifndef FITTEDTEXT_P_H
#define FITTEDTEXT_P_H

#include <QFont>
#include <QSize>
#include <QString>

// Texts that are drawn smaller where they would be clipped otherwise.

namespace Keypad {

// A dictionary may hold any text; measuring and drawing stop where no panel is wide enough.
QString measurable(const QString &text);

// The pixels that \a text needs in \a font; \a flags are Qt::TextFlag values.
QSize sizeOf(const QString &text, const QFont &font, int flags);

// \a font, or as much smaller a one as \a text needs to be drawn inside \a room.
QFont fittedFont(const QFont &font, const QString &text, int flags, const QSize &room);

} // namespace Keypad

#endif
