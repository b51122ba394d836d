// SPDX-License-Identifier: MIT
#include "DateTimeText_p.h"

namespace Fields {

namespace {

const QLatin1String dateFormat("yyyy-MM-dd");
const QLatin1String timeFormat("hh:mm:ss");

} // namespace

QString dateTimeText(const QDateTime &value, int length)
{
    const QString date = value.date().toString(dateFormat);
    const QString time = value.time().toString(timeFormat);
    if (length == TimeLength)
        return time;
    return length == DateLength ? date : date + QLatin1Char(' ') + time;
}

QDateTime withDateAndTime(const QDateTime &old, const QDate &date, const QTime &time)
{
    if (!date.isValid() || !time.isValid())
        return QDateTime();
    QDateTime value = old;
    value.setDate(date);
    value.setTime(time);
    return value.date() == date && value.time() == time ? value : QDateTime();
}

QDateTime withText(const QDateTime &old, const QString &text)
{
    const int length = int(text.length());
    QDate date = old.date();
    QTime time = old.time();
    if (length != TimeLength)
        date = QDate::fromString(text.left(DateLength), dateFormat);
    if (length != DateLength)
        time = QTime::fromString(text.right(TimeLength), timeFormat).addMSecs(old.time().msec());
    return withDateAndTime(old, date, time);
}

} // namespace Fields
