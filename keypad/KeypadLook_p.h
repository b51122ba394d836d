// SPDX-License-Identifier: MIT
#ifndef KEYPADLOOK_P_H
#define KEYPADLOOK_P_H

#include "KeyGrid_p.h"

class KeyBoardLineEdit;
class QDialog;
class QLabel;
class QLayout;
class QString;
class QWidget;

// How every keypad looks: the dark scheme of panel type 13, the fonts, and the parts of which its
// face is made. On other panel types colours are left to the application's style.

namespace Keypad {

void colourDialog(QWidget *dialog);
void colourLabel(QLabel *label);

const int keySpacing = 1; // pixels

// Lets \a layout, that of a dialog, share whatever room the dialog has. A layout's own minimum
// would push a dialog with large labels beyond the smallest panels.
void setUpLayout(QLayout *layout, int spacing);

// A key of a keypad, owned by \a parent, that takes an equal share of its layout.
QToolButton *createKey(QWidget *parent, const QString &label);

// Makes a key of a button that exists.
void setUpKey(QToolButton *key, const QString &label);

const char editLineName[] = "editLine";

KeyBoardLineEdit *createEditLine(QDialog *keypad);

// The whole face of a keypad whose keys never change: colours, fonts, the first size, a line for
// limits in \a tipLabel, hidden, the edit line in \a editLine and, below them, the keys of \a
// table. Clicks go to the keypad's slot_toolButton_clicked().
void setUpFixedFace(QDialog *keypad, QLabel **tipLabel, KeyBoardLineEdit **editLine,
                    const KeyTable &table);

} // namespace Keypad

#endif
