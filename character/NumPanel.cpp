// SPDX-License-Identifier: MIT
#include "NumPanel.h"

#include "KeypadLook_p.h"

#include <QHBoxLayout>
#include <QToolButton>

NumPanel::NumPanel(QWidget *parent)
    : QWidget(parent, Qt::FramelessWindowHint)
{
    QHBoxLayout *layout = new QHBoxLayout(this);
    for (int i = 0; i < DigitCount; ++i) {
        m_buttons[i] = Keypad::createKey(this, QString::number(i));
        Keypad::nameKey(m_buttons[i], Keypad::InsertLabel, m_buttons[i]->text());
        layout->addWidget(m_buttons[i]);
    }
    hide();
}

QToolButton *NumPanel::getToolButton(short index)
{
    return index >= 0 && index < DigitCount ? m_buttons[index] : nullptr;
}
