// SPDX-License-Identifier: MIT
#include "KeyGrid_p.h"

#include "KeypadLook_p.h"
#include "QtDifferences_p.h"

#include <QCoreApplication>
#include <QDialog>
#include <QGridLayout>
#include <QToolButton>

namespace Keypad {

namespace {

// clang-format off
const struct
{
    KeyAction action;
    KeyLabel objectName;
    KeyLabel accessibleName; // empty where the label says it
} actionNames[] = {
    { InsertSpace,    "spaceKey",     QT_TRANSLATE_NOOP("Keypad", "Space")        },
    { ToggleSign,     "signKey",      QT_TRANSLATE_NOOP("Keypad", "Sign")         },
    { MoveLeft,       "leftKey",      QT_TRANSLATE_NOOP("Keypad", "Cursor left")  },
    { MoveRight,      "rightKey",     QT_TRANSLATE_NOOP("Keypad", "Cursor right") },
    { Backspace,      "backspaceKey", QT_TRANSLATE_NOOP("Keypad", "Backspace")    },
    { Cancel,         "escKey",       ""                                          },
    { Confirm,        "enterKey",     ""                                          },
    { SwitchCase,     "capsKey",      ""                                          },
    { SwitchLanguage, "languageKey",  ""                                          },
    { SwitchSymbols,  "symbolsKey",   ""                                          }
};

// A style sheet could not name a key by these labels.
const struct
{
    char label;
    KeyLabel objectName;
} signNames[] = {
    { '.', "pointKey"  },
    { ',', "commaKey"  },
    { '$', "dollarKey" },
    { '+', "plusKey"   },
    { '-', "minusKey"  }
};
// clang-format on

QString nameByLabel(const QString &label)
{
    for (const auto &sign : signNames) {
        if (label.length() == 1 && label.at(0) == QLatin1Char(sign.label))
            return QLatin1String(sign.objectName);
    }
    return QLatin1String("key") + label.toUpper();
}

// Only the arrows can be translated, for fonts that lack them.
QString labelText(const KeyCell &cell)
{
    if (cell.action == MoveLeft || cell.action == MoveRight)
        return QtDifferences::translateUtf8(cell.label);
    return QtDifferences::fromCodecLiteral(cell.label);
}

} // namespace

void nameKey(QToolButton *key, KeyAction action, const QString &label)
{
    for (const auto &name : actionNames) {
        if (name.action != action)
            continue;
        key->setObjectName(QLatin1String(name.objectName));
        if (*name.accessibleName) {
            QtDifferences::setAccessibleName(
                key, QCoreApplication::translate("Keypad", name.accessibleName));
        }
        return;
    }
    key->setObjectName(nameByLabel(label));
}

void addKeys(QDialog *keypad, QGridLayout *grid, const KeyTable &table)
{
    for (int i = 0; i < table.keyCount; ++i) {
        const KeyCell &cell = table.cells[i];
        QToolButton *key = createKey(keypad, labelText(cell));
        nameKey(key, cell.action, key->text());
        grid->addWidget(key, cell.row, cell.column, 1, cell.columnSpan);
        table.keys[i] = key;
    }
}

int placeOf(const QObject *key, const KeyTable &table)
{
    for (int i = 0; i < table.keyCount; ++i) {
        if (table.keys[i] == key)
            return i;
    }
    return -1;
}

} // namespace Keypad
