// SPDX-License-Identifier: MIT
#ifndef KEYPADRUN_P_H
#define KEYPADRUN_P_H

#include "FieldAccess_p.h"

class QDialog;

namespace Fields {

// The one keypad of \a kind, built when it is first asked for; null for NoKeypad.
QDialog *keypadOf(FieldKeypads::Kind kind);

// Whether \a window is a keypad, whoever opened it.
bool isKeypad(const QWidget *window);

// Runs the keypad of \a kind with \a entry. Returns true, and leaves the text in \a entry, when the
// operator confirmed. A view must be registered.
bool runKeypad(FieldKeypads::Kind kind, Entry *entry);

} // namespace Fields

#endif
