// SPDX-License-Identifier: MIT
#include "NumberValue_p.h"

#include "NumberText_p.h"
#include "QtDifferences_p.h"

#include <QMetaType>
#include <QtNumeric>

namespace Fields {

namespace {

bool isUnsigned(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UShort:
    case QMetaType::UChar:
        return true;
    default:
        return false;
    }
}

bool isSigned(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::SChar:
        return true;
    default:
        return false;
    }
}

bool isFraction(const QVariant &value)
{
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
}

// A whole number, as it is before it gets its type.
QVariant wholeNumber(const QVariant &like, const QString &text, bool *isNumber)
{
    if (isUnsigned(like))
        return text.toULongLong(isNumber);
    return text.toLongLong(isNumber);
}

} // namespace

bool isWhole(const QVariant &value)
{
    return isSigned(value) || isUnsigned(value);
}

bool isNumber(const QVariant &value)
{
    return isWhole(value) || isFraction(value);
}

QString keypadNumber(const QVariant &value, int decimals)
{
    if (isUnsigned(value))
        return QString::number(value.toULongLong());
    if (isSigned(value))
        return QString::number(value.toLongLong());
    if (value.userType() == QMetaType::Float)
        return value.toString();
    return keypadNumber(value.toDouble(), decimals);
}

QVariant numberLike(const QVariant &like, const QString &text)
{
    bool isNumber = false;
    const QVariant number =
        isWhole(like) ? wholeNumber(like, text, &isNumber) : QVariant(text.toDouble(&isNumber));
    QVariant typed = number;
    if (!isNumber || !qIsFinite(number.toDouble()) || !QtDifferences::convertLike(&typed, like))
        return QVariant();
    const bool isSame = isFraction(like) || keypadNumber(typed, 0) == keypadNumber(number, 0);
    return isSame ? typed : QVariant();
}

bool isLess(const QVariant &value, const QVariant &other)
{
    if (isSigned(value) && isSigned(other))
        return value.toLongLong() < other.toLongLong();
    if (isUnsigned(value) && isUnsigned(other))
        return value.toULongLong() < other.toULongLong();
    return value.toDouble() < other.toDouble();
}

} // namespace Fields
