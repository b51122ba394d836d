// SPDX-License-Identifier: MIT
#include <HMIDevice/FieldKeypads.h>
#include <HMIDevice/NumericKeypad.h>

#include <QApplication>
#include <QKeyEvent>
#include <QSpinBox>
#include <QTimer>

namespace {

void enterNumber()
{
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier);
    NumericKeypad::instance()->setText(QLatin1String("42"));
    QApplication::sendEvent(NumericKeypad::instance(), &enter);
}

} // namespace

// Exit status 0 when the keypad of a field opened and wrote its number.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QSpinBox field;
    field.setMaximum(100);
    field.show();
    FieldKeypads keypads(&field);
    QTimer::singleShot(0, enterNumber);
    return keypads.edit(&field) && field.value() == 42 ? 0 : 1;
}
