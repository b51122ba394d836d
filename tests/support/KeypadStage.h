// SPDX-License-Identifier: MIT
#ifndef KEYPADSTAGE_H
#define KEYPADSTAGE_H

#include "KeypadDriver.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QLineEdit>
#include <QScopedPointer>

// How a stage makes its keypad, and finds the dialog in it. AnyKeypad has functions of its own.
template <class Keypad>
Keypad *newKeypad(QWidget *parent, Keypad *)
{
    return new Keypad(parent, Qt::WindowFlags());
}

inline QDialog *dialogOf(QDialog &keypad)
{
    return &keypad;
}

// A panel, a field, and a new keypad that is bound to the field.
template <class Keypad>
class KeypadStage
{
public:
    explicit KeypadStage(DeviceType type = 1, const QSize &size = QSize(640, 480),
                         PanelView::Frame frame = PanelView::Framed)
        : view(type, size, frame)
        , m_keypad(newKeypad(&view, static_cast<Keypad *>(nullptr)))
        , keypad(*m_keypad)
    {
        keypad.setObject(&target);
    }

    QDialog *dialog() { return dialogOf(keypad); }
    KeyBoardLineEdit *line() { return editLine(dialog()); }

    // Shows the keypad without waiting for its end.
    void open(const QString &text = QString())
    {
        keypad.setText(text);
        dialog()->show();
    }

    // Gives the shown keypad the keyboard, as the windowing system does some time after show.
    void activate() { QApplication::setActiveWindow(dialog()); }

    PanelView view;
    QLineEdit target;

private:
    QScopedPointer<Keypad> m_keypad;

public:
    Keypad &keypad;
};

#endif
