// SPDX-License-Identifier: MIT
#ifndef FIELDSTAGE_H
#define FIELDSTAGE_H

#include "Operator.h"
#include "SignalLog.h"
#include "support/Checked.h"
#include "support/Text.h"

#include <HMIDevice/FieldKeypads.h>

#include <QVBoxLayout>
#include <QWidget>

// A small program for operators: a window, some way from the corner of the screen, and its fields.
// At most one at a time.
class FieldStage
{
public:
    FieldStage();

    // A field of the window, owned by it.
    template <class Field>
    Field *add()
    {
        return add(new Field);
    }

    template <class Field>
    Field *add(Field *field)
    {
        layout->addWidget(field);
        return field;
    }

    QWidget window;
    QVBoxLayout *layout;
    FieldKeypads keypads;
    SignalLog log;
};

// Where a finger taps to edit \a field: the line edit in a spin box, the viewport of a view.
QWidget *tapPlace(QWidget *field);

// What the operator does with the open keypad.
Operator::Action keys(const char *labels);

// What the open keypad shows: its text, and its limits if it shows any.
QString keypadText();
QString keypadLimits();

// Taps \a field and, in the keypad that opens, the keys with \a labels, the last of which closes
// it.
void edit(QWidget *field, const char *labels);

// The locales in which every test runs once, for initTestCase_data(), and setting the current one.
void addLocaleRows();
void useLocale();

// \a text with "·" as the decimal point of the current locale, "_" as its mark between groups.
QString localized(const char *text);

#endif
