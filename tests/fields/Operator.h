// SPDX-License-Identifier: MIT
#ifndef OPERATOR_H
#define OPERATOR_H

#include <QList>
#include <QPoint>
#include <QString>

#include <functional>

class QDialog;
class QWidget;

// Works a program as an operator does: with the mouse and the keyboard of the display under X11,
// and elsewhere with events at its windows. Every function asserts what it waits for.
namespace Operator {

// Taps \a widget at \a place in it, its centre for a null point.
void tap(QWidget *widget, const QPoint &place = QPoint());
void doubleTap(QWidget *widget, const QPoint &place = QPoint());

// Taps the keys of the open keypad with labels separated by blanks.
void tapKeys(const char *labels);

// Presses and releases a hard key: a name of X11, as "Return" or "F1".
void pressHardKey(const char *name);

// The keypad that is open, or null.
QDialog *keypad();

typedef std::function<void()> Action;

// Does \a opening, then the first of \a entries when the keypad that it opens is there, the next
// when a keypad opens again, and so on. Returns when no keypad is open. Asserts that a keypad
// opened for each entry and no more often, and that each entry closed it.
void withKeypad(const Action &opening, const QList<Action> &entries);

// Does \a opening and asserts that no keypad has opened when all is done that it caused.
void withoutKeypad(const Action &opening);

// Shows \a window and waits until it can be used.
void show(QWidget *window);

// Waits until \a condition holds, at most for as long as a test may take.
bool waitUntil(const std::function<bool()> &condition);

// Whether there is a display with a mouse and a keyboard of its own.
bool hasDisplay();

} // namespace Operator

#endif
