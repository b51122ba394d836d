// SPDX-License-Identifier: MIT
#ifndef KEYGRID_P_H
#define KEYGRID_P_H

#include "QtDifferences_p.h"

class QDialog;
class QGridLayout;
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

/* Makes one key, owned by \a keypad, one row high; its clicks go to \a clickedSlot of \a keypad. */
QToolButton *addKey(QDialog *keypad, QGridLayout *grid, const QString &label, int row, int column,
                    int columnSpan, const char *clickedSlot);

/*
 * Makes the \a count keys of \a cells and stores them in \a keys.
 */
void addKeys(QDialog *keypad, QGridLayout *grid, const KeyCell *cells, int count,
             QToolButton **keys, const char *clickedSlot);

/* The position of \a key in \a keys, or -1. */
int indexOfKey(const QObject *key, QToolButton *const *keys, int count);

/* The action of \a key by its row in \a cells; a key that is not in \a keys inserts its label. */
KeyAction actionOf(const QObject *key, const KeyCell *cells, QToolButton *const *keys, int count);

} // namespace Keypad

#endif
