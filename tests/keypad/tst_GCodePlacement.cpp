// SPDX-License-Identifier: MIT
#include "support/KeypadDriver.h"

#include <HMIDevice/GCodeKeypad.h>

#include <QApplication>
#include <QLineEdit>

// The G-code keypad's place over its target; what it shares with other keypads is tested elsewhere.

namespace {

QRect rectOver(GCodeKeypad *keypad, QObject *target)
{
    keypad->setObject(target);
    return rectWhileShown(keypad);
}

// Where Qt puts a dialog that nobody has moved, of the keypad's first size.
QRect placedByQt(QWidget *parent)
{
    QDialog plain(parent, Qt::FramelessWindowHint);
    plain.resize(320, 240);
    return rectWhileShown(&plain);
}

} // namespace

class tst_GCodePlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void liesOverATargetThatIsAWindow_data();
    void liesOverATargetThatIsAWindow();
    void cannotBeResizedOverATarget();
    void liesOverANestedTargetMappedTwice_data();
    void liesOverANestedTargetMappedTwice();
    void leavesItsPlaceAloneForAnyOtherTarget_data();
    void leavesItsPlaceAloneForAnyOtherTarget();
    void leavesItsPlaceAloneWithoutAView();
    void keepsItsFixedSizeForLaterTargets();
    void followsItsTargetAtEveryShow();
};

void tst_GCodePlacement::liesOverATargetThatIsAWindow_data()
{
    QTest::addColumn<QRect>("target");
    QTest::addColumn<bool>("shown");
    QTest::newRow("200x80") << QRect(100, 50, 200, 80) << false;
    QTest::newRow("200x80, shown") << QRect(100, 50, 200, 80) << true;
    QTest::newRow("tiny") << QRect(10, 20, 30, 12) << false;
    QTest::newRow("the whole panel") << QRect(0, 0, 480, 272) << false;
    QTest::newRow("left of the screen") << QRect(-40, -30, 300, 100) << false;
}

void tst_GCodePlacement::liesOverATargetThatIsAWindow()
{
    QFETCH(QRect, target);
    QFETCH(bool, shown);
    PanelView view(1, QSize(640, 480), PanelView::Frameless);
    GCodeKeypad keypad(&view, Qt::WindowFlags());
    QLineEdit field;
    field.setGeometry(target);
    field.setVisible(shown);

    const QPoint viewportCorner = view.viewport()->mapToGlobal(QPoint(0, 0));
    QCOMPARE(rectOver(&keypad, &field), target.translated(viewportCorner));
    QCOMPARE(keypad.size(), target.size());
}

void tst_GCodePlacement::cannotBeResizedOverATarget()
{
    PanelView view(1, QSize(640, 480), PanelView::Frameless);
    GCodeKeypad keypad(&view, Qt::WindowFlags());
    QLineEdit field;
    field.setGeometry(100, 50, 200, 80);
    rectOver(&keypad, &field);
    keypad.resize(400, 300);
    QCOMPARE(keypad.size(), QSize(200, 80));
    QCOMPARE(keypad.minimumSize(), QSize(200, 80));
    QCOMPARE(keypad.maximumSize(), QSize(200, 80));
}

void tst_GCodePlacement::liesOverANestedTargetMappedTwice_data()
{
    QTest::addColumn<bool>("framed");
    QTest::addColumn<QPoint>("windowCorner");
    QTest::addColumn<QRect>("target");
    QTest::newRow("at its parent's corner") << false << QPoint(0, 0) << QRect(0, 0, 200, 80);
    QTest::newRow("inside its parent") << false << QPoint(0, 0) << QRect(30, 40, 200, 80);
    QTest::newRow("in a moved window") << false << QPoint(15, 25) << QRect(30, 40, 200, 80);
    QTest::newRow("with a framed view") << true << QPoint(15, 25) << QRect(30, 40, 200, 80);
}

