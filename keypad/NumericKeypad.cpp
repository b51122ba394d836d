// SPDX-License-Identifier: MIT
#include "NumericKeypad.h"

#include "HMIDeviceInfo.h"
#include "KeyBoardLineEdit.h"
#include "KeypadLook_p.h"
#include "KeypadRules_p.h"

#include <QByteArray>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QToolButton>

namespace {

// clang-format off
constexpr Keypad::KeyCell keyCells[] = {
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
// clang-format on

const int pointKey = 19; // its place in the table
static_assert(keyCells[pointKey].label[0] == '.', "the decimal point");

const int decimalBase = 10;

bool isEditMode(int base)
{
    return base == 2 || base == decimalBase || base == 16;
}

// Sign and point are for decimal numbers alone, a digit for the bases above its value.
bool isUsable(int place, int base)
{
    const Keypad::KeyCell &cell = keyCells[place];
    if (cell.action == Keypad::ToggleSign || place == pointKey)
        return base == decimalBase;
    if (cell.action != Keypad::InsertLabel)
        return true;
    return QByteArray(cell.label).toInt(nullptr, 16) < base;
}

} // namespace

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
    Keypad::setUpFixedFace(this, &m_tipLabel, &m_lineEdit, Keypad::KeyTable(keyCells, m_keys));
    setEditMode(decimalBase);
}

NumericKeypad::~NumericKeypad() = default;

void NumericKeypad::setObject(QObject *object)
{
    Keypad::bindTarget(object, &m_object, this, m_lineEdit, Keypad::EnableKeys);
}

void NumericKeypad::setEditMode(int mode)
{
    if (!isEditMode(mode))
        return;
    for (int place = 0; place < KeyCount; ++place) {
        if (!isUsable(place, mode))
            m_keys[place]->setEnabled(false);
    }
}

void NumericKeypad::setDecimalPointEnabled(bool enabled)
{
    m_keys[pointKey]->setEnabled(enabled);
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
    else if (Keypad::belongsToApplication(event->key()))
        Keypad::closeFor(this, &NumericKeypad::signal_kTypeKeyPressed, event->key());
    else
        QDialog::keyPressEvent(event);
}

void NumericKeypad::showEvent(QShowEvent *event)
{
    if (Keypad::coverView(this))
        QDialog::showEvent(event);
}

void NumericKeypad::slot_toolButton_clicked()
{
    Keypad::press(sender(), Keypad::KeyTable(keyCells, m_keys), this, m_object, m_lineEdit);
}
