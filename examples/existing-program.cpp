// SPDX-License-Identifier: MIT
//
// A program with fields of many kinds, and one line that gives every one of them its keypad.

#include <HMIDevice/FieldKeypads.h>

#include <QApplication>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QWidget>

namespace {

template <class Field>
Field *addField(QFormLayout *form, const char *label, const char *name)
{
    Field *field = new Field;
    field->setObjectName(QLatin1String(name));
    form->addRow(QLatin1String(label), field);
    return field;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    QWidget window;
    window.resize(640, 480);
    QFormLayout *form = new QFormLayout(&window);
    addField<QSpinBox>(form, "Spindle", "spindle")->setRange(0, 6000);
    addField<QDoubleSpinBox>(form, "Feed", "feed")->setRange(0.1, 20);
    addField<QDateEdit>(form, "Service", "service")->setDate(QDate(2024, 2, 29));
    addField<QLineEdit>(form, "Operator", "operator");

    FieldKeypads keypads(&window); // from now on a tap on a field opens its keypad

    window.show();
    return application.exec();
}
