// SPDX-License-Identifier: MIT
#include "KeyGrid_p.h"

#include "KeypadLook_p.h"
#include "QtDifferences_p.h"

#include <QDialog>
#include <QGridLayout>
#include <QToolButton>

namespace Keypad {

namespace {

// Only the arrows can be translated, for fonts that lack them.
QString labelText(const KeyCell &cell)
{
    if (cell.action == MoveLeft || cell.action == MoveRight)
        return QtDifferences::translateUtf8(cell.label);
    return QtDifferences::fromCodecLiteral(cell.label);
}

} // namespace

void addKeys(QDialog *keypad, QGridLayout *grid, const KeyCell *cells, const KeyMembers &members)
{
    for (int i = 0; i < members.size(); ++i) {
        QToolButton *key = createKey(keypad, labelText(cells[i]));
        grid->addWidget(key, cells[i].row, cells[i].column, 1, cells[i].columnSpan);
        *members.at(i) = key;
    }
}

int placeOf(const QObject *key, const KeyMembers &members)
{
    for (int i = 0; i < members.size(); ++i) {
        if (*members.at(i) == key)
            return i;
    }
    return -1;
}

} // namespace Keypad
