// SPDX-License-Identifier: MIT
#ifndef FIELDACCESS_P_H
#define FIELDACCESS_P_H

#include "FieldKeypads.h"

#include <QString>

class QValidator;
class QWidget;

// What a keypad needs to know of a field, and how a field takes what was typed: one class for each
// family of widgets.

namespace Fields {

// What a keypad is given when it opens.
struct Entry
{
    QString text;
    QString limits;           // the permitted range; empty where nothing is known
    int base = 10;            // of a number
    bool decimalPoint = true; // whether a number may have one
    bool masked = false;      // as a password
    int maxLength = 32767;    // of a text; of a date, its format as DateTimeKeypad has it
    const QValidator *validator = nullptr; // owned by the access
};

enum Outcome {
    Written,
    Refused // and nothing has happened to the field
};

// A field whose keypad is open. The field may be destroyed meanwhile: then it is not editable.
class FieldAccess
{
public:
    virtual ~FieldAccess() = default;

    // Whether an operator could type into the field now. Nothing else may be called when not.
    virtual bool isEditable() const = 0;

    // The keypad that suits the field.
    virtual FieldKeypads::Kind kind() const = 0;

    // What the keypad of \a kind starts with. write() takes text of that keypad from now on.
    virtual Entry open(FieldKeypads::Kind kind) = 0;

    // Lets the field take \a text as though the operator had typed it.
    virtual Outcome write(const QString &text) = 0;
};

// The access to \a field, owned by the caller; null when it is no field, or can not be edited now.
FieldAccess *accessTo(QWidget *field);

// The field that \a widget is or is a part of, as the line edit in a spin box is; null if none.
QWidget *fieldOf(QWidget *widget);

// What the program may set on a field, in code or in a form. Names of dynamic properties.
extern const char kindProperty[];
extern const char limitsProperty[];
extern const char returnProperty[];

// Emits the signals that end the typing into \a field, whose line edit is \a edit or null.
void finishTyping(QWidget *field, QWidget *edit);

} // namespace Fields

#endif
