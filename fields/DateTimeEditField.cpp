// SPDX-License-Identifier: MIT
#include "DateTimeEditField_p.h"

#include "DateTimeText_p.h"
#include "NumberText_p.h"
#include "SpinBoxField_p.h"

#include <QDateTimeEdit>
#include <QLineEdit>

namespace Fields {

namespace {

// Names the protected functions of a date-time edit, which the program may have overridden.
struct Inside : QDateTimeEdit
{
    using QDateTimeEdit::dateTimeFromText;
    using QDateTimeEdit::textFromDateTime;
};

int lengthFor(const QDateTimeEdit *edit)
{
    const QDateTimeEdit::Sections sections = edit->displayedSections();
    if (!(sections & QDateTimeEdit::DateSections_Mask))
        return TimeLength;
    return sections & QDateTimeEdit::TimeSections_Mask ? DateTimeLength : DateLength;
}

int shown(QDateTimeEdit::Sections sections, QDateTimeEdit::Section section, int typed, int old)
{
    return sections & section ? typed : old;
}

QDate shownPart(QDateTimeEdit::Sections sections, const QDate &typed, const QDate &old)
{
    return QDate(shown(sections, QDateTimeEdit::YearSection, typed.year(), old.year()),
                 shown(sections, QDateTimeEdit::MonthSection, typed.month(), old.month()),
                 shown(sections, QDateTimeEdit::DaySection, typed.day(), old.day()));
}

QTime shownPart(QDateTimeEdit::Sections sections, const QTime &typed, const QTime &old)
{
    return QTime(shown(sections, QDateTimeEdit::HourSection, typed.hour(), old.hour()),
                 shown(sections, QDateTimeEdit::MinuteSection, typed.minute(), old.minute()),
                 shown(sections, QDateTimeEdit::SecondSection, typed.second(), old.second()),
                 old.msec());
}

// \a typed where \a edit shows it, and what \a edit holds elsewhere.
QDateTime shownPart(const QDateTimeEdit *edit, const QDateTime &typed)
{
    const QDateTimeEdit::Sections sections = edit->displayedSections();
    return withDateAndTime(edit->dateTime(),
                           shownPart(sections, typed.date(), edit->dateTime().date()),
                           shownPart(sections, typed.time(), edit->dateTime().time()));
}

// Empty where Qt itself sets the limit.
QString limit(const QDateTime &value, const QDateTime &byQt, int length)
{
    const QString text = dateTimeText(value, length);
    return text == dateTimeText(byQt, length) ? QString() : text;
}

} // namespace

DateTimeEditField::DateTimeEditField(QDateTimeEdit *edit)
    : m_edit(edit)
    , m_kind(FieldKeypads::NoKeypad)
{
}

bool DateTimeEditField::isEditable() const
{
    return m_edit && isWritable(m_edit);
}

FieldKeypads::Kind DateTimeEditField::kind() const
{
    return FieldKeypads::DateTime;
}

Entry DateTimeEditField::open(FieldKeypads::Kind kind)
{
    m_kind = kind;
    Entry entry;
    const int length = lengthFor(m_edit);
    const QDateTimeEdit byQt;
    entry.limits = rangeText(limit(m_edit->minimumDateTime(), byQt.minimumDateTime(), length),
                             limit(m_edit->maximumDateTime(), byQt.maximumDateTime(), length));
    entry.text = m_edit->text();
    if (kind == FieldKeypads::DateTime) {
        entry.text = dateTimeText(m_edit->dateTime(), length);
        entry.maxLength = length;
    }
    return entry;
}

Outcome DateTimeEditField::write(const QString &text)
{
    if (!(m_kind == FieldKeypads::DateTime ? enter(text) : enterText(m_edit, text)))
        return Refused;
    finishTyping(m_edit, m_edit ? lineEditOf(m_edit) : nullptr);
    return Written;
}

bool DateTimeEditField::enter(const QString &text)
{
    const QDateTime typed = withText(m_edit->dateTime(), text);
    const QDateTime value = typed.isValid() ? shownPart(m_edit, typed) : typed;
    if (!value.isValid() || value < m_edit->minimumDateTime() || value > m_edit->maximumDateTime())
        return false;
    const QString whole = (m_edit.data()->*(&Inside::textFromDateTime))(value);
    if (!isAcceptable(m_edit, whole))
        return false;
    if (value == m_edit->dateTime())
        return true;
    if ((m_edit.data()->*(&Inside::dateTimeFromText))(whole) == value)
        return enterText(m_edit, whole);
    m_edit->setDateTime(value);
    return true;
}

} // namespace Fields
