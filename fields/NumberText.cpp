// SPDX-License-Identifier: MIT
#include "NumberText_p.h"

#include <QtMath>

namespace Fields {

namespace {

const QLatin1Char point('.');
const QLatin1Char minus('-');

const double longestWritten = 1e15; // beyond it a number has more digits than a double holds

QString decimalPointOf(const QLocale &locale)
{
    return QString(locale.decimalPoint());
}

// The digits and the decimal point of \a text, a number in \a locale, without signs and groups.
QString bareNumber(const QString &text, const QLocale &locale)
{
    const QString decimalPoint = decimalPointOf(locale);
    QString bare;
    for (int i = 0; i < int(text.length()); ++i) {
        if (text.at(i).isDigit())
            bare += QString::number(text.at(i).digitValue());
        else if (text.mid(i, int(decimalPoint.length())) == decimalPoint)
            bare += point;
    }
    return bare;
}

bool hasExponent(const QString &text)
{
    for (const QChar character : text) {
        if (character.isLetter())
            return true;
    }
    return false;
}

} // namespace

QString toKeypad(const QString &text, const QLocale &locale)
{
    bool isNumber = false;
    const double value = locale.toDouble(text, &isNumber);
    if (!isNumber || hasExponent(text))
        return text;
    const QString bare = bareNumber(text, locale);
    return value < 0 ? minus + bare : bare;
}

QLocale notation(const QString &text, const QLocale &locale)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber && text.contains(point) ? QLocale::c() : locale;
}

QString fromKeypad(const QString &text, const QLocale &locale)
{
    QString converted = text;
    return converted.replace(point, decimalPointOf(locale));
}

QString keypadNumber(double value, int decimals)
{
    if (qAbs(value) >= longestWritten)
        return QString::number(value, 'g', QLocale::FloatingPointShortest);
    return QString::number(value, 'f', decimals < 0 ? QLocale::FloatingPointShortest : decimals);
}

QString keypadNumber(qint64 value, int base)
{
    const QString digits = QString::number(qAbs(value), base).toUpper();
    return value < 0 ? minus + digits : digits;
}

QString rangeText(const QString &minimum, const QString &maximum, const QString &prefix,
                  const QString &suffix)
{
    const QString least = prefix + minimum;
    const QString most = prefix + maximum + suffix;
    if (minimum.isEmpty())
        return maximum.isEmpty() ? QString() : QString::fromUtf8("≤ ") + most;
    if (maximum.isEmpty())
        return QString::fromUtf8("≥ ") + least + suffix;
    return least + QLatin1String(" ... ") + most;
}

NumberShape::NumberShape(int base, int decimals, int maxLength, const QLocale &locale)
    : m_base(base)
    , m_decimals(decimals)
    , m_maxLength(maxLength)
    , m_commaIsPoint(decimalPointOf(locale) == QLatin1String(","))
{
}

QValidator::State NumberShape::validate(QString &text, int &) const
{
    if (m_commaIsPoint)
        text.replace(QLatin1Char(','), point);
    int digits = 0;
    int decimals = -1; // -1 up to the point, then the digits behind it
    for (int i = text.startsWith(minus) ? 1 : 0; i < int(text.length()); ++i) {
        if (text.at(i) == point && decimals < 0 && m_decimals != 0)
            decimals = 0;
        else if (!isDigit(text.at(i)) || (m_decimals >= 0 && decimals == m_decimals))
            return Invalid;
        else if (++digits && decimals >= 0)
            ++decimals;
    }
    if (text.length() > m_maxLength)
        return Invalid;
    return digits > 0 ? Acceptable : Intermediate;
}

bool NumberShape::isDigit(QChar character) const
{
    bool isNumber = false;
    QString(character).toInt(&isNumber, m_base);
    return isNumber && character.unicode() < 0x80;
}

} // namespace Fields
