// SPDX-License-Identifier: MIT
#include "support/KeypadDriver.h"

#include <HMIDevice/NumericKeypad.h>

// A keypad that is asked for before any view is registered.
class tst_InstanceWithoutView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAWindowOfItsOwnForGood();
};

void tst_InstanceWithoutView::isAWindowOfItsOwnForGood()
{
    QScopedPointer<NumericKeypad> keypad(NumericKeypad::instance()); // no view will delete it
    QVERIFY(!keypad->parentWidget());
    QCOMPARE(keypad->size(), QSize(320, 240));

    PanelView view(1);
    QVERIFY(NumericKeypad::instance() == keypad.data());
    QVERIFY(!keypad->parentWidget());
    CHECKED(execWhile(
        keypad.data(), [&] { QCOMPARE(keypad->geometry(), view.coveredRect()); }, StaysOpen));
}

QTEST_MAIN(tst_InstanceWithoutView)

#include "tst_InstanceWithoutView.moc"
