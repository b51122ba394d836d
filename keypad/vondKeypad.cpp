// SPDX-License-Identifier: MIT
#include "vondKeypad.h"

#include "HMIDeviceInfo.h"
#include "KeyBoardLineEdit.h"
#include "KeypadLook_p.h"
#include "KeypadRules_p.h"
#include "QtDifferences_p.h"

#include <QGraphicsView>
#include <QKeyEvent>
#include <QToolButton>

#define SPACE_LABEL HMI_CODEC_LITERAL("\xA9\xB8\xA9\xA4\xA9\xBC", "└─┘")

namespace {

// clang-format off
// Cell (0, 0) stays empty: the letter columns read U-V-W, A-B-C and X-Y-Z downwards.
constexpr Keypad::KeyCell keyCells[] = {
    { "F",         0, 1, 1, Keypad::InsertLabel },
    { "G",         0, 2, 1, Keypad::InsertLabel },
    { "7",         0, 3, 1, Keypad::InsertLabel },
    { "8",         0, 4, 1, Keypad::InsertLabel },
    { "9",         0, 5, 1, Keypad::InsertLabel },

    { "U",         1, 0, 1, Keypad::InsertLabel },
    { "A",         1, 1, 1, Keypad::InsertLabel },
    { "X",         1, 2, 1, Keypad::InsertLabel },
    { "4",         1, 3, 1, Keypad::InsertLabel },
    { "5",         1, 4, 1, Keypad::InsertLabel },
    { "6",         1, 5, 1, Keypad::InsertLabel },

    { "V",         2, 0, 1, Keypad::InsertLabel },
    { "B",         2, 1, 1, Keypad::InsertLabel },
    { "Y",         2, 2, 1, Keypad::InsertLabel },
    { "1",         2, 3, 1, Keypad::InsertLabel },
    { "2",         2, 4, 1, Keypad::InsertLabel },
    { "3",         2, 5, 1, Keypad::InsertLabel },

    { "W",         3, 0, 1, Keypad::InsertLabel },
    { "C",         3, 1, 1, Keypad::InsertLabel },
    { "Z",         3, 2, 1, Keypad::InsertLabel },
    { "0",         3, 3, 1, Keypad::InsertLabel },
    { ".",         3, 4, 1, Keypad::InsertLabel },
    { "-",         3, 5, 1, Keypad::ToggleSign  },

    { "←",         4, 0, 1, Keypad::MoveLeft    },
    { "→",         4, 1, 1, Keypad::MoveRight   },
    { "ESC",       4, 2, 1, Keypad::Cancel      },
    { "BSP",       4, 3, 1, Keypad::Backspace   },
    { SPACE_LABEL, 4, 4, 1, Keypad::InsertSpace },
    { "Enter",     4, 5, 1, Keypad::Confirm     }
};
// clang-format on

} // namespace

vondKeypad *vondKeypad::m_instance = nullptr;

vondKeypad *vondKeypad::instance()
{
    if (!m_instance)
        m_instance = new vondKeypad(HMIDeviceInfo::graphicsView(), Qt::WindowFlags());
    return m_instance;
}

vondKeypad::vondKeypad(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::FramelessWindowHint)
{
    Keypad::setUpFixedFace(this, &m_tipLabel, &m_lineEdit, Keypad::KeyTable(keyCells, m_keys));
}

vondKeypad::~vondKeypad() = default;

void vondKeypad::setObject(QObject *object)
{
    Keypad::bindTarget(object, &m_object, this, m_lineEdit, Keypad::EnableKeys);
}

void vondKeypad::setEditMode(int)
{
}

void vondKeypad::setDecimalPointEnabled(bool)
{
}

void vondKeypad::setMaxLength(int length)
{
    m_lineEdit->setMaxLength(length);
}

void vondKeypad::setValidator(const QValidator *validator)
{
    m_lineEdit->setValidator(validator);
}

void vondKeypad::setPasswordEchoMode(bool on)
{
    Keypad::setPasswordEcho(m_lineEdit, on);
}

void vondKeypad::setLimitToolTip(const QString &text)
{
    Keypad::showLimits(m_tipLabel, text);
}

void vondKeypad::setText(const QString &text)
{
    Keypad::showText(m_lineEdit, text);
}

void vondKeypad::keyPressEvent(QKeyEvent *event)
{
    if (Keypad::isConfirmKey(event->key()))
        Keypad::confirm(this, m_object, m_lineEdit);
    else if (Keypad::belongsToApplication(event->key()))
        Keypad::closeFor(this, &vondKeypad::signal_kTypeKeyPressed, event->key());
    else
        QDialog::keyPressEvent(event);
}

void vondKeypad::showEvent(QShowEvent *event)
{
    if (Keypad::coverView(this))
        QDialog::showEvent(event);
}

void vondKeypad::slot_toolButton_clicked()
{
    Keypad::press(sender(), Keypad::KeyTable(keyCells, m_keys), this, m_object, m_lineEdit);
}
