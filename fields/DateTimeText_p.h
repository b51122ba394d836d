// SPDX-License-Identifier: MIT
#ifndef DATETIMETEXT_P_H
#define DATETIMETEXT_P_H

#include <QDateTime>
#include <QString>

// Date and time as DateTimeKeypad shows them; the length of a text tells its format.

namespace Fields {

enum { TimeLength = 8, DateLength = 10, DateTimeLength = 19 };

QString dateTimeText(const QDateTime &value, int length);

// \a old with another date and time, in its time zone. Invalid when \a date has no such \a time.
QDateTime withDateAndTime(const QDateTime &old, const QDate &date, const QTime &time);

// \a old with the date, the time or both that \a text tells, in the time zone of \a old. Invalid
// when \a text tells none, or a time that its day skips. Milliseconds stay.
QDateTime withText(const QDateTime &old, const QString &text);

} // namespace Fields

#endif
