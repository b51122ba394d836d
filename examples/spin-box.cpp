// SPDX-License-Identifier: MIT
//
// What a spin box knows, its keypad shows: limits, base, decimals, unit. A value beyond the limits
// opens the keypad again and never reaches the program.

#include <HMIDevice/FieldKeypads.h>

#include <QApplication>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWidget>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    QSpinBox *speed = new QSpinBox;
    speed->setObjectName(QLatin1String("speed"));
    speed->setRange(100, 6000);
    speed->setSuffix(QLatin1String(" rpm"));

    QSpinBox *address = new QSpinBox;
    address->setObjectName(QLatin1String("address"));
    address->setDisplayIntegerBase(16); // "A" to "F" can be typed
    address->setRange(0, 0xffff);

    QLabel *machine = new QLabel; // what the program is told
    machine->setObjectName(QLatin1String("machine"));
    QObject::connect(speed, SIGNAL(valueChanged(int)), machine, SLOT(setNum(int)));

    QWidget window;
    QVBoxLayout *layout = new QVBoxLayout(&window);
    layout->addWidget(speed);
    layout->addWidget(address);
    layout->addWidget(machine);
    window.resize(640, 480);

    FieldKeypads keypads(&window);
    window.show();
    return application.exec();
}