void tst_GCodePlacement::liesOverANestedTargetMappedTwice()
{
    QFETCH(bool, framed);
    QFETCH(QPoint, windowCorner);
    QFETCH(QRect, target);
    PanelView view(1, QSize(640, 480), framed ? PanelView::Framed : PanelView::Frameless);
    GCodeKeypad keypad(&view, Qt::WindowFlags());
    QWidget window;
    QLineEdit *field = new QLineEdit(&window);
    field->setGeometry(target);
    window.setGeometry(QRect(windowCorner, QSize(400, 300)));
    window.show();
    QApplication::processEvents();

    // The corner in the parent counts twice: in the rectangle and in the target's own mapping.
    const QPoint windowOrigin = window.mapToGlobal(QPoint(0, 0));
    const QPoint viewportOrigin = view.viewport()->mapToGlobal(QPoint(0, 0));
    const QPoint corner = target.topLeft() * 2 + windowOrigin + viewportOrigin;
    QCOMPARE(rectOver(&keypad, field), QRect(corner, target.size()));
}

void tst_GCodePlacement::leavesItsPlaceAloneForAnyOtherTarget_data()
{
    QTest::addColumn<int>("target");
    QTest::newRow("never bound") << 0;
    QTest::newRow("plain object") << 1;
    QTest::newRow("destroyed widget") << 2;
}

void tst_GCodePlacement::leavesItsPlaceAloneForAnyOtherTarget()
{
    QFETCH(int, target);
    PanelView view(1);
    QObject object;
    QObject *const targets[] = { nullptr, &object, new QLineEdit };
    const QRect unmoved = placedByQt(&view);

    GCodeKeypad keypad(&view, Qt::WindowFlags());
    keypad.setObject(targets[target]);
    delete targets[2];
    QCOMPARE(rectWhileShown(&keypad), unmoved);
    keypad.setGeometry(12, 34, 410, 220);
    QCOMPARE(rectWhileShown(&keypad), QRect(12, 34, 410, 220));
}

void tst_GCodePlacement::leavesItsPlaceAloneWithoutAView()
{
    PanelView view(1);
    HMIDeviceInfo::setGraphicsView(nullptr);
    QLineEdit field;
    field.setGeometry(100, 50, 200, 80);
    const QRect unmoved = placedByQt(nullptr);

    GCodeKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(rectOver(&keypad, &field), unmoved);
    keypad.setGeometry(12, 34, 410, 220);
    QCOMPARE(rectOver(&keypad, &field), QRect(12, 34, 410, 220));
    HMIDeviceInfo::setGraphicsView(&view);
    QCOMPARE(rectOver(&keypad, &field).size(), QSize(200, 80));
}

void tst_GCodePlacement::keepsItsFixedSizeForLaterTargets()
{
    PanelView view(1);
    GCodeKeypad keypad(&view, Qt::WindowFlags());
    QLineEdit field;
    field.setGeometry(100, 50, 200, 80);
    const QRect overField = rectOver(&keypad, &field);
    QCOMPARE(overField.size(), QSize(200, 80));

    QObject object;
    QCOMPARE(rectOver(&keypad, &object), overField);
    QCOMPARE(keypad.minimumSize(), QSize(200, 80));
    QCOMPARE(keypad.maximumSize(), QSize(200, 80));
}

void tst_GCodePlacement::followsItsTargetAtEveryShow()
{
    PanelView view(1, QSize(640, 480), PanelView::Frameless);
    GCodeKeypad keypad(&view, Qt::WindowFlags());
    const QPoint viewportCorner = view.viewport()->mapToGlobal(QPoint(0, 0));
    QLineEdit first, second;
    first.setGeometry(100, 50, 200, 80);
    second.setGeometry(20, 200, 400, 120);
    QCOMPARE(rectOver(&keypad, &first), first.geometry().translated(viewportCorner));
    QCOMPARE(rectOver(&keypad, &second), second.geometry().translated(viewportCorner));
    second.setGeometry(30, 10, 150, 60);
    QCOMPARE(rectOver(&keypad, &second), second.geometry().translated(viewportCorner));
}

QTEST_MAIN(tst_GCodePlacement)

#include "tst_GCodePlacement.moc"
