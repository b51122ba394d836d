// SPDX-License-Identifier: MIT
#include "support/KeypadStage.h"
#include "support/QtDifferences.h"

#include <HMIDevice/vondKeypad.h>

#include <QGridLayout>
#include <QIntValidator>

// The axis keypad's own keys; what it shares with other keypads is tested elsewhere.

static const char allLabels[] =
    "F G 7 8 9 U A X 4 5 6 V B Y 1 2 3 W C Z 0 . - ← → ESC BSP └─┘ Enter";

class tst_vondKeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keysAreCreatedInOrder();
    void keysLieInTheirCells_data();
    void keysLieInTheirCells();
    void theTopLeftCellStaysEmpty();
    void columnsShareTheWidthEqually();
    void allKeysAreEnabledWhateverIsAsked();
    void insertingKeysTypeTheirLabel_data();
    void insertingKeysTypeTheirLabel();
    void theSpaceKeyTypesOneSpace();
    void editingKeysMoveAndErase_data();
    void editingKeysMoveAndErase();
    void validatorAndMaximumLengthRefuseKeys();
    void typedAxisWordReachesTheTarget();
    void escEndsTheEntry();
    void aCallWithoutKeyDoesNothing();
};

void tst_vondKeypad::initTestCase()
{
    QtDifferences::readLiteralsAsGbk();
}

void tst_vondKeypad::keysAreCreatedInOrder()
{
    vondKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(keyLabels(&keypad), labelList(allLabels));
}

void tst_vondKeypad::keysLieInTheirCells_data()
{
    // A blank at the start stands for the empty cell.
    static const char *const face[] = {
        " F G 7 8 9", "U A X 4 5 6", "V B Y 1 2 3", "W C Z 0 . -", "← → ESC BSP └─┘ Enter",
    };
    QTest::addColumn<QString>("label");
    QTest::addColumn<QRect>("cell");
    for (int row = 0; row < 5; ++row) {
        const QStringList labels = labelList(face[row]);
        QCOMPARE(int(labels.size()), 6);
        for (int column = 0; column < 6; ++column) {
            if (!labels.at(column).isEmpty())
                QTest::newRow(labels.at(column).toUtf8().constData())
                    << labels.at(column) << QRect(column, row, 1, 1);
        }
    }
}

void tst_vondKeypad::keysLieInTheirCells()
{
    QFETCH(QString, label);
    vondKeypad keypad(nullptr, Qt::WindowFlags());
    QTEST(gridCells(&keypad, label), "cell");
}

void tst_vondKeypad::theTopLeftCellStaysEmpty()
{
    vondKeypad keypad(nullptr, Qt::WindowFlags());
    const QGridLayout *grid = keypad.findChild<QGridLayout *>();
    QCOMPARE(grid->rowCount(), 5);
    QCOMPARE(grid->columnCount(), 6);
    QCOMPARE(grid->count(), 29);
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 6; ++column)
            QCOMPARE(!grid->itemAtPosition(row, column), row == 0 && column == 0);
    }
}

void tst_vondKeypad::columnsShareTheWidthEqually()
{
    KeypadStage<vondKeypad> stage;
    stage.open();
    const QGridLayout *grid = stage.keypad.findChild<QGridLayout *>();
    int narrowest = stage.keypad.width();
    int widest = 0;
    for (int column = 0; column < 6; ++column) {
        QCOMPARE(grid->columnStretch(column), 0);
        narrowest = qMin(narrowest, grid->cellRect(4, column).width());
        widest = qMax(widest, grid->cellRect(4, column).width());
    }
    QVERIFY2(widest - narrowest <= 1,
             qPrintable(QString::fromLatin1("%1 to %2 pixels").arg(narrowest).arg(widest)));
}

void tst_vondKeypad::allKeysAreEnabledWhateverIsAsked()
{
    vondKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(enabledKeyLabels(&keypad), labelList(allLabels));
    const int modes[] = { 2, 10, 16, 0, -1 };
    for (int mode : modes)
        keypad.setEditMode(mode);
    keypad.setDecimalPointEnabled(false);
    QCOMPARE(enabledKeyLabels(&keypad), labelList(allLabels));
    key(&keypad, u("."))->setEnabled(false);
    keypad.setDecimalPointEnabled(true);
    QVERIFY(!key(&keypad, u("."))->isEnabled());
}

