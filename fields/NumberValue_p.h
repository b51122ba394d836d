// SPDX-License-Identifier: MIT
#ifndef NUMBERVALUE_P_H
#define NUMBERVALUE_P_H

#include <QString>
#include <QVariant>

// Numbers of any type, as properties and models hold them.

namespace Fields {

bool isWhole(const QVariant &value);
bool isNumber(const QVariant &value);

// \a value as a keypad writes it, whole or with as many \a decimals, negative for as many as it
// has.
QString keypadNumber(const QVariant &value, int decimals);

// What \a text, as a keypad writes it, is as a value of the type of \a like. Invalid when it is no
// number, or none that the type can hold.
QVariant numberLike(const QVariant &like, const QString &text);

// Whether \a value is less than \a other; both are numbers.
bool isLess(const QVariant &value, const QVariant &other);

} // namespace Fields

#endif
