// SPDX-License-Identifier: MIT
#include "support/KeypadStage.h"
#include "support/QtDifferences.h"

#include <HMIDevice/GCodeKeypad.h>

#include <QApplication>
#include <QGridLayout>
#include <QIntValidator>

// The G-code keypad's own keys and its place over the target; what it shares with other keypads is
// tested elsewhere.

static const char characters[] = "IJKLMFG789HRTPUAX456ODEQVBY123,$NSWCZ0.-";
static const char editingLabels[] = "ESC BSP ← → Enter └──┘";

static QStringList allLabels()
{
    QStringList labels;
    for (const char *c = characters; *c; ++c)
        labels << QString(QLatin1Char(*c));
    return labels + labelList(editingLabels);
}

class tst_GCodeKeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keysAreCreatedInOrder();
    void characterKeysLieInFourRowsOfTen_data();
    void characterKeysLieInFourRowsOfTen();
    void editingKeysLieInTheLastRow_data();
    void editingKeysLieInTheLastRow();
    void noCellIsEmpty();
    void allKeysAreEnabledWhateverIsAsked();
    void characterKeysTypeTheirLabel_data();
    void characterKeysTypeTheirLabel();
    void editingKeysMoveAndErase_data();
    void editingKeysMoveAndErase();
    void validatorAndMaximumLengthRefuseKeys();
    void typedBlockReachesTheTarget();
    void escEndsTheEntry();
    void aCallWithoutKeyDoesNothing();
    void liesOverATargetThatIsAWindow_data();
    void liesOverATargetThatIsAWindow();
    void cannotBeResizedOverATarget();
    void liesOverANestedTargetMappedTwice_data();
    void liesOverANestedTargetMappedTwice();
    void leavesItsPlaceAloneForAnyOtherTarget_data();
    void leavesItsPlaceAloneForAnyOtherTarget();
    void keepsItsFixedSizeForLaterTargets();
    void followsItsTargetAtEveryShow();
};

void tst_GCodeKeypad::initTestCase()
{
    QtDifferences::readLiteralsAsGbk();
}

void tst_GCodeKeypad::keysAreCreatedInOrder()
{
    GCodeKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(keyLabels(&keypad), allLabels());
    QCOMPARE(int(keyLabels(&keypad).size()), 46);
}

void tst_GCodeKeypad::characterKeysLieInFourRowsOfTen_data()
{
    static const char *const face[] = {
        "I J K L M F G 7 8 9",
        "H R T P U A X 4 5 6",
        "O D E Q V B Y 1 2 3",
        ", $ N S W C Z 0 . -",
    };
    QTest::addColumn<QString>("label");
    QTest::addColumn<QRect>("cells");
    for (int row = 0; row < 4; ++row) {
        const QStringList labels = labelList(face[row]);
        QCOMPARE(int(labels.size()), 10);
        for (int i = 0; i < 10; ++i)
            QTest::newRow(qPrintable(labels.at(i))) << labels.at(i) << QRect(2 * i, row, 2, 1);
    }
}

void tst_GCodeKeypad::characterKeysLieInFourRowsOfTen()
{
    QFETCH(QString, label);
    GCodeKeypad keypad(nullptr, Qt::WindowFlags());
    QTEST(gridCells(&keypad, label), "cells");
}

void tst_GCodeKeypad::editingKeysLieInTheLastRow_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QRect>("cells");
    QTest::newRow("ESC") << u("ESC") << QRect(0, 4, 3, 1);
    QTest::newRow("left") << u("←") << QRect(3, 4, 2, 1);
    QTest::newRow("right") << u("→") << QRect(5, 4, 2, 1);
    QTest::newRow("space") << u("└──┘") << QRect(7, 4, 5, 1);
    QTest::newRow("BSP") << u("BSP") << QRect(12, 4, 4, 1);
    QTest::newRow("Enter") << u("Enter") << QRect(16, 4, 4, 1);
}

void tst_GCodeKeypad::editingKeysLieInTheLastRow()
{
    QFETCH(QString, label);
    GCodeKeypad keypad(nullptr, Qt::WindowFlags());
    QTEST(gridCells(&keypad, label), "cells");
}

