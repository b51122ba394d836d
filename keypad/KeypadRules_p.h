// SPDX-License-Identifier: MIT
#ifndef KEYPADRULES_P_H
#define KEYPADRULES_P_H

#include "KeyGrid_p.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class QLineEdit;
class QRect;
class QSignalMapper;
class QString;
class QWidget;

// What every keypad does alike: each rule once, as a function of what it needs.

namespace Keypad {

enum KeyEnabling { KeepKeys, EnableKeys };

// Binds \a object to \a keypad, unless it is null: remembers it in \a target, resets \a editLine to
// plain echo and Qt's own length limit and, with EnableKeys, enables every key again. Signals of
// \a object are blocked meanwhile and unblocked afterwards.
void bindTarget(QObject *object, QPointer<QObject> *target, QDialog *keypad, QLineEdit *editLine,
                KeyEnabling enabling);

// Replaces the text of \a editLine and selects it, so that the first key replaces the old value.
void showText(QLineEdit *editLine, const QString &text);

void setPasswordEcho(QLineEdit *editLine, bool on);

// Shows \a text on \a tipLabel, or hides the label when it is empty.
void showLimits(QLabel *tipLabel, const QString &text);

// Writes the text of \a editLine into the "text" property of \a target and accepts \a keypad.
// Does nothing without a target: the keypad stays open.
void confirm(QDialog *keypad, QObject *target, const QLineEdit *editLine);

// Does what \a key, one of \a table, does by its cell; nothing if it is none of them.
void press(const QObject *key, const KeyTable &table, QDialog *keypad, QObject *target,
           QLineEdit *editLine);

// The rectangle between the two corners of \a rect, each mapped by \a widget to global coordinates.
QRect mappedToGlobal(const QWidget *widget, const QRect &rect);

// Brings \a keypad, about to be shown, above what was shown since it was last used: without a
// window manager nothing else does.
void comeToFront(QDialog *keypad);

// Brings \a keypad to the front and lays it over the registered view; false, leaving it where it
// is, when there is none. The viewport's rectangle, which counts from the view's corner, is mapped
// from the viewport's corner: a frame of the view shifts it once more. Existing screens are laid
// out for that.
bool coverView(QDialog *keypad);

// Whether the panel is of the one type that has a dark scheme and hands hard keys on.
bool isPanelType13();

// Whether hard key \a key, a Qt::Key value, confirms an entry.
bool isConfirmKey(int key);

// Whether hard key \a key belongs to the application on the panel type that is set now.
bool belongsToApplication(int key);

// Closes \a keypad for such a key, and then emits \a signal, so that the application meets a closed
// keypad; one that a slot has destroyed at its end emits nothing.
template <class Keypad>
void closeFor(Keypad *keypad, void (Keypad::*signal)(int), int key)
{
    const QPointer<QDialog> alive(keypad);
    keypad->reject();
    if (alive)
        (keypad->*signal)(key);
}

// Maps \a key to \a label in \a mapper, in place of what it was mapped to. A mapper watches a
// sender's destruction once more with every mapping; on a panel that runs for months these
// connections would add up, so the former one is dropped.
void mapKey(QSignalMapper *mapper, QObject *key, const QString &label);

} // namespace Keypad

#endif
