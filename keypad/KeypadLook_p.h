// SPDX-License-Identifier: MIT
#ifndef KEYPADLOOK_P_H
#define KEYPADLOOK_P_H

#include <QFont>

class KeyBoardLineEdit;
class QDialog;
class QGridLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QString;
class QToolButton;
class QWidget;

// How every keypad looks: the dark scheme of panel type 13, the fonts, and the parts of which its
// face is made. On other panel types colours are left to the application's style.

namespace Keypad {

void colourDialog(QWidget *dialog);
void colourLabel(QLabel *label);
void colourEditLine(QLineEdit *editLine);
void colourKey(QToolButton *key);

/* The keypads' font at \a points, in pixels at 96 dots per inch whatever the screen reports. */
QFont font(int points);

/*
 * Lets \a layout share whatever room its dialog has. A layout's own minimum would push a dialog
 * with large labels beyond the smallest panels.
 */
void setUpLayout(QLayout *layout, int spacing);

/* A key of a keypad, owned by \a parent, that takes an equal share of its layout. */
QToolButton *createKey(QWidget *parent, const QString &label);

/* Makes a key of a button that exists. */
void setUpKey(QToolButton *key, const QString &label);

KeyBoardLineEdit *createEditLine(QDialog *keypad);

/*
 * The face of a keypad whose keys never change: its colours, a line for limits in \a tipLabel, the
 * edit line in \a editLine and, below them, the grid that is returned for the keys.
 */
QGridLayout *setUpFixedFace(QDialog *keypad, QLabel **tipLabel, KeyBoardLineEdit **editLine);

/* The last step after the keys: hides \a tipLabel, sets the fonts and the first size. */
void finishFixedFace(QDialog *keypad, QLabel *tipLabel);

} // namespace Keypad

#endif
