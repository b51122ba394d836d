// SPDX-License-Identifier: MIT
#include "KeyGrid_p.h"

#include "KeypadLook_p.h"

#include <QDialog>
#include <QGridLayout>
#include <QToolButton>

namespace Keypad {

static QString labelText(const KeyCell &cell)
{
    if (cell.action == MoveLeft || cell.action == MoveRight)
        return QtDifferences::translateUtf8(cell.label);
    return QtDifferences::fromCodecLiteral(cell.label);
}

QToolButton *addKey(QDialog *keypad, QGridLayout *grid, const QString &label, int row, int column,
                    int columnSpan, const char *clickedSlot)
{
    QToolButton *key = createKey(keypad, label);
    grid->addWidget(key, row, column, 1, columnSpan);
    QObject::connect(key, SIGNAL(clicked()), keypad, clickedSlot);
    return key;
}

void addKeys(QDialog *keypad, QGridLayout *grid, const KeyCell *cells, int count,
             QToolButton **keys, const char *clickedSlot)
{
    for (int i = 0; i < count; ++i) {
        const KeyCell &cell = cells[i];
        keys[i] = addKey(keypad, grid, labelText(cell), cell.row, cell.column, cell.columnSpan,
                         clickedSlot);
    }
}

int indexOfKey(const QObject *key, QToolButton *const *keys, int count)
{
    for (int i = 0; i < count; ++i) {
        if (keys[i] == key)
            return i;
    }
    return -1;
}

KeyAction actionOf(const QObject *key, const KeyCell *cells, QToolButton *const *keys, int count)
{
    const int i = indexOfKey(key, keys, count);
    return i < 0 ? InsertLabel : cells[i].action;
}

} // namespace Keypad