void tst_vondKeypad::insertingKeysTypeTheirLabel_data()
{
    QTest::addColumn<QString>("label");
    const QStringList labels = labelList("F G 7 8 9 U A X 4 5 6 V B Y 1 2 3 W C Z 0 .");
    for (int i = 0; i < labels.size(); ++i)
        QTest::newRow(qPrintable(labels.at(i))) << labels.at(i);
}

void tst_vondKeypad::insertingKeysTypeTheirLabel()
{
    QFETCH(QString, label);
    KeypadStage<vondKeypad> stage;
    stage.open(u("X5"));
    CHECKED(tap(&stage.keypad, label)); // replaces the selection
    QCOMPARE(stage.line()->text(), label);
    CHECKED(tap(&stage.keypad, label));
    CHECKED(tap(&stage.keypad, u("←")));
    CHECKED(tap(&stage.keypad, u("1")));
    QCOMPARE(stage.line()->text(), label + u("1") + label);
    QCOMPARE(stage.line()->cursorPosition(), 2);
    QCOMPARE(stage.target.text(), QString());
}

void tst_vondKeypad::theSpaceKeyTypesOneSpace()
{
    KeypadStage<vondKeypad> stage;
    stage.open(u("X5"));
    CHECKED(tapAll(&stage.keypad, u("X 5 └─┘ Y 1")));
    QCOMPARE(stage.line()->text(), u("X5 Y1"));
}

void tst_vondKeypad::editingKeysMoveAndErase_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    // All begin with X12, selected.
    QTest::newRow("left of a selection") << u("←") << u("X12") << 2;
    QTest::newRow("left stops at the start") << u("← ← ← ← ←") << u("X12") << 0;
    QTest::newRow("right stops at the end") << u("← → → →") << u("X12") << 3;
    QTest::newRow("erase a selection") << u("BSP") << u("") << 0;
    QTest::newRow("erase from empty") << u("BSP BSP") << u("") << 0;
    QTest::newRow("erase in the middle") << u("← BSP") << u("X2") << 1;
    QTest::newRow("erase at the start") << u("← ← ← BSP") << u("X12") << 0;
    QTest::newRow("type in the middle") << u("← . G") << u("X1.G2") << 4;
}

void tst_vondKeypad::editingKeysMoveAndErase()
{
    QFETCH(QString, keys);
    KeypadStage<vondKeypad> stage;
    stage.open(u("X12"));
    CHECKED(tapAll(&stage.keypad, keys));
    QTEST(stage.line()->text(), "text");
    QTEST(stage.line()->cursorPosition(), "cursor");
    QVERIFY(!stage.line()->hasSelectedText());
}

void tst_vondKeypad::validatorAndMaximumLengthRefuseKeys()
{
    KeypadStage<vondKeypad> stage;
    stage.open();
    QIntValidator validator(0, 9999, nullptr);
    stage.keypad.setValidator(&validator);
    stage.keypad.setMaxLength(3);
    CHECKED(tapAll(&stage.keypad, u("1 X . └─┘ 2 3 4")));
    QCOMPARE(stage.line()->text(), u("123"));
}

void tst_vondKeypad::typedAxisWordReachesTheTarget()
{
    KeypadStage<vondKeypad> stage;
    stage.open(u("Z0"));
    stage.keypad.hide();
    CHECKED(execWhile(
        &stage.keypad, [&] { CHECKED(tapAll(&stage.keypad, u("X 1 2 . 5 - BSP 7 Enter"))); },
        Accepts));
    QCOMPARE(stage.target.text(), u("-X12.7"));
}

void tst_vondKeypad::escEndsTheEntry()
{
    KeypadStage<vondKeypad> stage;
    stage.open(u("Z0"));
    stage.keypad.hide();
    CHECKED(execWhile(
        &stage.keypad, [&] { CHECKED(tapAll(&stage.keypad, u("X 1 ESC"))); }, Rejects));
    QCOMPARE(stage.target.text(), QString());
    QCOMPARE(stage.line()->text(), u("X1"));
}

void tst_vondKeypad::aCallWithoutKeyDoesNothing()
{
    KeypadStage<vondKeypad> stage;
    stage.open(u("X1"));
    QVERIFY(QMetaObject::invokeMethod(&stage.keypad, "slot_toolButton_clicked"));
    QVERIFY(stage.keypad.isVisible());
    QCOMPARE(stage.line()->selectedText(), u("X1"));
    QCOMPARE(stage.target.text(), QString());
}

QTEST_MAIN(tst_vondKeypad)

#include "tst_vondKeypad.moc"
