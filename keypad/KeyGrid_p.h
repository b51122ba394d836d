// SPDX-License-Identifier: MIT
#ifndef KEYGRID_P_H
#define KEYGRID_P_H

#include <QVector>

class QDialog;
class QGridLayout;
class QObject;
class QString;
class QToolButton;

// A keypad's face as a table: one row a key, in the order in which the keys are created. A key is
// known by its row, never by its label, which an application may change.

namespace Keypad {

enum KeyAction {
    InsertLabel,
    InsertSpace,
    ToggleSign,
    MoveLeft,
    MoveRight,
    Backspace,
    Cancel,
    Confirm,
    SwitchCase, // the last three show another key set, in a keypad that has several
    SwitchLanguage,
    SwitchSymbols
};

struct KeyCell
{
    const char *label; // UTF-8, or a codec literal
    int row, column;   // cell in the grid, from 0
    int columnSpan;    // at least 1
    KeyAction action;
};

// Names \a key by what it does, or else by \a label, the one that it has at first: its object name,
// the same in every keypad, and an accessible name where its label is but a sign.
void nameKey(QToolButton *key, KeyAction action, const QString &label);

// Where a keypad keeps its keys, in the order of their cells.
typedef QVector<QToolButton **> KeyMembers;

// Makes a key of each of \a cells, owned by \a keypad, in \a grid, and stores it in \a members, of
// which there are as many.
void addKeys(QDialog *keypad, QGridLayout *grid, const KeyCell *cells, const KeyMembers &members);

// The position of \a key in \a members, or -1.
int placeOf(const QObject *key, const KeyMembers &members);

} // namespace Keypad

#endif
