// SPDX-License-Identifier: MIT
#ifndef NUMBERTEXT_P_H
#define NUMBERTEXT_P_H

#include <QLocale>
#include <QValidator>

// Numbers as the keypads write them, with "." as decimal point and "-" as sign in every locale, and
// as the fields of a program do.

namespace Fields {

// The number that \a text is in \a locale, as a keypad writes it; \a text itself if it is none.
QString toKeypad(const QString &text, const QLocale &locale);

// How a program writes numbers in a field of \a locale that shows \a text, when nothing else tells:
// a number with a point counts as one, as many programs write and read them so in every locale.
QLocale notation(const QString &text, const QLocale &locale);

// What a keypad wrote, with the decimal point of \a locale.
QString fromKeypad(const QString &text, const QLocale &locale);

// \a value as a keypad writes it, with as many \a decimals, or with as many as it has if negative.
QString keypadNumber(double value, int decimals);
QString keypadNumber(qint64 value, int base);

// "0 ... 6000 rpm"; an empty text stands for a side without limit.
QString rangeText(const QString &minimum, const QString &maximum, const QString &prefix = QString(),
                  const QString &suffix = QString());

// Lets through what is on the way to a number, so that a keypad takes no second decimal point. It
// knows no limits: a digit that was silently ignored would leave another number than was typed.
class NumberShape : public QValidator
{
public:
    // \a decimals is the greatest number of digits behind the point, negative for any. Where the
    // point of \a locale is a comma, a comma from a hard key counts as the point.
    NumberShape(int base, int decimals, int maxLength, const QLocale &locale);

    State validate(QString &text, int &position) const override;

private:
    bool isDigit(QChar character) const;

    int m_base;
    int m_decimals;
    int m_maxLength;
    bool m_commaIsPoint;
};

} // namespace Fields

#endif
