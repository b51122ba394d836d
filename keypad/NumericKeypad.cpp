// SPDX-License-Identifier: MIT
#include "NumericKeypad.h"

#include "HMIDeviceInfo.h"
#include "KeyBoardLineEdit.h"
#include "KeyGrid_p.h"
#include "KeypadLook_p.h"
#include "KeypadRules_p.h"

#include <QGraphicsView>
#include <QKeyEvent>
#include <QStringList>
#include <QToolButton>

// clang-format off
static const Keypad::KeyCell keyCells[] = {
    { "A",     0, 0, 1, Keypad::InsertLabel },
    { "1",     0, 1, 1, Keypad::InsertLabel },
    { "2",     0, 2, 1, Keypad::InsertLabel },
    { "3",     0, 3, 1, Keypad::InsertLabel },
    { "ESC",   0, 4, 1, Keypad::Cancel      },

    { "B",     1, 0, 1, Keypad::InsertLabel },
    { "4",     1, 1, 1, Keypad::InsertLabel },
    { "5",     1, 2, 1, Keypad::InsertLabel },
    { "6",     1, 3, 1, Keypad::InsertLabel },
    { "BSP",   1, 4, 1, Keypad::Backspace   },

    { "C",     2, 0, 1, Keypad::InsertLabel },
    { "7",     2, 1, 1, Keypad::InsertLabel },
    { "8",     2, 2, 1, Keypad::InsertLabel },
    { "9",     2, 3, 1, Keypad::InsertLabel },
    { "+/-",   2, 4, 1, Keypad::ToggleSign  },

    { "D",     3, 0, 1, Keypad::InsertLabel },
    { "E",     3, 1, 1, Keypad::InsertLabel },
    { "F",     3, 2, 1, Keypad::InsertLabel },
    { "0",     3, 3, 1, Keypad::InsertLabel },
    { ".",     3, 4, 1, Keypad::InsertLabel },

    { "←",     4, 0, 1, Keypad::MoveLeft    },
    { "→",     4, 1, 1, Keypad::MoveRight   },
    { "Enter", 4, 3, 2, Keypad::Confirm     }
};

static const struct
{
    int base;
    const char *unusableKeys; // labels, separated by blanks
} editModes[] = {
    {  2, "A 2 3 B 4 5 6 C 7 8 9 +/- D E F ." },
    { 10, "A B C D E F" },
    { 16, "+/- ." }
};
// clang-format on

NumericKeypad *NumericKeypad::m_instance = nullptr;

NumericKeypad *NumericKeypad::instance()
{
    if (!m_instance)
        m_instance = new NumericKeypad(HMIDeviceInfo::graphicsView(), Qt::WindowFlags());
    return m_instance;
}

NumericKeypad::NumericKeypad(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::FramelessWindowHint)
{
    static_assert(sizeof(keyCells) == KeyCount * sizeof(keyCells[0]), "a cell for each key");
    QGridLayout *grid = Keypad::setUpFixedFace(this, &m_tipLabel, &m_lineEdit);
    Keypad::addKeys(this, grid, keyCells, KeyCount, m_keys, SLOT(slot_toolButton_clicked()));
    setEditMode(10);
    Keypad::finishFixedFace(this, m_tipLabel);
}

NumericKeypad::~NumericKeypad() = default;

void NumericKeypad::setObject(QObject *object)
{
    Keypad::bindTarget(object, &m_object, m_lineEdit, Keypad::EnableKeys);
}

void NumericKeypad::setEditMode(int mode)
{
    for (const auto &editMode : editModes) {
        if (editMode.base == mode)
            setKeysEnabled(editMode.unusableKeys, false);
    }
}

void NumericKeypad::setDecimalPointEnabled(bool enabled)
{
    setKeysEnabled(".", enabled);
}

void NumericKeypad::setMaxLength(int length)
{
    m_lineEdit->setMaxLength(length);
}

void NumericKeypad::setValidator(const QValidator *validator)
{
    m_lineEdit->setValidator(validator);
}

void NumericKeypad::setPasswordEchoMode(bool on)
{
    Keypad::setPasswordEcho(m_lineEdit, on);
}

void NumericKeypad::setLimitToolTip(const QString &text)
{
    Keypad::showLimits(m_tipLabel, text);
}

void NumericKeypad::setText(const QString &text)
{
    Keypad::showText(m_lineEdit, text);
}

void NumericKeypad::keyPressEvent(QKeyEvent *event)
{
    if (Keypad::isConfirmKey(event->key()))
        Keypad::confirm(this, m_object, m_lineEdit);
    else if (Keypad::closeForApplication(this, event->key()))
        Q_EMIT signal_kTypeKeyPressed(event->key());
    else
        QDialog::keyPressEvent(event);
}

void NumericKeypad::showEvent(QShowEvent *event)
{
    const QGraphicsView *view = HMIDeviceInfo::graphicsView();
    if (!view)
        return;
    setGeometry(Keypad::coveredRect(view));
    QDialog::showEvent(event);
}

void NumericKeypad::slot_toolButton_clicked()
{
    const int i = Keypad::indexOfKey(sender(), m_keys, KeyCount);
    if (i >= 0)
        Keypad::act(keyCells[i].action, m_keys[i]->text(), this, m_object, m_lineEdit);
}

void NumericKeypad::setKeysEnabled(const char *labels, bool enabled)
{
    const QStringList list = QString::fromLatin1(labels).split(QLatin1Char(' '));
    for (QToolButton *key : m_keys) {
        if (list.contains(key->text()))
            key->setEnabled(enabled);
    }
}
