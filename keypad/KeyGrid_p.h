// SPDX-License-Identifier: MIT
#ifndef KEYGRID_P_H
#define KEYGRID_P_H

class QDialog;
class QGridLayout;
class QObject;
class QToolButton;

// A keypad's face as a table: one row a key, in the order in which the keys are created.

namespace Keypad {

enum KeyAction {
    InsertLabel,
    InsertSpace,
    ToggleSign,
    MoveLeft,
    MoveRight,
    Backspace,
    Cancel,
    Confirm
};

struct KeyCell
{
    const char *label; // UTF-8, or a codec literal
    int row, column;   // cell in the grid, from 0
    int columnSpan;    // at least 1
    KeyAction action;
};

/*
 * Makes the key of \a cell, owned by \a keypad, in \a grid; its clicks go to \a clickedSlot of the
 * keypad.
 */
QToolButton *addKey(QDialog *keypad, QGridLayout *grid, const KeyCell &cell,
                    const char *clickedSlot);

/* Makes the \a count keys of \a cells and stores them in \a keys. */
void addKeys(QDialog *keypad, QGridLayout *grid, const KeyCell *cells, int count,
             QToolButton **keys, const char *clickedSlot);

/* The position of \a key in \a keys, or -1. */
int indexOfKey(const QObject *key, QToolButton *const *keys, int count);

/*
 * Makes the keys of a table whose rows say which member of \a keypad a key is, and its cell:
 * struct { QToolButton *Owner::*key; KeyCell cell; }
 */
template <class Owner, class NamedKey, int count>
void addNamedKeys(Owner *keypad, QGridLayout *grid, const NamedKey (&keys)[count],
                  const char *clickedSlot)
{
    for (const NamedKey &named : keys)
        keypad->*named.key = addKey(keypad, grid, named.cell, clickedSlot);
}

/* The action of \a key by its row in such a table; a key that has no row inserts its label. */
template <class Owner, class NamedKey, int count>
KeyAction actionOf(const QToolButton *key, const Owner *keypad, const NamedKey (&keys)[count])
{
    for (const NamedKey &named : keys) {
        if (keypad->*named.key == key)
            return named.cell.action;
    }
    return InsertLabel;
}

} // namespace Keypad

#endif
