// SPDX-License-Identifier: MIT
#ifndef DATETIMESTAGE_H
#define DATETIMESTAGE_H

#include "support/KeypadStage.h"

#include <HMIDevice/DateTimeKeypad.h>

#include <QSpinBox>
#include <QVector>

// Works the date-time keypad: its fields by their number, what it shows as one line.

enum { Year, Month, Day, Hour, Minute, Second, FieldCount };
enum { DateLength = 10, TimeLength = 8, DateTimeLength = 19 };

struct FieldRow
{
    const char *name;
    const char *label;
    int row, column; // of the label; the spin box follows it
    int minimum, maximum;
};

extern const FieldRow fieldRows[FieldCount];

const char shownTime[] = "2024-05-17 08:09:10";
const char valuesOfShownTime[] = "2024 5 17 8 9 10";

class DateTimeStage : public KeypadStage<DateTimeKeypad>
{
public:
    QSpinBox *field(int number) { return keypad.findChildren<QSpinBox *>().at(number); }

    // Shows the keypad and comes to a field as the Tab key does: its text is selected. Asserts
    // that the field has the focus.
    void focus(int number);

    // Taps keys of a field, which the shown time has filled. Asserts that there are such keys.
    void work(int number, const QString &labels);

    QVector<int> numbers();
    QString values(); // of all fields, separated by blanks
    QString display() { return line()->text(); }
};

// The column "number", a row for each field.
void addFieldRows();

QString dateText(int year, int month, int day);
QString timeText(int hour, int minute, int second);

#endif
