// SPDX-License-Identifier: MIT
#include "FieldStage.h"

#include "support/KeypadDriver.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLineEdit>
#include <QLocale>

FieldStage::FieldStage()
    : layout(new QVBoxLayout(&window))
    , keypads(&window)
{
    window.setGeometry(120, 90, 640, 480);
}

QWidget *tapPlace(QWidget *field)
{
    if (QAbstractScrollArea *area = qobject_cast<QAbstractScrollArea *>(field))
        return area->viewport();
    QLineEdit *inner = field->findChild<QLineEdit *>();
    return inner ? inner : field;
}

Operator::Action keys(const char *labels)
{
    return [=] {
        Operator::tapKeys(labels);
    };
}

QString keypadText()
{
    return editLine(Operator::keypad())->text();
}

QString keypadLimits()
{
    const QLabel *label = Operator::keypad()->findChild<QLabel *>(u("limitLabel"));
    return label && label->isVisible() ? label->text() : QString();
}

void edit(QWidget *field, const char *labels)
{
    Operator::withKeypad([=] { Operator::tap(tapPlace(field)); },
                         QList<Operator::Action>() << keys(labels));
}

void addLocaleRows()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("C") << QLocale::c();
    QTest::newRow("de_DE") << QLocale(QLocale::German, QLocale::Germany);
    QTest::newRow("zh_CN") << QLocale(QLocale::Chinese, QLocale::China);
}

void useLocale()
{
    QFETCH_GLOBAL(QLocale, locale);
    QLocale::setDefault(locale);
}

QString localized(const char *text)
{
    const QLocale locale;
    const bool hasGroups = locale != QLocale::c();
    return u(text)
        .replace(u("·"), QString(locale.decimalPoint()))
        .replace(u("_"), hasGroups ? QString(locale.groupSeparator()) : QString());
}
