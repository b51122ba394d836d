// SPDX-License-Identifier: MIT
#ifndef FIELDTABLE_H
#define FIELDTABLE_H

#include <QString>

class QObject;
class QValidator;

enum class Keypad { Number, GCode, Axis, Text, DateTime };

// How a field looks and how it is edited. Texts are UTF-8; null stands for "none".
struct FieldRule
{
    const char *name;
    const char *label; // Chinese and Latin
    const char *unit;
    const char *value; // at start
    Keypad keypad;
    int base;                      // of a number: 2, 10 or 16
    const char *minimum, *maximum; // of a number, with the decimals that it may have
    const char *pattern;           // of a text, a regular expression
    int maxLength;                 // in characters
    bool masked;
    bool readOnly; // for keypads: the field's text is the machine's alone
};

// The rule of this name, which must exist.
const FieldRule &fieldRule(const char *name);

// The digits that a number may have after its point.
int decimals(const FieldRule &rule);

// What the operator is told of the permitted values; may be empty.
QString limitText(const FieldRule &rule);

// Makes the rule's validator, or returns null when every text will do.
QValidator *createValidator(const FieldRule &rule, QObject *parent);

#endif
