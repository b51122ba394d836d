// SPDX-License-Identifier: MIT
#include "HardKeys.h"

#include "HardKey.h"
#include "Models.h"

#include <QGridLayout>
#include <QString>

namespace {

struct KeyRule
{
    const char *label; // UTF-8; of a key without text of its own what it types, too
    int key;           // 0 stands for the character that is the label
    int row, column, columns;
};

// clang-format off
const KeyRule controlKeys[] = {
    { "ESC",   Qt::Key_Escape,    0, 0, 1 },
    { "TAB",   Qt::Key_Tab,       0, 1, 1 },
    { "DEL",   Qt::Key_Delete,    0, 2, 1 },
    { "BSP",   Qt::Key_Backspace, 0, 3, 1 },
    { "7", 0, 1, 0, 1 }, { "8", 0, 1, 1, 1 }, { "9", 0, 1, 2, 1 }, { "-", 0, 1, 3, 1 },
    { "4", 0, 2, 0, 1 }, { "5", 0, 2, 1, 1 }, { "6", 0, 2, 2, 1 }, { ".", 0, 2, 3, 1 },
    { "1", 0, 3, 0, 1 }, { "2", 0, 3, 1, 1 }, { "3", 0, 3, 2, 1 }, { "0", 0, 3, 3, 1 },
    { "←",     Qt::Key_Left,      4, 0, 1 },
    { "↑",     Qt::Key_Up,        4, 1, 1 },
    { "↓",     Qt::Key_Down,      4, 2, 1 },
    { "→",     Qt::Key_Right,     4, 3, 1 },
    { "SPACE", Qt::Key_Space,     5, 0, 2 },
    { "ENTER", Qt::Key_Return,    5, 2, 2 },
    { ",", 0, 12, 2, 1 }, { "/", 0, 12, 3, 1 }
};

// With Up and Down those that a keypad hands on.
const struct
{
    const char *label;
    int key;
} functionKeys[] = {
    { "F1",  Qt::Key_F1  }, { "F2",  Qt::Key_F2  }, { "F3",  Qt::Key_F3  }, { "F4",  Qt::Key_F4  },
    { "F5",  Qt::Key_F5  }, { "F9",  Qt::Key_F9  }, { "F10", Qt::Key_F10 }, { "F11", Qt::Key_F11 },
    { "F13", Qt::Key_F13 }, { "F17", Qt::Key_F17 }, { "F18", Qt::Key_F18 }, { "F20", Qt::Key_F20 },
    { "F25", Qt::Key_F25 }, { "F26", Qt::Key_F26 }, { "F27", Qt::Key_F27 }, { "F32", Qt::Key_F32 }
};
// clang-format on

const int functionKeyCount = sizeof(functionKeys) / sizeof(functionKeys[0]);
const int softKeyCount = 5; // the first ones
const int letterCount = 26;
const int letterRow = 6; // the first one
const int columnCount = 4;
const int functionKeyWidth = 48; // pixels

QString textOf(int key, const QString &label)
{
    if (key == 0)
        return label;
    return key == Qt::Key_Space ? QString(QLatin1Char(' ')) : QString();
}

HardKey *createKey(const QString &label, int key, int type, QWidget *parent)
{
    const int code = key != 0 ? key : label.at(0).unicode();
    return new HardKey(label, code, textOf(key, label), HardKeys::isHandedOn(code, type), parent);
}

} // namespace

bool HardKeys::isHandedOn(int key, int type)
{
    if (type != handingOnType)
        return false;
    for (const auto &entry : functionKeys) {
        if (entry.key == key)
            return true;
    }
    return key == Qt::Key_Up || key == Qt::Key_Down;
}

QVector<HardKey *> HardKeys::addKeyboard(QGridLayout *grid, int type, QWidget *parent)
{
    QVector<HardKey *> keys;
    for (const KeyRule &rule : controlKeys) {
        keys.append(createKey(QString::fromUtf8(rule.label), rule.key, type, parent));
        grid->addWidget(keys.last(), rule.row, rule.column, 1, rule.columns);
    }
    for (int letter = 0; letter < letterCount; ++letter) {
        const QString label = QChar(ushort('A' + letter));
        keys.append(createKey(label, 0, type, parent));
        grid->addWidget(keys.last(), letterRow + letter / columnCount, letter % columnCount);
    }
    return keys;
}

QVector<HardKey *> HardKeys::addFunctionKeys(QGridLayout *grid, int type, int width,
                                             QWidget *parent)
{
    const int count = type == handingOnType ? functionKeyCount : softKeyCount;
    const int rows = (count * functionKeyWidth + width - 1) / width;
    const int columns = (count + rows - 1) / rows;
    QVector<HardKey *> keys;
    for (int i = 0; i < count; ++i) {
        const QString label = QLatin1String(functionKeys[i].label);
        keys.append(createKey(label, functionKeys[i].key, type, parent));
        grid->addWidget(keys.last(), i / columns, i % columns);
    }
    return keys;
}
