// SPDX-License-Identifier: MIT
#ifndef SPINBOXFIELD_P_H
#define SPINBOXFIELD_P_H

#include "FieldAccess_p.h"

class QAbstractSpinBox;
class QLineEdit;

namespace Fields {

// The access to \a box, owned by the caller: QSpinBox, QDoubleSpinBox, and what the program derived
// from them or from QAbstractSpinBox. Not for those of date and time.
FieldAccess *accessToSpinBox(QAbstractSpinBox *box);

bool isWritable(const QAbstractSpinBox *box);

// Whether \a box accepts \a text, with prefix and suffix, as it stands.
bool isAcceptable(const QAbstractSpinBox *box, const QString &text);

// The line edit in \a box.
QLineEdit *lineEditOf(QAbstractSpinBox *box);

// Replaces the whole text of \a box, with prefix and suffix, as typing does. Returns false, and
// does nothing, when the box does not accept it.
bool enterText(QAbstractSpinBox *box, const QString &text);

} // namespace Fields

#endif
