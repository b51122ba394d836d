// SPDX-License-Identifier: MIT
#include "GCodeKeypad.h"

#include "HMIDeviceInfo.h"
#include "KeyBoardLineEdit.h"
#include "KeyGrid_p.h"
#include "KeypadLook_p.h"
#include "KeypadRules_p.h"
#include "QtDifferences_p.h"

#include <QGraphicsView>
#include <QKeyEvent>
#include <QToolButton>

#define SPACE_LABEL HMI_CODEC_LITERAL("\xA9\xB8\xA9\xA4\xA9\xA4\xA9\xBC", "└──┘")

// Four rows of ten keys.
static const char charLabels[] = "IJKLMFG789"
                                 "HRTPUAX456"
                                 "ODEQVBY123"
                                 ",$NSWCZ0.-";

static const int charKeySpan = 2; // columns

/*
 * Where a keypad over \a target lies, in global coordinates. The rectangle that counts from the
 * target's parent is mapped by the target itself: existing screens are laid out for that.
 */
static QRect coveredRect(const QWidget *target)
{
    QRect rect = target->geometry();
    if (target->parentWidget())
        rect = QRect(target->mapToGlobal(rect.topLeft()), target->mapToGlobal(rect.bottomRight()));
    const QWidget *viewport = HMIDeviceInfo::graphicsView()->viewport();
    return QRect(viewport->mapToGlobal(rect.topLeft()), viewport->mapToGlobal(rect.bottomRight()));
}

struct GCodeKeypad::EditingKey
{
    QToolButton *GCodeKeypad::*key;
    Keypad::KeyCell cell;
};

// clang-format off
const GCodeKeypad::EditingKey GCodeKeypad::editingKeys[] = {
    { &GCodeKeypad::m_escKey,   { "ESC",       4,  0, 3, Keypad::Cancel      } },
    { &GCodeKeypad::m_bspKey,   { "BSP",       4, 12, 4, Keypad::Backspace   } },
    { &GCodeKeypad::m_leftKey,  { "←",         4,  3, 2, Keypad::MoveLeft    } },
    { &GCodeKeypad::m_rightKey, { "→",         4,  5, 2, Keypad::MoveRight   } },
    { &GCodeKeypad::m_enterKey, { "Enter",     4, 16, 4, Keypad::Confirm     } },
    { &GCodeKeypad::m_spaceKey, { SPACE_LABEL, 4,  7, 5, Keypad::InsertSpace } }
};
// clang-format on

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
    QGridLayout *grid = Keypad::setUpFixedFace(this, &m_tipLabel, &m_lineEdit);
    setUpCharKeys(grid);
    Keypad::addNamedKeys(this, grid, editingKeys, SLOT(slot_toolButton_clicked()));
    Keypad::finishFixedFace(this, m_tipLabel);
}

GCodeKeypad::~GCodeKeypad() = default;

void GCodeKeypad::setObject(QObject *object)
{
    Keypad::bindTarget(object, &m_object, m_lineEdit, Keypad::EnableKeys);
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
    else if (Keypad::closeForApplication(this, event->key()))
        Q_EMIT signal_kTypeKeyPressed(event->key());
    else
        QDialog::keyPressEvent(event);
}

void GCodeKeypad::showEvent(QShowEvent *event)
{
    if (const QWidget *target = qobject_cast<QWidget *>(m_object.data())) {
        const QRect rect = coveredRect(target);
        setFixedSize(rect.size());
        setGeometry(rect);
    }
    QDialog::showEvent(event);
}

void GCodeKeypad::slot_toolButton_clicked()
{
    if (const QToolButton *key = qobject_cast<QToolButton *>(sender()))
        Keypad::act(Keypad::actionOf(key, this, editingKeys), key->text(), this, m_object,
                    m_lineEdit);
}

void GCodeKeypad::setUpCharKeys(QGridLayout *grid)
{
    for (int row = 0; row < CharRows; ++row) {
        for (int i = 0; i < CharColumns; ++i) {
            const char label[] = { charLabels[CharColumns * row + i], '\0' };
            const Keypad::KeyCell cell = { label, row, charKeySpan * i, charKeySpan,
                                           Keypad::InsertLabel };
            m_charKeys[row][i] = Keypad::addKey(this, grid, cell, SLOT(slot_toolButton_clicked()));
        }
    }
}
