// SPDX-License-Identifier: MIT
#include "support/DarkScheme.h"
#include "support/KeypadDriver.h"

#include <HMIDevice/NumPanel.h>

#include <QHBoxLayout>

class tst_NumPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theTenDigitsStandInOrder();
    void keysAreFoundByTheirDigit_data();
    void keysAreFoundByTheirDigit();
    void theLayoutIsTheStylesOwn();
    void itIsBornHiddenAndWithoutFrame();
    void keysShareTheRow();
    void coloursFollowThePanelTypeOfItsConstruction_data();
    void coloursFollowThePanelTypeOfItsConstruction();
};

void tst_NumPanel::cleanup()
{
    HMIDeviceInfo::setDeviceInfo(1, QSize());
}

void tst_NumPanel::theTenDigitsStandInOrder()
{
    NumPanel panel(nullptr);
    QHBoxLayout *layout = qobject_cast<QHBoxLayout *>(panel.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 10);
    QCOMPARE(panel.findChildren<QToolButton *>().size(), 10);
    for (short i = 0; i < 10; ++i) {
        QToolButton *digit = panel.getToolButton(i);
        QVERIFY(digit);
        QCOMPARE(digit->text(), QString::number(i));
        QCOMPARE(layout->itemAt(i)->widget(), static_cast<QWidget *>(digit));
        QCOMPARE(digit->parentWidget(), static_cast<QWidget *>(&panel));
        QVERIFY(digit->sizePolicy() == QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    }
}

void tst_NumPanel::keysAreFoundByTheirDigit_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("found");

    QTest::newRow("smallest short") << -32768 << false;
    QTest::newRow("-1") << -1 << false;
    QTest::newRow("0") << 0 << true;
    QTest::newRow("9") << 9 << true;
    QTest::newRow("10") << 10 << false;
    QTest::newRow("largest short") << 32767 << false;
}

void tst_NumPanel::keysAreFoundByTheirDigit()
{
    QFETCH(int, index);
    QFETCH(bool, found);
    NumPanel panel(nullptr);
    QCOMPARE(panel.getToolButton(short(index)) != nullptr, found);
}

void tst_NumPanel::theLayoutIsTheStylesOwn()
{
    NumPanel panel(nullptr);
    QWidget bare;
    QHBoxLayout layout(&bare);
    QCOMPARE(panel.layout()->spacing(), layout.spacing());
    QCOMPARE(panel.layout()->contentsMargins(), layout.contentsMargins());
}

void tst_NumPanel::itIsBornHiddenAndWithoutFrame()
{
    QWidget parent;
    NumPanel panel(&parent);
    QCOMPARE(panel.parentWidget(), &parent);
    QVERIFY(panel.isHidden());
    QVERIFY(!panel.isVisibleTo(&parent));
    QVERIFY(panel.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(!panel.isWindow());
    QCOMPARE(panel.metaObject()->className(), "NumPanel");
    QVERIFY(NumPanel(nullptr).windowFlags() & Qt::FramelessWindowHint);
}

void tst_NumPanel::keysShareTheRow()
{
    NumPanel panel(nullptr);
    panel.setGeometry(0, 0, 640, 60);
    panel.show();
    for (short i = 1; i < 10; ++i) {
        const QRect left = panel.getToolButton(short(i - 1))->geometry();
        const QRect right = panel.getToolButton(i)->geometry();
        QVERIFY(left.right() < right.left());
        QCOMPARE(left.height(), right.height());
        QVERIFY(qAbs(left.width() - right.width()) <= 1);
    }
}

void tst_NumPanel::coloursFollowThePanelTypeOfItsConstruction_data()
{
    DarkScheme::addPanelTypeRows();
}

void tst_NumPanel::coloursFollowThePanelTypeOfItsConstruction()
{
    QFETCH(int, type);
    QFETCH(int, typeLater);
    QFETCH(bool, dark);
    HMIDeviceInfo::setDeviceInfo(type, QSize(640, 480));
    NumPanel panel(nullptr);
    HMIDeviceInfo::setDeviceInfo(typeLater, QSize(640, 480));

    for (short i = 0; i < 10; ++i)
        CHECKED(DarkScheme::verify(panel.getToolButton(i), dark));
}

QTEST_MAIN(tst_NumPanel)
#include "tst_NumPanel.moc"
