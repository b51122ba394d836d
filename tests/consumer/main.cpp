// SPDX-License-Identifier: MIT
#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/NumericKeypad.h>

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

bool hasDictionaryBeside()
{
#ifdef CONSUMER_HAS_DICTIONARY
    return QFile::exists(QCoreApplication::applicationDirPath() + QLatin1String("/data.db"));
#else
    return true; // it asked for none
#endif
}

} // namespace

// Exit status 0 when the keypad wrote its text into the field, and the dictionary is there.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    HMIDeviceInfo::setDeviceInfo(9, QSize());
    QLineEdit field;
    NumericKeypad::instance()->setObject(&field);
    NumericKeypad::instance()->setText(QString::number(HMIDeviceInfo::screenSize().width()));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier);
    QApplication::sendEvent(NumericKeypad::instance(), &enter);
    return field.text() == QLatin1String("480") && hasDictionaryBeside() ? 0 : 1;
}
