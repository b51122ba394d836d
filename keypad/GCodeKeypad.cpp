// SPDX-License-Identifier: MIT
#include "GCodeKeypad.h"

#include "HMIDeviceInfo.h"
#include "KeyBoardLineEdit.h"
#include "KeypadLook_p.h"
#include "KeypadRules_p.h"
#include "QtDifferences_p.h"

#include <QGraphicsView>
#include <QKeyEvent>
#include <QToolButton>

#define SPACE_LABEL HMI_CODEC_LITERAL("\xA9\xB8\xA9\xA4\xA9\xA4\xA9\xBC", "└──┘")

namespace {

// clang-format off
constexpr Keypad::KeyCell keyCells[] = {
    { "I",         0,  0, 2, Keypad::InsertLabel },
    { "J",         0,  2, 2, Keypad::InsertLabel },
    { "K",         0,  4, 2, Keypad::InsertLabel },
    { "L",         0,  6, 2, Keypad::InsertLabel },
    { "M",         0,  8, 2, Keypad::InsertLabel },
    { "F",         0, 10, 2, Keypad::InsertLabel },
    { "G",         0, 12, 2, Keypad::InsertLabel },
    { "7",         0, 14, 2, Keypad::InsertLabel },
    { "8",         0, 16, 2, Keypad::InsertLabel },
    { "9",         0, 18, 2, Keypad::InsertLabel },

    { "H",         1,  0, 2, Keypad::InsertLabel },
    { "R",         1,  2, 2, Keypad::InsertLabel },
    { "T",         1,  4, 2, Keypad::InsertLabel },
    { "P",         1,  6, 2, Keypad::InsertLabel },
    { "U",         1,  8, 2, Keypad::InsertLabel },
    { "A",         1, 10, 2, Keypad::InsertLabel },
    { "X",         1, 12, 2, Keypad::InsertLabel },
    { "4",         1, 14, 2, Keypad::InsertLabel },
    { "5",         1, 16, 2, Keypad::InsertLabel },
    { "6",         1, 18, 2, Keypad::InsertLabel },

    { "O",         2,  0, 2, Keypad::InsertLabel },
    { "D",         2,  2, 2, Keypad::InsertLabel },
    { "E",         2,  4, 2, Keypad::InsertLabel },
    { "Q",         2,  6, 2, Keypad::InsertLabel },
    { "V",         2,  8, 2, Keypad::InsertLabel },
    { "B",         2, 10, 2, Keypad::InsertLabel },
    { "Y",         2, 12, 2, Keypad::InsertLabel },
    { "1",         2, 14, 2, Keypad::InsertLabel },
    { "2",         2, 16, 2, Keypad::InsertLabel },
    { "3",         2, 18, 2, Keypad::InsertLabel },

    { ",",         3,  0, 2, Keypad::InsertLabel },
    { "$",         3,  2, 2, Keypad::InsertLabel },
    { "N",         3,  4, 2, Keypad::InsertLabel },
    { "S",         3,  6, 2, Keypad::InsertLabel },
    { "W",         3,  8, 2, Keypad::InsertLabel },
    { "C",         3, 10, 2, Keypad::InsertLabel },
    { "Z",         3, 12, 2, Keypad::InsertLabel },
    { "0",         3, 14, 2, Keypad::InsertLabel },
    { ".",         3, 16, 2, Keypad::InsertLabel },
    { "-",         3, 18, 2, Keypad::InsertLabel },

    { "ESC",       4,  0, 3, Keypad::Cancel      },
    { "BSP",       4, 12, 4, Keypad::Backspace   },
    { "←",         4,  3, 2, Keypad::MoveLeft    },
    { "→",         4,  5, 2, Keypad::MoveRight   },
    { "Enter",     4, 16, 4, Keypad::Confirm     },
    { SPACE_LABEL, 4,  7, 5, Keypad::InsertSpace }
};
// clang-format on

// Where a keypad over \a target lies, in global coordinates. The rectangle that counts from the
// target's parent is mapped by the target itself: existing screens are laid out for that.
QRect coveredRect(const QWidget *target, const QWidget *viewport)
{
    QRect rect = target->geometry();
    if (target->parentWidget())
        rect = Keypad::mappedToGlobal(target, rect);
    return Keypad::mappedToGlobal(viewport, rect);
}

} // namespace

GCodeKeypad *GCodeKeypad::m_instance = nullptr;

GCodeKeypad *GCodeKeypad::instance()
{
    if (!m_instance)
        m_instance = new GCodeKeypad(HMIDeviceInfo::graphicsView(), Qt::WindowFlags());
    return m_instance;
}

GCodeKeypad::GCodeKeypad(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::FramelessWindowHint)
{
    Keypad::setUpFixedFace(this, &m_tipLabel, &m_lineEdit, Keypad::KeyTable(keyCells, m_keys));
}

GCodeKeypad::~GCodeKeypad() = default;

void GCodeKeypad::setObject(QObject *object)
{
    Keypad::bindTarget(object, &m_object, this, m_lineEdit, Keypad::EnableKeys);
}

void GCodeKeypad::setEditMode(int)
{
}

void GCodeKeypad::setDecimalPointEnabled(bool)
{
}

void GCodeKeypad::setMaxLength(int length)
{
    m_lineEdit->setMaxLength(length);
}

void GCodeKeypad::setValidator(const QValidator *validator)
{
    m_lineEdit->setValidator(validator);
}

void GCodeKeypad::setPasswordEchoMode(bool on)
{
    Keypad::setPasswordEcho(m_lineEdit, on);
}

void GCodeKeypad::setLimitToolTip(const QString &text)
{
    Keypad::showLimits(m_tipLabel, text);
}

void GCodeKeypad::setText(const QString &text)
{
    Keypad::showText(m_lineEdit, text);
}

void GCodeKeypad::keyPressEvent(QKeyEvent *event)
{
    if (Keypad::isConfirmKey(event->key()))
        Keypad::confirm(this, m_object, m_lineEdit);
    else if (Keypad::belongsToApplication(event->key()))
        Keypad::closeFor(this, &GCodeKeypad::signal_kTypeKeyPressed, event->key());
    else
        QDialog::keyPressEvent(event);
}

void GCodeKeypad::showEvent(QShowEvent *event)
{
    Keypad::comeToFront(this);
    const QWidget *target = qobject_cast<QWidget *>(m_object.data());
    const QGraphicsView *view = HMIDeviceInfo::graphicsView();
    if (target && view) {
        const QRect rect = coveredRect(target, view->viewport());
        setFixedSize(rect.size());
        setGeometry(rect);
    }
    QDialog::showEvent(event);
}

void GCodeKeypad::slot_toolButton_clicked()
{
    Keypad::press(sender(), Keypad::KeyTable(keyCells, m_keys), this, m_object, m_lineEdit);
}
