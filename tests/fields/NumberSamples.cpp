// SPDX-License-Identifier: MIT
#include "NumberSamples.h"

#include "FieldSamples.h"
#include "support/Text.h"

#include <QDoubleSpinBox>
#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>
#include <QSpinBox>

#include <limits>

namespace NumberSamples {

QWidget *speed()
{
    QSpinBox *box = FieldSamples::intBox(0, 6000, 120);
    box->setSuffix(u(" rpm"));
    return box;
}

QWidget *offset()
{
    return FieldSamples::intBox(-50, 50, 5);
}

QWidget *address()
{
    QSpinBox *box = FieldSamples::intBox(0, 255, 31);
    box->setDisplayIntegerBase(16);
    box->setPrefix(u("0x"));
    return box;
}

QWidget *bits()
{
    QSpinBox *box = FieldSamples::intBox(0, 15, 5);
    box->setDisplayIntegerBase(2);
    return box;
}

QWidget *coolant()
{
    QSpinBox *box = FieldSamples::intBox(0, 100, 0);
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
    QSpinBox *box = FieldSamples::intBox(0, 359, 10);
    box->setWrapping(true);
    return box;
}

QWidget *pieces()
{
    QSpinBox *box = FieldSamples::intBox(0, std::numeric_limits<int>::max(), 1234567);
    box->setGroupSeparatorShown(true);
    return box;
}

QWidget *quietPieces()
{
    QSpinBox *box = FieldSamples::intBox(std::numeric_limits<int>::min(), 1000, 3);
    box->setKeyboardTracking(false);
    return box;
}

QWidget *feed()
{
    QDoubleSpinBox *box = FieldSamples::fractionBox(-10, 10, 0.25, 2);
    box->setPrefix(u("F "));
    box->setSuffix(u(" mm"));
    return box;
}

QWidget *finePosition()
{
    return FieldSamples::fractionBox(0, 1, 0.0625, 4);
}

QWidget *wholeFeed()
{
    return FieldSamples::fractionBox(0, 100, 40, 0);
}

QWidget *length()
{
    QDoubleSpinBox *box = FieldSamples::fractionBox(0, 9000000, 1234567.5, 2);
    box->setGroupSeparatorShown(true);
    return box;
}

QWidget *tool()
{
    return FieldSamples::lineEdit("12", new QIntValidator(1, 500, qApp));
}

QWidget *radius()
{
    return FieldSamples::lineEdit(QLocale().toString(0.25, 'f', 2).toUtf8(),
                                  new QDoubleValidator(-10, 10, 2, qApp));
}

QWidget *distance()
{
    return FieldSamples::lineEdit(QLocale().toString(1234.5, 'f', 1).toUtf8(),
                                  new QDoubleValidator(0, 90000, 3, qApp));
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
