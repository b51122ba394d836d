// SPDX-License-Identifier: MIT
#include "support/KeypadDriver.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

namespace {

template <class Keypad>
QDialog *instanceOf()
{
    return Keypad::instance();
}

} // namespace

typedef QDialog *(*Instance)();
Q_DECLARE_METATYPE(Instance)

// The one keypad of each kind. Nothing before this program's tests asks for one.
class tst_Instance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOneForEachKindAndAChildOfTheFirstView_data();
    void isOneForEachKindAndAChildOfTheFirstView();
};

void tst_Instance::isOneForEachKindAndAChildOfTheFirstView_data()
{
    QTest::addColumn<Instance>("instance");
    QTest::newRow("NumericKeypad") << Instance(instanceOf<NumericKeypad>);
    QTest::newRow("GCodeKeypad") << Instance(instanceOf<GCodeKeypad>);
    QTest::newRow("vondKeypad") << Instance(instanceOf<vondKeypad>);
    QTest::newRow("DateTimeKeypad") << Instance(instanceOf<DateTimeKeypad>);
    QTest::newRow("CharacterKeypad") << Instance(instanceOf<CharacterKeypad>);
}

void tst_Instance::isOneForEachKindAndAChildOfTheFirstView()
{
    QFETCH(Instance, instance);
    PanelView first(1);
    QVERIFY(first.findChildren<QDialog *>().isEmpty()); // built by the first call, not before
    QDialog *keypad = instance();
    QVERIFY(keypad);
    QCOMPARE(keypad->metaObject()->className(), QTest::currentDataTag());
    QVERIFY(keypad->parentWidget() == &first);
    QVERIFY(!keypad->isVisible());

    QGraphicsView second;
    HMIDeviceInfo::setGraphicsView(&second);
    QVERIFY(instance() == keypad);
    HMIDeviceInfo::setGraphicsView(nullptr);
    QVERIFY(instance() == keypad);
    HMIDeviceInfo::setDeviceInfo(13, QSize());
    QVERIFY(instance() == keypad);

    QVERIFY(keypad->parentWidget() == &first);
    const QDialog plain(&first, Qt::FramelessWindowHint);
    QCOMPARE(int(keypad->windowFlags()), int(plain.windowFlags()));
    QCOMPARE(first.findChildren<QDialog *>().size(), 2); // it and the plain one
}

QTEST_MAIN(tst_Instance)

#include "tst_Instance.moc"