void tst_GCodeKeypad::noCellIsEmpty()
{
    GCodeKeypad keypad(nullptr, Qt::WindowFlags());
    const QGridLayout *grid = keypad.findChild<QGridLayout *>();
    QCOMPARE(grid->rowCount(), 5);
    QCOMPARE(grid->columnCount(), 20);
    QCOMPARE(grid->count(), 46);
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 20; ++column) {
            QVERIFY(grid->itemAtPosition(row, column));
            QCOMPARE(int(grid->itemAtPosition(row, column)->alignment()), 0);
        }
    }
}

void tst_GCodeKeypad::allKeysAreEnabledWhateverIsAsked()
{
    GCodeKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(enabledKeyLabels(&keypad), allLabels());
    const int modes[] = { 2, 10, 16, 0, -1 };
    for (int mode : modes)
        keypad.setEditMode(mode);
    keypad.setDecimalPointEnabled(false);
    QCOMPARE(enabledKeyLabels(&keypad), allLabels());
    key(&keypad, u("."))->setEnabled(false);
    keypad.setDecimalPointEnabled(true);
    QVERIFY(!key(&keypad, u("."))->isEnabled());
}

void tst_GCodeKeypad::characterKeysTypeTheirLabel_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("typed");
    const QStringList labels = allLabels();
    for (int i = 0; i < 40; ++i)
        QTest::newRow(qPrintable(labels.at(i))) << labels.at(i) << labels.at(i);
    QTest::newRow("space") << u("└──┘") << u(" ");
}

void tst_GCodeKeypad::characterKeysTypeTheirLabel()
{
    QFETCH(QString, label);
    QFETCH(QString, typed);
    KeypadStage<GCodeKeypad> stage;
    stage.open(u("G01"));
    CHECKED(tap(&stage.keypad, label)); // replaces the selection
    QCOMPARE(stage.line()->text(), typed);
    CHECKED(tap(&stage.keypad, label));
    CHECKED(tap(&stage.keypad, u("←")));
    CHECKED(tap(&stage.keypad, u("1")));
    QCOMPARE(stage.line()->text(), typed + u("1") + typed);
    QCOMPARE(stage.line()->cursorPosition(), 2);
    QCOMPARE(stage.target.text(), QString());
}

void tst_GCodeKeypad::editingKeysMoveAndErase_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    // All begin with G01, selected.
    QTest::newRow("left of a selection") << u("←") << u("G01") << 2;
    QTest::newRow("left stops at the start") << u("← ← ← ← ←") << u("G01") << 0;
    QTest::newRow("right stops at the end") << u("← → → →") << u("G01") << 3;
    QTest::newRow("erase a selection") << u("BSP") << u("") << 0;
    QTest::newRow("erase from empty") << u("BSP BSP") << u("") << 0;
    QTest::newRow("erase in the middle") << u("← BSP") << u("G1") << 1;
    QTest::newRow("erase at the start") << u("← ← ← BSP") << u("G01") << 0;
    QTest::newRow("minus is no sign key") << u("← - -") << u("G0--1") << 4;
    QTest::newRow("two points") << u("← . .") << u("G0..1") << 4;
}

void tst_GCodeKeypad::editingKeysMoveAndErase()
{
    QFETCH(QString, keys);
    KeypadStage<GCodeKeypad> stage;
    stage.open(u("G01"));
    CHECKED(tapAll(&stage.keypad, keys));
    QTEST(stage.line()->text(), "text");
    QTEST(stage.line()->cursorPosition(), "cursor");
    QVERIFY(!stage.line()->hasSelectedText());
}

void tst_GCodeKeypad::validatorAndMaximumLengthRefuseKeys()
{
    KeypadStage<GCodeKeypad> stage;
    stage.open();
    QIntValidator validator(0, 9999, nullptr);
    stage.keypad.setValidator(&validator);
    stage.keypad.setMaxLength(3);
    CHECKED(tapAll(&stage.keypad, u("1 X $ - └──┘ 2 3 4")));
    QCOMPARE(stage.line()->text(), u("123"));
}

void tst_GCodeKeypad::typedBlockReachesTheTarget()
{
    KeypadStage<GCodeKeypad> stage;
    stage.open(u("M30"));
    stage.keypad.hide();
    CHECKED(execWhile(
        &stage.keypad,
        [&] { CHECKED(tapAll(&stage.keypad, u("G 0 1 └──┘ X - 1 . 5 BSP 7 Enter"))); }, Accepts));
    QCOMPARE(stage.target.text(), u("G01 X-1.7"));
}

