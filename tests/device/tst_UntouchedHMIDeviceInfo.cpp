// SPDX-License-Identifier: MIT
#include <HMIDevice/HMIDeviceInfo.h>

#include <QtTest>

// The profile that an application finds at load time. Nothing in this program changes it.
class tst_UntouchedHMIDeviceInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTypeOneAt640x480();
};

void tst_UntouchedHMIDeviceInfo::isTypeOneAt640x480()
{
    QCOMPARE(HMIDeviceInfo::deviceType(), 1);
    QCOMPARE(HMIDeviceInfo::deviceSeries(), 1);
    QCOMPARE(HMIDeviceInfo::hasKeyboard(), true);
    QCOMPARE(HMIDeviceInfo::isTouchScreen(), false);
    QCOMPARE(HMIDeviceInfo::needToFormatFont(), false);
    QCOMPARE(HMIDeviceInfo::screenSize(), QSize(640, 480));
    QCOMPARE(HMIDeviceInfo::screenRotate(), 0);
    QVERIFY(!HMIDeviceInfo::graphicsView());
}

QTEST_MAIN(tst_UntouchedHMIDeviceInfo)

#include "tst_UntouchedHMIDeviceInfo.moc"
