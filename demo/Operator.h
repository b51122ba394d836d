// SPDX-License-Identifier: MIT
#ifndef OPERATOR_H
#define OPERATOR_H

#include <QString>

class QGraphicsView;
class QPixmap;
class QPoint;
class QWidget;

// Works the panel as an operator does: through the mouse and key events of its windows.
namespace Operator {

// The keypad that is open, or null.
QWidget *openKeypad();

bool isOnScreen(const QWidget *window);

// Whether window is active. Asks an inactive one to become active.
bool isActive(QWidget *window);

// Where keypad lies in view, of which it covers at least the middle. The screen itself is asked: a
// window manager that takes a new window into its frame can leave Qt with a wrong place for it.
QPoint place(const QWidget *keypad, const QGraphicsView *view);

// Taps the middle of widget.
void tap(QWidget *widget);

// Taps widget at its right edge, which puts the cursor behind a text.
void tapEnd(QWidget *widget);

// The key or candidate of keypad that can be seen and has this label, or null.
QWidget *findKey(const QWidget *keypad, const QString &label);

// Presses a hard key on the window that has widget. name is a character, or one of "Return",
// "Escape", "Backspace" and "F1". Returns whether there is such a key.
bool pressHardKey(QWidget *widget, const QString &name);

// What the operator sees: the view, and over it the keypad that is open.
QPixmap picture(QGraphicsView *view);

} // namespace Operator

#endif
