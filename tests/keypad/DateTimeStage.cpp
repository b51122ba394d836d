// SPDX-License-Identifier: MIT
#include "DateTimeStage.h"

// clang-format off
const FieldRow fieldRows[FieldCount] = {
    { "year",   "year:",   0, 0, 1600, 9999 },
    { "month",  "month:",  1, 0,    1,   12 },
    { "day",    "day:",    2, 0,    1,   28 },
    { "hour",   "hour:",   0, 2,    0,   24 },
    { "minute", "minute:", 1, 2,    0,   59 },
    { "second", "second:", 2, 2,    0,   59 }
};
// clang-format on

namespace {

QString padded(int number, int width)
{
    return QString::fromLatin1("%1").arg(number, width, 10, QLatin1Char('0'));
}

} // namespace

void DateTimeStage::focus(int number)
{
    keypad.show();
    activate();
    field(number)->clearFocus();
    field(number)->setFocus(Qt::TabFocusReason);
    QVERIFY(field(number)->hasFocus());
}

void DateTimeStage::work(int number, const QString &labels)
{
    keypad.setText(u(shownTime));
    CHECKED(focus(number));
    CHECKED(tapAll(&keypad, labels));
}

QVector<int> DateTimeStage::numbers()
{
    QVector<int> values;
    for (int i = 0; i < FieldCount; ++i)
        values << field(i)->value();
    return values;
}

QString DateTimeStage::values()
{
    QStringList list;
    const QVector<int> values = numbers();
    for (int value : values)
        list << QString::number(value);
    return list.join(u(" "));
}

void addFieldRows()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < FieldCount; ++i)
        QTest::newRow(fieldRows[i].name) << i;
}

QString dateText(int year, int month, int day)
{
    return padded(year, 4) + u("-") + padded(month, 2) + u("-") + padded(day, 2);
}

QString timeText(int hour, int minute, int second)
{
    return padded(hour, 2) + u(":") + padded(minute, 2) + u(":") + padded(second, 2);
}
