// SPDX-License-Identifier: MIT
#include "OtherSpinBoxField_p.h"

#include "NumberText_p.h"
#include "NumberValue_p.h"
#include "SpinBoxField_p.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QVariant>

namespace Fields {

namespace {

const char valueProperty[] = "value";
const char minimumProperty[] = "minimum";
const char maximumProperty[] = "maximum";
const char decimalsProperty[] = "decimals";

QString limit(const QAbstractSpinBox *box, const char *property, int decimals)
{
    const QVariant value = box->property(property);
    return isNumber(value) ? keypadNumber(value, decimals) : QString();
}

} // namespace

OtherSpinBoxField::OtherSpinBoxField(QAbstractSpinBox *box)
    : m_box(box)
    , m_hasNumber(isNumber(box->property(valueProperty)))
{
}

OtherSpinBoxField::~OtherSpinBoxField() = default;

bool OtherSpinBoxField::isEditable() const
{
    return m_box && isWritable(m_box);
}

FieldKeypads::Kind OtherSpinBoxField::kind() const
{
    return m_hasNumber ? FieldKeypads::Numeric : FieldKeypads::Character;
}

Entry OtherSpinBoxField::open(FieldKeypads::Kind)
{
    Entry entry;
    if (!m_hasNumber) {
        entry.text = lineEditOf(m_box)->text();
        return entry;
    }
    entry.text = keypadNumber(m_box->property(valueProperty), decimals());
    entry.limits = rangeText(limit(m_box, minimumProperty, decimals()),
                             limit(m_box, maximumProperty, decimals()));
    entry.decimalPoint = decimals() != 0;
    m_shape.reset(new NumberShape(10, decimals(), entry.maxLength, m_box->locale()));
    entry.validator = m_shape.data();
    return entry;
}

Outcome OtherSpinBoxField::write(const QString &text)
{
    if (!(m_hasNumber ? enterNumber(text) : enterText(m_box, text)))
        return Refused;
    finishTyping(m_box, m_box ? lineEditOf(m_box) : nullptr);
    return Written;
}

// Of the value: 0 when it is whole, negative when it has as many as it needs.
int OtherSpinBoxField::decimals() const
{
    if (isWhole(m_box->property(valueProperty)))
        return 0;
    const QVariant decimals = m_box->property(decimalsProperty);
    return isWhole(decimals) ? decimals.toInt() : -1;
}

bool OtherSpinBoxField::acceptsNumber(const QVariant &value) const
{
    const QVariant minimum = m_box->property(minimumProperty);
    const QVariant maximum = m_box->property(maximumProperty);
    return isNumber(value) && !(isNumber(minimum) && isLess(value, minimum))
        && !(isNumber(maximum) && isLess(maximum, value));
}

bool OtherSpinBoxField::enterNumber(const QString &text)
{
    const QVariant value = numberLike(m_box->property(valueProperty), text);
    return acceptsNumber(value) && m_box->setProperty(valueProperty, value);
}

} // namespace Fields
