// SPDX-License-Identifier: MIT
#ifndef KEYPADFONT_P_H
#define KEYPADFONT_P_H

#include <QFont>

class QDialog;

namespace Keypad {

const int fewKeysPoints = 28;  // of keypads whose keys never change
const int manyKeysPoints = 24; // of the others, which have more to show
const int tipPoints = 20;

// The keypads' font at \a points, in pixels at 96 dots per inch whatever the screen reports.
QFont font(int points);

// Sets that font on \a keypad, and returns it. To be called first: parts take it over as they are
// made.
QFont setDialogFont(QDialog *keypad, int points);

// Makes \a font, that of \a keypad, one of its own of every part that the keypad has by now. A font
// that the application sets on the keypad later reaches them, as with any dialog, unless there is a
// style sheet. Keys whose labels do not fit share the sizes at which these are drawn.
void setPartFonts(QDialog *keypad, const QFont &font);

} // namespace Keypad

#endif
