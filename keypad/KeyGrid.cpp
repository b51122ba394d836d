// SPDX-License-Identifier: MIT
#include "KeyGrid_p.h"

#include "KeypadLook_p.h"
#include "QtDifferences_p.h"

#include <QDialog>
#include <QGridLayout>
#include <QToolButton>

namespace Keypad {

// Only the arrows can be translated, for fonts that lack them.
static QString labelText(const KeyCell &cell)
{
    if (cell.action == MoveLeft || cell.action == MoveRight)
        return QtDifferences::translateUtf8(cell.label);
    return QtDifferences::fromCodecLiteral(cell.label);
}

QToolButton *addKey(QDialog *keypad, QGridLayout *grid, const KeyCell &cell,
                    const char *clickedSlot)
{
    QToolButton *key = createKey(keypad, labelText(cell));
    grid->addWidget(key, cell.row, cell.column, 1, cell.columnSpan);
    QObject::connect(key, SIGNAL(clicked()), keypad, clickedSlot);
    return key;
}

void addKeys(QDialog *keypad, QGridLayout *grid, const KeyCell *cells, int count,
             QToolButton **keys, const char *clickedSlot)
{
    for (int i = 0; i < count; ++i)
        keys[i] = addKey(keypad, grid, cells[i], clickedSlot);
}

int indexOfKey(const QObject *key, QToolButton *const *keys, int count)
{
    for (int i = 0; i < count; ++i) {
        if (keys[i] == key)
            return i;
    }
    return -1;
}

} // namespace Keypad
