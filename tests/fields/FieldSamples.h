// SPDX-License-Identifier: MIT
#ifndef FIELDSAMPLES_H
#define FIELDSAMPLES_H

#include "OddBoxes.h"

#include "support/Text.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpressionValidator>
#include <QSpinBox>

#include <limits>

// A field of each kind, owned by the caller.

namespace FieldSamples {

template <class Box>
Box *spinBox(Box *box, const char *prefix, const char *suffix)
{
    box->setPrefix(u(prefix));
    box->setSuffix(u(suffix));
    return box;
}

inline QSpinBox *intBox(int minimum, int maximum, int value, QSpinBox *box = new QSpinBox)
{
    box->setRange(minimum, maximum);
    box->setValue(value);
    return box;
}

inline QDoubleSpinBox *fractionBox(double minimum, double maximum, double value, int decimals)
{
    QDoubleSpinBox *box = new QDoubleSpinBox;
    box->setDecimals(decimals);
    box->setRange(minimum, maximum);
    box->setValue(value);
    return box;
}

inline QWidget *speed()
{
    return spinBox(intBox(-500, 6000, 1200), "S", " rpm");
}

inline QWidget *unlimited()
{
    return intBox(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 7);
}

inline QWidget *grouped()
{
    QSpinBox *box = intBox(0, 2000000, 1000000);
    box->setGroupSeparatorShown(true);
    return box;
}

inline QWidget *special()
{
    QSpinBox *box = intBox(0, 10, 0);
    box->setSpecialValueText(u("off"));
    return box;
}

inline QWidget *hexadecimal()
{
    QSpinBox *box = intBox(0, 0xffff, 0xab);
    box->setDisplayIntegerBase(16);
    return box;
}

inline QWidget *binary()
{
    QSpinBox *box = intBox(0, 255, 5);
    box->setDisplayIntegerBase(2);
    return box;
}

inline QWidget *untracked()
{
    QSpinBox *box = intBox(0, 99, 5);
    box->setKeyboardTracking(false);
    return box;
}

inline QWidget *feed()
{
    return spinBox(fractionBox(-10, 2000.5, 0.5, 3), "F", " mm/min");
}

inline QWidget *anyFraction()
{
    return fractionBox(-std::numeric_limits<double>::max(), std::numeric_limits<double>::max(),
                       1234.5, 1);
}

inline QWidget *wholeFraction()
{
    return fractionBox(0, 100, 5, 0);
}

inline QWidget *groupedFraction()
{
    QDoubleSpinBox *box = fractionBox(0, 99999, 12345.6, 2);
    box->setGroupSeparatorShown(true);
    return box;
}

inline QWidget *own(QSpinBox *box)
{
    return intBox(0, 1000, 150, box);
}

inline QWidget *ownEven()
{
    return own(new EvenBox);
}

inline QWidget *ownMinutes()
{
    return own(new MinuteBox);
}

inline QWidget *ownHex()
{
    return own(new HexBox);
}

inline QWidget *ownLong()
{
    return new LongBox;
}

inline QDateTimeEdit *dateTimeEdit(const char *format, QDateTimeEdit *edit = new QDateTimeEdit)
{
    edit->setDisplayFormat(u(format));
    edit->setDateTime(QDateTime(QDate(2024, 2, 29), QTime(12, 34, 56)));
    return edit;
}

inline QWidget *date()
{
    return dateTimeEdit("dd.MM.yyyy", new QDateEdit);
}

inline QWidget *limitedDate()
{
    QDateTimeEdit *edit = dateTimeEdit("d.M.yyyy", new QDateEdit);
    edit->setDateRange(QDate(2020, 1, 1), QDate(2029, 12, 31));
    return edit;
}

inline QWidget *timeOfDay()
{
    return dateTimeEdit("HH:mm", new QTimeEdit);
}

inline QWidget *dateTime()
{
    return dateTimeEdit("yyyy/MM/dd HH:mm:ss");
}

inline QLineEdit *lineEdit(const char *text, const QValidator *validator = nullptr)
{
    QLineEdit *edit = new QLineEdit(u(text));
    edit->setValidator(validator);
    return edit;
}

inline QWidget *text()
{
    return lineEdit("abc");
}

inline QWidget *password()
{
    QLineEdit *edit = lineEdit("secret");
    edit->setEchoMode(QLineEdit::Password);
    return edit;
}

inline QWidget *shortText()
{
    QLineEdit *edit = lineEdit("ab");
    edit->setMaxLength(3);
    return edit;
}

inline QWidget *wholeNumber()
{
    return lineEdit("12", new QIntValidator(-100, 100, qApp));
}

inline QWidget *fraction()
{
    const QString number = QLocale().toString(2.25);
    return lineEdit(number.toUtf8(), new QDoubleValidator(0, 50, 3, qApp));
}

inline QWidget *fractionOfC()
{
    QDoubleValidator *validator = new QDoubleValidator(0, 50, 3, qApp);
    validator->setLocale(QLocale::c());
    return lineEdit("2.25", validator);
}

inline QWidget *word()
{
    return lineEdit("ab", new QRegularExpressionValidator(QRegularExpression(u("[a-d]*")), qApp));
}

inline QWidget *address()
{
    QLineEdit *edit = lineEdit("");
    edit->setInputMask(u("000.000.000.000;_"));
    edit->setText(u("10.0.0.1"));
    return edit;
}

inline QWidget *comboBox(const QValidator *validator, const char *items)
{
    QComboBox *box = new QComboBox;
    box->setEditable(true);
    box->addItems(u(items).split(QLatin1Char(' ')));
    box->setValidator(validator);
    return box;
}

inline QWidget *material()
{
    return comboBox(nullptr, "steel brass ti");
}

inline QWidget * override()
{
    return comboBox(new QIntValidator(0, 120, qApp), "100 50 10");
}

template <class Edit>
QWidget *program()
{
    Edit *edit = new Edit;
    edit->setPlainText(u("N10 G0\nN20 G1\nN30 M2"));
    return edit;
}

} // namespace FieldSamples

#endif