void tst_GCodeKeypad::escEndsTheEntry()
{
    KeypadStage<GCodeKeypad> stage;
    stage.open(u("M30"));
    stage.keypad.hide();
    CHECKED(execWhile(
        &stage.keypad, [&] { CHECKED(tapAll(&stage.keypad, u("G 0 ESC"))); }, Rejects));
    QCOMPARE(stage.target.text(), QString());
    QCOMPARE(stage.line()->text(), u("G0"));
}

void tst_GCodeKeypad::aCallWithoutKeyDoesNothing()
{
    KeypadStage<GCodeKeypad> stage;
    stage.open(u("G01"));
    QVERIFY(QMetaObject::invokeMethod(&stage.keypad, "slot_toolButton_clicked"));
    QVERIFY(stage.keypad.isVisible());
    QCOMPARE(stage.line()->selectedText(), u("G01"));
    QCOMPARE(stage.target.text(), QString());
}

// Its place

static QRect rectOver(GCodeKeypad *keypad, QObject *target)
{
    keypad->setObject(target);
    QRect rect;
    execWhile(
        keypad, [&] { rect = keypad->geometry(); }, StaysOpen);
    return rect;
}

void tst_GCodeKeypad::liesOverATargetThatIsAWindow_data()
{
    QTest::addColumn<QRect>("target");
    QTest::addColumn<bool>("shown");
    QTest::newRow("200x80") << QRect(100, 50, 200, 80) << false;
    QTest::newRow("200x80, shown") << QRect(100, 50, 200, 80) << true;
    QTest::newRow("tiny") << QRect(10, 20, 30, 12) << false;
    QTest::newRow("the whole panel") << QRect(0, 0, 480, 272) << false;
    QTest::newRow("left of the screen") << QRect(-40, -30, 300, 100) << false;
}

void tst_GCodeKeypad::liesOverATargetThatIsAWindow()
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

void tst_GCodeKeypad::cannotBeResizedOverATarget()
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

void tst_GCodeKeypad::liesOverANestedTargetMappedTwice_data()
{
    QTest::addColumn<bool>("framed");
    QTest::addColumn<QPoint>("windowCorner");
    QTest::addColumn<QRect>("target");
    QTest::newRow("at its parent's corner") << false << QPoint(0, 0) << QRect(0, 0, 200, 80);
    QTest::newRow("inside its parent") << false << QPoint(0, 0) << QRect(30, 40, 200, 80);
    QTest::newRow("in a moved window") << false << QPoint(15, 25) << QRect(30, 40, 200, 80);
    QTest::newRow("with a framed view") << true << QPoint(15, 25) << QRect(30, 40, 200, 80);
}

void tst_GCodeKeypad::liesOverANestedTargetMappedTwice()
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

void tst_GCodeKeypad::leavesItsPlaceAloneForAnyOtherTarget_data()
{
    QTest::addColumn<int>("target");
    QTest::newRow("never bound") << 0;
    QTest::newRow("plain object") << 1;
    QTest::newRow("destroyed widget") << 2;
}

void tst_GCodeKeypad::leavesItsPlaceAloneForAnyOtherTarget()
{
    QFETCH(int, target);
    PanelView view(1);
    QObject object;
    QObject *const targets[] = { nullptr, &object, new QLineEdit };

    // A dialog of the same size that Qt places by itself.
    QDialog plain(&view, Qt::FramelessWindowHint);
    plain.resize(320, 240);
    plain.show();
    const QRect placedByQt = plain.geometry();
    plain.hide();

    GCodeKeypad keypad(&view, Qt::WindowFlags());
    keypad.setObject(targets[target]);
    delete targets[2];
    QRect rect;
    CHECKED(execWhile(
        &keypad, [&] { rect = keypad.geometry(); }, StaysOpen));
    QCOMPARE(rect, placedByQt);
    QCOMPARE(rect.size(), QSize(320, 240));

    keypad.setGeometry(12, 34, 410, 220);
    CHECKED(execWhile(
        &keypad, [&] { rect = keypad.geometry(); }, StaysOpen));
    QCOMPARE(rect, QRect(12, 34, 410, 220));
}

void tst_GCodeKeypad::keepsItsFixedSizeForLaterTargets()
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

void tst_GCodeKeypad::followsItsTargetAtEveryShow()
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

QTEST_MAIN(tst_GCodeKeypad)

#include "tst_GCodeKeypad.moc"
