// SPDX-License-Identifier: MIT
#ifndef OPENKEYPAD_H
#define OPENKEYPAD_H

#include "KeypadDriver.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QLineEdit>

/* A new keypad with a target, shown over a panel. */
template <class Keypad>
class OpenKeypad
{
public:
    explicit OpenKeypad(const QString &text = QString())
        : view(1)
        , keypad(&view, Qt::WindowFlags())
    {
        keypad.setObject(&target);
        keypad.setText(text);
        keypad.show();
    }

    KeyBoardLineEdit *line() { return editLine(&keypad); }

    PanelView view;
    QLineEdit target;
    Keypad keypad;
};

/* The labels that \a utf8 holds, separated by blanks. */
inline QStringList labelList(const char *utf8)
{
    return u(utf8).split(QLatin1Char(' '));
}

#endif
