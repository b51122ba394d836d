// SPDX-License-Identifier: MIT
#ifndef HARDKEYS_H
#define HARDKEYS_H

#include <QVector>

class HardKey;
class QGridLayout;
class QWidget;

// The hard keys of a panel. The library knows only whether a model has any; these are what such
// panels usually have.
namespace HardKeys {

// The keyboard beside the screen: control keys, digits, arrows, letters.
QVector<HardKey *> addKeyboard(QGridLayout *grid, int type, QWidget *parent);

// The function keys below a screen of this width: on type 13 all that a keypad hands on, otherwise
// the five below the soft keys.
QVector<HardKey *> addFunctionKeys(QGridLayout *grid, int type, int width, QWidget *parent);

// Whether a keypad on a panel of this type hands key on to the application.
bool isHandedOn(int key, int type);

} // namespace HardKeys

#endif
