// SPDX-License-Identifier: MIT
#ifndef ODDBOXES_H
#define ODDBOXES_H

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

// Spin boxes as programs derive them.

// Takes even numbers only.
class EvenBox : public QSpinBox
{
    Q_OBJECT

protected:
    QValidator::State validate(QString &text, int &position) const override
    {
        const QValidator::State state = QSpinBox::validate(text, position);
        const bool isOdd = state == QValidator::Acceptable && valueFromText(text) % 2 != 0;
        return isOdd ? QValidator::Intermediate : state;
    }
};

// Shows 150 as "2:30".
class MinuteBox : public QSpinBox
{
    Q_OBJECT

protected:
    QString textFromValue(int value) const override
    {
        return QString::fromLatin1("%1:%2")
            .arg(value / 60)
            .arg(value % 60, 2, 10, QLatin1Char('0'));
    }

    int valueFromText(const QString &text) const override
    {
        const QStringList parts = text.split(QLatin1Char(':'));
        return parts.first().toInt() * 60 + parts.last().toInt();
    }

    QValidator::State validate(QString &text, int &) const override
    {
        return text.contains(QLatin1Char(':')) ? QValidator::Acceptable : QValidator::Intermediate;
    }
};

// Shows hexadecimal numbers as programs did before Qt could.
class HexBox : public QSpinBox
{
    Q_OBJECT

protected:
    QString textFromValue(int value) const override { return QString::number(value, 16).toUpper(); }

    int valueFromText(const QString &text) const override { return text.toInt(nullptr, 16); }

    QValidator::State validate(QString &text, int &) const override
    {
        bool isNumber = false;
        text.toInt(&isNumber, 16);
        return isNumber ? QValidator::Acceptable : QValidator::Intermediate;
    }
};

// Counts further than an int.
class LongBox : public QAbstractSpinBox
{
    Q_OBJECT
    Q_PROPERTY(qint64 value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(qint64 minimum READ minimum)
    Q_PROPERTY(qint64 maximum READ maximum)

public:
    LongBox()
        : m_value(0)
    {
        setValue(5000000000);
    }

    qint64 value() const { return m_value; }
    qint64 minimum() const { return 0; }
    qint64 maximum() const { return 9000000000; }

    void setValue(qint64 value)
    {
        if (value == m_value)
            return;
        m_value = value;
        lineEdit()->setText(QString::number(value));
        Q_EMIT valueChanged(value);
    }

Q_SIGNALS:
    void valueChanged(qint64 value);

private:
    qint64 m_value;
};

#endif
