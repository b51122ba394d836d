// SPDX-License-Identifier: MIT
#include "DateTimeModel.h"

#include "support/Text.h"

namespace {

const int dateLength = 10;
const int timeLength = 8;

const struct
{
    int minimum, maximum;
} ranges[] = { { 1600, 9999 }, { 1, 12 }, { 1, 28 }, { 0, 24 }, { 0, 59 }, { 0, 59 } };

int daysIn(int year, int month)
{
    const bool leap = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
    if (month == 2)
        return leap ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

QString padded(int number, int width)
{
    return QString::number(number).rightJustified(width, QLatin1Char('0'));
}

// The numbers in \a text where it has the form of \a pattern, in which 0 stands for a digit; else
// none.
QVector<int> numbersIn(const QString &text, const char *pattern)
{
    const QString form = u(pattern);
    QVector<int> numbers;
    bool inNumber = false;
    for (int i = 0; i < form.size(); ++i) {
        const bool digit = form.at(i) == QLatin1Char('0');
        const QChar found = i < text.size() ? text.at(i) : QChar();
        if (digit ? found < QLatin1Char('0') || found > QLatin1Char('9') : found != form.at(i))
            return QVector<int>();
        if (digit && !inNumber)
            numbers << 0;
        if (digit)
            numbers.last() = 10 * numbers.last() + found.digitValue();
        inNumber = digit;
    }
    return text.size() == form.size() ? numbers : QVector<int>();
}

bool isDate(int year, int month, int day)
{
    return year > 0 && month >= 1 && month <= 12 && day >= 1 && day <= daysIn(year, month);
}

bool isTime(int hour, int minute, int second)
{
    return hour <= 23 && minute <= 59 && second <= 59;
}

// What the fields are given for a text: its date and time, or zeros, which no field goes down to
// but those of the time.
QVector<int> valuesOf(const QString &text)
{
    const QVector<int> nothing(6, 0);
    QVector<int> date = numbersIn(text.left(dateLength), "0000-00-00");
    QVector<int> time = numbersIn(text, "00:00:00");
    if (text.size() == dateLength) {
        time = QVector<int>(3, 0);
    } else if (text.size() == timeLength) {
        date.clear();
        date << 1900 << 1 << 1; // what stands for no date
    } else {
        time = numbersIn(text.mid(dateLength), " 00:00:00");
    }
    if (date.size() != 3 || time.size() != 3 || !isDate(date.at(0), date.at(1), date.at(2))
        || !isTime(time.at(0), time.at(1), time.at(2)))
        return nothing;
    return date + time;
}

} // namespace

DateTimeModel::DateTimeModel(World *world)
    : KeypadModel(world)
    , m_formatLength(0)
{
    const QStringList labels = u("1 2 3 4 5 6 7 8 9 0 + - Delete Ok Cancel").split(u(" "));
    for (const QString &label : labels)
        addKey(label);
    for (const auto &range : ranges)
        m_fields << QSharedPointer<NumberFieldModel>(
            new NumberFieldModel(this, range.minimum, range.maximum));
}

void DateTimeModel::setText(const QString &text)
{
    m_line.clear();
    m_line.setText(text);
    const QVector<int> values = valuesOf(text);
    for (int i = 0; i < FieldCount; ++i)
        m_fields[i]->setNumber(values.at(i));
}

void DateTimeModel::setMaxLength(int length)
{
    m_line.setMaxLength(length);
    m_formatLength = length;
    if (length != dateLength && length != timeLength)
        return;
    for (int i = 0; i < FieldCount; ++i)
        setFieldEnabled(i, (i < Hour) == (length == dateLength));
}

// The keyboard goes to the field that had it last, or to the first that may have it.
void DateTimeModel::open(const ViewPlace &view, const TargetPlace &target)
{
    if (focus() >= FieldCount || !isFieldEnabled(focus())) {
        int first = 0;
        while (!isFieldEnabled(first))
            ++first;
        setFocus(first);
    }
    for (int i = 0; i < FieldCount; ++i)
        m_fields[i]->deselect();
    KeypadModel::open(view, target);
}

void DateTimeModel::lostTheKeyboard()
{
    if (focus() < FieldCount)
        m_fields[focus()]->leave(false);
}

void DateTimeModel::pointIntoField(int field, int position)
{
    if (!isFieldEnabled(field))
        return;
    touchField(field);
    m_fields[field]->pointAt(position);
}

void DateTimeModel::pressElsewhere(const HardKey &key)
{
    if (key.code == Qt::Key_Escape && key.modifiers == Qt::NoModifier)
        cancel();
}

Seen DateTimeModel::seen()
{
    Seen seen = KeypadModel::seen();
    for (int i = 0; i < FieldCount; ++i)
        seen.parts << m_fields.at(i)->seen();
    return seen;
}

int DateTimeModel::likelyKey(int choice) const
{
    return choice % Ok;
}

void DateTimeModel::act(int key)
{
    if (key == Cancel)
        cancel();
    else if (key == Ok)
        confirm();
    else if (focus() < FieldCount)
        work(key);
}

// Any number that changes, and the display tells all of them anew.
void DateTimeModel::numberChanged()
{
    m_fields[Day]->setRange(1, daysIn(number(Year), number(Month)));
    m_line.clear();
    m_line.setText(composed());
}

void DateTimeModel::editingFinished(NumberFieldModel *field)
{
    field->setMarked(false);
}

// An hour of 24 is none: there is no time then, or midnight where a date stands beside it.
QString DateTimeModel::composed() const
{
    const bool isTime = number(Hour) < 24;
    const QString date = padded(number(Year), 4) + u("-") + padded(number(Month), 2) + u("-")
        + padded(number(Day), 2);
    const QString time = padded(number(Hour), 2) + u(":") + padded(number(Minute), 2) + u(":")
        + padded(number(Second), 2);
    if (m_formatLength == dateLength)
        return date;
    if (m_formatLength == timeLength)
        return isTime ? time : QString();
    return date + u(" ") + (isTime ? time : u("00:00:00"));
}

void DateTimeModel::work(int key)
{
    NumberFieldModel *field = m_fields.at(focus()).data();
    if (key == Plus)
        field->step(1);
    else if (key == Minus)
        field->step(-1);
    else if (key == Delete)
        field->press(HardKey { Qt::Key_Backspace, QString(), 0 });
    else
        field->press(HardKey { Qt::Key_0 + (key + 1) % 10, QString::number((key + 1) % 10), 0 });
    field->setMarked(!isValid(focus()));
}

bool DateTimeModel::isValid(int field) const
{
    bool isNumber = false;
    const int number = m_fields.at(field)->text().toInt(&isNumber);
    if (field == Year && number < m_fields.at(field)->minimum())
        return false;
    return isNumber && (number != 0 || (field != Month && field != Day));
}

// A field that is disabled hands the keyboard on.
void DateTimeModel::setFieldEnabled(int field, bool enabled)
{
    m_fields[field]->setEnabled(enabled);
    if (!enabled && focus() == field)
        moveFocus(1);
}
