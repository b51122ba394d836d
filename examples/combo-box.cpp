// SPDX-License-Identifier: MIT
//
// An editable combo box opens the character keypad, unless the program chooses another one.

#include <HMIDevice/FieldKeypads.h>

#include <QApplication>
#include <QComboBox>
#include <QVBoxLayout>
#include <QWidget>

namespace {

QComboBox *addComboBox(QVBoxLayout *layout, const char *name, const QStringList &items)
{
    QComboBox *comboBox = new QComboBox;
    comboBox->setObjectName(QLatin1String(name));
    comboBox->setEditable(true);
    comboBox->addItems(items);
    layout->addWidget(comboBox);
    return comboBox;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    QWidget window;
    window.resize(640, 480);
    QVBoxLayout *layout = new QVBoxLayout(&window);
    addComboBox(layout, "material",
                QStringList() << QLatin1String("steel") << QLatin1String("brass"));
    QComboBox *axis =
        addComboBox(layout, "axis", QStringList() << QLatin1String("X0") << QLatin1String("Z100"));

    FieldKeypads keypads(&window);
    keypads.setKind(axis, FieldKeypads::Axis);

    window.show();
    return application.exec();
}
