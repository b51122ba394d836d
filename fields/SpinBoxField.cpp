// SPDX-License-Identifier: MIT
#include "SpinBoxField_p.h"

#include "NumberText_p.h"
#include "OtherSpinBoxField_p.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPointer>
#include <QScopedPointer>
#include <QSpinBox>

#include <limits>

namespace Fields {

namespace {

// Names the protected functions of a spin box, which the program may have overridden.
struct InsideAny : QAbstractSpinBox
{
    using QAbstractSpinBox::lineEdit;
};

template <class Box>
struct Inside : Box
{
    using Box::textFromValue;
    using Box::valueFromText;
};

template <class Box, class Value>
QString ownText(const Box *box, Value value)
{
    return (box->*(&Inside<Box>::textFromValue))(value);
}

int decimalsOf(const QSpinBox *)
{
    return 0;
}

int decimalsOf(const QDoubleSpinBox *box)
{
    return box->decimals();
}

// The base in which \a box shows numbers, 0 when what it shows are none.
int baseOf(const QSpinBox *box)
{
    const int probe = 171; // other digits in every base
    const QString text = toKeypad(ownText(box, probe), box->locale());
    const int bases[] = { box->displayIntegerBase(), 10, 16, 2 };
    for (const int base : bases) {
        if (text.toInt(nullptr, base) == probe)
            return base;
    }
    return 0;
}

int baseOf(const QDoubleSpinBox *box)
{
    const double probe = 1; // with any number of decimals
    return toKeypad(ownText(box, probe), box->locale()).toDouble() == probe ? 10 : 0;
}

QString numberText(const QSpinBox *box, int value)
{
    return keypadNumber(qint64(value), baseOf(box));
}

QString numberText(const QDoubleSpinBox *box, double value)
{
    return keypadNumber(value, box->decimals());
}

bool read(const QString &text, int base, int *value)
{
    bool isNumber = false;
    *value = text.toInt(&isNumber, base);
    return isNumber;
}

bool read(const QString &text, int, double *value)
{
    bool isNumber = false;
    *value = text.toDouble(&isNumber);
    return isNumber;
}

bool isUnlimited(int value)
{
    return value == std::numeric_limits<int>::min() || value == std::numeric_limits<int>::max();
}

bool isUnlimited(double value)
{
    return qAbs(value) >= std::numeric_limits<double>::max();
}

template <class Box, class Value>
class SpinBoxField : public FieldAccess
{
public:
    explicit SpinBoxField(Box *box)
        : m_box(box)
        , m_base(baseOf(box))
    {
    }

    bool isEditable() const override { return m_box && isWritable(m_box); }

    FieldKeypads::Kind kind() const override
    {
        return m_base ? FieldKeypads::Numeric : FieldKeypads::Character;
    }

    Entry open(FieldKeypads::Kind) override
    {
        Entry entry;
        entry.text = m_base ? numberText(m_box, shownValue()) : ownText(m_box.data(), shownValue());
        entry.limits = limits();
        if (m_base) {
            entry.base = m_base;
            entry.decimalPoint = decimalsOf(m_box) != 0;
            m_shape.reset(
                new NumberShape(m_base, decimalsOf(m_box), entry.maxLength, m_box->locale()));
            entry.validator = m_shape.data();
        }
        return entry;
    }

    Outcome write(const QString &text) override
    {
        Value value = Value();
        if (!accept(text, &value))
            return Refused;
        if (m_box->value() != value || shownValue() != value)
            enter(value);
        finishTyping(m_box, m_box ? lineEditOf(m_box) : nullptr);
        return Written;
    }

private:
    QString wholeText(const QString &text) const
    {
        return m_box->prefix() + text + m_box->suffix();
    }

    Value valueOf(const QString &wholeText) const
    {
        return (m_box.data()->*(&Inside<Box>::valueFromText))(wholeText);
    }

    bool accept(const QString &text, Value *value) const
    {
        if (m_base && !read(text, m_base, value))
            return false;
        const QString whole = wholeText(m_base ? ownText(m_box.data(), *value) : text);
        if (!isAcceptable(m_box, whole))
            return false;
        if (!m_base)
            *value = valueOf(whole);
        return *value >= m_box->minimum() && *value <= m_box->maximum();
    }

    // What has been typed by hard keys counts, even when the program has not heard of it yet.
    Value shownValue() const
    {
        const QString typed = lineEditOf(m_box)->text();
        const bool isPending = !m_box->keyboardTracking() && isAcceptable(m_box, typed);
        return isPending ? valueOf(typed) : m_box->value();
    }

    void enter(Value value)
    {
        const QString whole = wholeText(ownText(m_box.data(), value));
        if (valueOf(whole) != value) {
            m_box->setValue(value);
            return;
        }
        enterText(m_box, whole);
    }

    QString limits() const
    {
        return rangeText(limit(m_box->minimum()), limit(m_box->maximum()), m_box->prefix(),
                         m_box->suffix());
    }

    QString limit(Value value) const
    {
        if (isUnlimited(value))
            return QString();
        return m_base ? numberText(m_box, value) : ownText(m_box.data(), value);
    }

    QPointer<Box> m_box;
    int m_base;
    QScopedPointer<NumberShape> m_shape;
};

} // namespace

FieldAccess *accessToSpinBox(QAbstractSpinBox *box)
{
    if (QSpinBox *intBox = qobject_cast<QSpinBox *>(box))
        return new SpinBoxField<QSpinBox, int>(intBox);
    if (QDoubleSpinBox *doubleBox = qobject_cast<QDoubleSpinBox *>(box))
        return new SpinBoxField<QDoubleSpinBox, double>(doubleBox);
    return new OtherSpinBoxField(box);
}

bool isWritable(const QAbstractSpinBox *box)
{
    return box->isEnabled() && !box->isReadOnly();
}

bool isAcceptable(const QAbstractSpinBox *box, const QString &text)
{
    QString copy = text;
    int position = int(copy.length());
    return box->validate(copy, position) == QValidator::Acceptable;
}

QLineEdit *lineEditOf(QAbstractSpinBox *box)
{
    return (box->*(&InsideAny::lineEdit))();
}

bool enterText(QAbstractSpinBox *box, const QString &text)
{
    if (!isAcceptable(box, text))
        return false;
    const QPointer<QAbstractSpinBox> written(box);
    QLineEdit *edit = lineEditOf(box);
    const bool blocked =
        edit->blockSignals(true); // the box would keep the prefix from the selection
    edit->selectAll();
    edit->blockSignals(blocked);
    edit->insert(text);
    if (written)
        written->interpretText();
    return true;
}

} // namespace Fields
