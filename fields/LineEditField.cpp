// SPDX-License-Identifier: MIT
#include "LineEditField_p.h"

#include "NumberText_p.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>

#include <limits>

namespace Fields {

namespace {

const QIntValidator *intValidator(const QLineEdit *edit)
{
    return qobject_cast<const QIntValidator *>(edit->validator());
}

const QDoubleValidator *doubleValidator(const QLineEdit *edit)
{
    return qobject_cast<const QDoubleValidator *>(edit->validator());
}

bool hasNumberValidator(const QLineEdit *edit)
{
    return intValidator(edit) || doubleValidator(edit);
}

QLocale localeOf(const QLineEdit *edit)
{
    return hasNumberValidator(edit) ? edit->validator()->locale()
                                    : notation(edit->text(), edit->locale());
}

QString limit(int value, int unlimited)
{
    return value == unlimited ? QString() : keypadNumber(qint64(value), 10);
}

QString limit(double value)
{
    return qAbs(value) >= std::numeric_limits<double>::max() ? QString() : keypadNumber(value, -1);
}

// What stays of a text in an input mask.
QString lettersAndDigits(const QString &text)
{
    QString kept;
    for (const QChar character : text) {
        if (character.isLetterOrNumber())
            kept += character.toLower();
    }
    return kept;
}

bool isOtherNumber(const QString &text, const QString &completed, const QLocale &locale)
{
    bool isNumber = false;
    const double value = locale.toDouble(text, &isNumber);
    return isNumber && value != locale.toDouble(completed);
}

} // namespace

LineEditField::LineEditField(QWidget *field, QLineEdit *edit)
    : m_field(field)
    , m_edit(edit)
    , m_kind(FieldKeypads::NoKeypad)
{
}

LineEditField::~LineEditField() = default;

bool LineEditField::isEditable() const
{
    return m_edit && m_edit->isEnabled() && !m_edit->isReadOnly();
}

FieldKeypads::Kind LineEditField::kind() const
{
    return hasNumberValidator(m_edit) ? FieldKeypads::Numeric : FieldKeypads::Character;
}

Entry LineEditField::open(FieldKeypads::Kind kind)
{
    m_kind = kind;
    Entry entry;
    entry.text = m_edit->text();
    entry.masked = m_edit->echoMode() != QLineEdit::Normal;
    if (kind == FieldKeypads::Numeric) {
        openNumber(&entry);
    } else if (kind == FieldKeypads::DateTime) {
        entry.maxLength = int(entry.text.isEmpty() ? m_edit->maxLength() : entry.text.length());
    } else {
        entry.maxLength = m_edit->maxLength();
        entry.validator = m_edit->validator();
    }
    return entry;
}

Outcome LineEditField::write(const QString &text)
{
    QString typed = text;
    if (m_kind == FieldKeypads::Numeric)
        typed = text == toKeypad(m_edit->text(), m_locale) ? m_edit->text()
                                                           : fromKeypad(text, m_locale);
    if (!accept(&typed))
        return Refused;
    if (typed != m_edit->text()) {
        m_edit->selectAll();
        m_edit->insert(typed); // unlike setText(), it can be undone and sends textEdited()
    }
    finishTyping(m_field, m_edit);
    return Written;
}

void LineEditField::openNumber(Entry *entry)
{
    m_locale = localeOf(m_edit);
    entry->text = toKeypad(entry->text, m_locale);
    int decimals = -1;
    if (const QIntValidator *validator = intValidator(m_edit)) {
        decimals = 0;
        limitByInt(entry, validator);
    } else if (const QDoubleValidator *validator = doubleValidator(m_edit)) {
        decimals = validator->decimals();
        limitByDouble(entry, validator);
    }
    entry->decimalPoint = decimals != 0;
    m_shape.reset(new NumberShape(10, decimals, m_edit->maxLength(), m_locale));
    entry->validator = m_shape.data();
}

void LineEditField::limitByInt(Entry *entry, const QIntValidator *validator)
{
    entry->limits = rangeText(limit(validator->bottom(), std::numeric_limits<int>::min()),
                              limit(validator->top(), std::numeric_limits<int>::max()));
}

void LineEditField::limitByDouble(Entry *entry, const QDoubleValidator *validator)
{
    entry->limits = rangeText(limit(validator->bottom()), limit(validator->top()));
}

// Whether the field takes \a text, which its validator may complete. Tried on a line edit that
// nobody sees, as the field must not change before it is certain.
bool LineEditField::accept(QString *text) const
{
    QLineEdit trial;
    trial.setInputMask(m_edit->inputMask());
    trial.setMaxLength(m_edit->maxLength());
    trial.insert(*text);
    if (lettersAndDigits(trial.text()) != lettersAndDigits(*text))
        return false;
    trial.setValidator(m_edit->validator());
    if (trial.hasAcceptableInput())
        return true;
    if (!complete(text))
        return false;
    trial.setText(*text);
    return trial.hasAcceptableInput();
}

// Asks the program's own validator, which may add what is missing, but not exchange a number.
bool LineEditField::complete(QString *text) const
{
    if (!m_edit->validator() || hasNumberValidator(m_edit))
        return false;
    const QString typed = *text;
    m_edit->validator()->fixup(*text);
    return *text != typed && !isOtherNumber(typed, *text, m_edit->validator()->locale());
}

} // namespace Fields
