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

// Sets that font on \a keypad. To be called first: parts take it over as they are made.
void setDialogFont(QDialog *keypad, int points);

// Makes that font one of its own of every part that \a keypad has by now. A font that the
// application sets on the keypad later reaches them, as with any dialog, unless there is a style
// sheet. Keys whose labels do not fit share the sizes at which these are drawn.
void setUpFonts(QDialog *keypad, int points);

} // namespace Keypad

#endif
