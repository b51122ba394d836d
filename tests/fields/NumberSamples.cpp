// SPDX-License-Identifier: MIT
#include "NumberSamples.h"

#include "support/Text.h"

#include <QDoubleSpinBox>
#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>
#include <QSpinBox>

#include <limits>

namespace NumberSamples {

namespace {

QSpinBox *newSpinBox(int minimum, int maximum, int value)
{
    QSpinBox *box = new QSpinBox;
    box->setRange(minimum, maximum);
    box->setValue(value);
    return box;
}

QDoubleSpinBox *newDoubleSpinBox(int decimals, double minimum, double maximum, double value)
{
    QDoubleSpinBox *box = new QDoubleSpinBox;
    box->setDecimals(decimals);
    box->setRange(minimum, maximum);
    box->setValue(value);
    return box;
}

QLineEdit *newLineEdit(const QString &text, QValidator *validator)
{
    QLineEdit *edit = new QLineEdit(text);
    validator->setParent(edit);
    edit->setValidator(validator);
    return edit;
}

} // namespace

QWidget *speed()
{
    QSpinBox *box = newSpinBox(0, 6000, 120);
    box->setSuffix(u(" rpm"));
    return box;
}

QWidget *offset()
{
    return newSpinBox(-50, 50, 5);
}

QWidget *address()
{
    QSpinBox *box = newSpinBox(0, 255, 31);
    box->setDisplayIntegerBase(16);
    box->setPrefix(u("0x"));
    return box;
}

QWidget *bits()
{
    QSpinBox *box = newSpinBox(0, 15, 5);
    box->setDisplayIntegerBase(2);
    return box;
}

QWidget *coolant()
{
    QSpinBox *box = newSpinBox(0, 100, 0);
    box->setSpecialValueText(u("off"));
    return box;
}

QWidget *runningCoolant()
{
    QWidget *box = coolant();
    box->setProperty("value", 7);
    return box;
}

QWidget *angle()
{
    QSpinBox *box = newSpinBox(0, 359, 10);
    box->setWrapping(true);
    return box;
}

QWidget *pieces()
{
    QSpinBox *box = newSpinBox(0, std::numeric_limits<int>::max(), 1234567);
    box->setGroupSeparatorShown(true);
    return box;
}

QWidget *quietPieces()
{
    QSpinBox *box = newSpinBox(std::numeric_limits<int>::min(), 1000, 3);
    box->setKeyboardTracking(false);
    return box;
}

QWidget *feed()
{
    QDoubleSpinBox *box = newDoubleSpinBox(2, -10, 10, 0.25);
    box->setPrefix(u("F "));
    box->setSuffix(u(" mm"));
    return box;
}

QWidget *finePosition()
{
    return newDoubleSpinBox(4, 0, 1, 0.0625);
}

QWidget *wholeFeed()
{
    return newDoubleSpinBox(0, 0, 100, 40);
}

QWidget *length()
{
    QDoubleSpinBox *box = newDoubleSpinBox(2, 0, 9000000, 1234567.5);
    box->setGroupSeparatorShown(true);
    return box;
}

QWidget *tool()
{
    return newLineEdit(u("12"), new QIntValidator(1, 500, nullptr));
}

QWidget *radius()
{
    return newLineEdit(QLocale().toString(0.25, 'f', 2), new QDoubleValidator(-10, 10, 2, nullptr));
}

QWidget *distance()
{
    return newLineEdit(QLocale().toString(1234.5, 'f', 1),
                       new QDoubleValidator(0, 90000, 3, nullptr));
}

QWidget *name()
{
    QLineEdit *edit = new QLineEdit(u("abc"));
    edit->setMaxLength(5);
    return edit;
}

QWidget *password()
{
    QLineEdit *edit = new QLineEdit(u("abc"));
    edit->setEchoMode(QLineEdit::Password);
    return edit;
}

QWidget *partNumber()
{
    QLineEdit *edit = new QLineEdit;
    edit->setInputMask(u("99-99"));
    edit->setText(u("1234"));
    return edit;
}

} // namespace NumberSamples
