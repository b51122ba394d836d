// SPDX-License-Identifier: MIT
#ifndef KEYPADRULES_P_H
#define KEYPADRULES_P_H

#include "KeyGrid_p.h"

#include <QPointer>

class QDialog;
class QGraphicsView;
class QLabel;
class QLineEdit;
class QRect;
class QString;
class QWidget;

// What every keypad does alike: each rule once, as a function of what it needs.

namespace Keypad {

enum KeyEnabling { KeepKeys, EnableKeys };

/*
 * Binds \a object to the keypad of \a editLine, unless it is null: remembers it in \a target,
 * resets the edit line to plain echo and Qt's own length limit and, with EnableKeys, enables every
 * key again. Signals of \a object are blocked meanwhile and unblocked afterwards.
 */
void bindTarget(QObject *object, QPointer<QObject> *target, QLineEdit *editLine,
                KeyEnabling enabling);

/* Replaces the text of \a editLine and selects it, so that the first key replaces the old value. */
void showText(QLineEdit *editLine, const QString &text);

void setPasswordEcho(QLineEdit *editLine, bool on);

/* Shows \a text on \a tipLabel, or hides the label when it is empty. */
void showLimits(QLabel *tipLabel, const QString &text);

/*
 * Writes the text of \a editLine into the "text" property of \a target and accepts \a keypad.
 * Does nothing without a target: the keypad stays open.
 */
void confirm(QDialog *keypad, QObject *target, const QLineEdit *editLine);

/* What a key of \a keypad does, by its \a action; \a label is what the key shows. */
void act(KeyAction action, const QString &label, QDialog *keypad, QObject *target,
         QLineEdit *editLine);

/*
 * Takes every minus sign away when the text begins with one, else puts one in front. The cursor
 * keeps its place among the digits, and a selection becomes a selection of all.
 */
void toggleSign(QLineEdit *editLine);

/*
 * What a keypad laid over \a view covers, in global coordinates. The viewport's rectangle, which
 * counts from the view's corner, is mapped from the viewport's corner: a frame of the view shifts
 * it once more. Existing screens are laid out for that.
 */
QRect coveredRect(const QGraphicsView *view);

/* Whether hard key \a key, a Qt::Key value, confirms an entry. */
bool isConfirmKey(int key);

/*
 * Rejects \a keypad and returns true when hard key \a key belongs to the application on the panel
 * type that is set now. The keypad's signal for that key comes after this, so that the application
 * meets a closed keypad.
 */
bool closeForApplication(QDialog *keypad, int key);

} // namespace Keypad

#endif
