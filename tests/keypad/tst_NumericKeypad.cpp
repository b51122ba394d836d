// SPDX-License-Identifier: MIT
#include "support/KeypadStage.h"

#include <HMIDevice/NumericKeypad.h>

#include <QApplication>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QIntValidator>

// The numeric keypad's own keys; what it shares with other keypads is tested elsewhere.

namespace {

const char allLabels[] = "A 1 2 3 ESC B 4 5 6 BSP C 7 8 9 +/- D E F 0 . ← → Enter";
const char binaryLabels[] = "1 ESC BSP 0 ← → Enter";
const char decimalLabels[] = "1 2 3 ESC 4 5 6 BSP 7 8 9 +/- 0 . ← → Enter";
const char hexadecimalLabels[] = "A 1 2 3 ESC B 4 5 6 BSP C 7 8 9 D E F 0 ← → Enter";

} // namespace

class tst_NumericKeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysAreCreatedInOrder();
    void keysLieInTheirCells_data();
    void keysLieInTheirCells();
    void oneCellStaysEmpty();
    void startsInDecimalWithoutLimits();
    void bindingEnablesAllKeys();
    void modesDisableWhatTheBaseLacks_data();
    void modesDisableWhatTheBaseLacks();
    void modesNeverEnable_data();
    void modesNeverEnable();
    void theDecimalPointIsSwitchedAlone();
    void insertingKeysTypeTheirLabel_data();
    void insertingKeysTypeTheirLabel();
    void aDisabledKeyTypesNothing();
    void editingKeysMoveAndErase_data();
    void editingKeysMoveAndErase();
    void validatorRefusesWhatItDoesNotAccept();
    void onlyTheValidatorStopsASecondPoint();
    void maximumLengthEndsTheEntry();
    void typedValueReachesTheTarget();
    void enterAndEscEndTheEntry();
    void hardKeysTypeIntoTheSameLine();
    void aCallWithoutKeyDoesNothing();
};

void tst_NumericKeypad::keysAreCreatedInOrder()
{
    NumericKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(keyLabels(&keypad), labelList(allLabels));
}

void tst_NumericKeypad::keysLieInTheirCells_data()
{
    static const char *const face[] = {
        "A 1 2 3 ESC",
        "B 4 5 6 BSP",
        "C 7 8 9 +/-",
        "D E F 0 .",
    };
    QTest::addColumn<QString>("label");
    QTest::addColumn<QRect>("cells");
    for (int row = 0; row < 4; ++row) {
        const QStringList labels = labelList(face[row]);
        for (int column = 0; column < labels.size(); ++column)
            QTest::newRow(qPrintable(labels.at(column)))
                << labels.at(column) << QRect(column, row, 1, 1);
    }
    QTest::newRow("left") << u("←") << QRect(0, 4, 1, 1);
    QTest::newRow("right") << u("→") << QRect(1, 4, 1, 1);
    QTest::newRow("Enter") << u("Enter") << QRect(3, 4, 2, 1);
}

void tst_NumericKeypad::keysLieInTheirCells()
{
    QFETCH(QString, label);
    NumericKeypad keypad(nullptr, Qt::WindowFlags());
    QTEST(gridCells(&keypad, label), "cells");
}

void tst_NumericKeypad::oneCellStaysEmpty()
{
    NumericKeypad keypad(nullptr, Qt::WindowFlags());
    const QGridLayout *grid = keypad.findChild<QGridLayout *>();
    QCOMPARE(grid->rowCount(), 5);
    QCOMPARE(grid->columnCount(), 5);
    QCOMPARE(grid->count(), 23);
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 5; ++column)
            QCOMPARE(!grid->itemAtPosition(row, column), row == 4 && column == 2);
    }
}

void tst_NumericKeypad::startsInDecimalWithoutLimits()
{
    NumericKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(enabledKeyLabels(&keypad), labelList(decimalLabels));
    QVERIFY(tipLabel(&keypad)->isHidden());
    QCOMPARE(editLine(&keypad)->text(), QString());
}

void tst_NumericKeypad::bindingEnablesAllKeys()
{
    NumericKeypad keypad(nullptr, Qt::WindowFlags());
    QLabel target;
    const int modes[] = { 0, 2, 10, 16 };
    for (int mode : modes) {
        keypad.setEditMode(mode);
        keypad.setDecimalPointEnabled(false);
        keypad.setObject(&target);
        QCOMPARE(enabledKeyLabels(&keypad), labelList(allLabels));
    }
}

void tst_NumericKeypad::modesDisableWhatTheBaseLacks_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("binary") << 2 << u(binaryLabels);
    QTest::newRow("decimal") << 10 << u(decimalLabels);
    QTest::newRow("hexadecimal") << 16 << u(hexadecimalLabels);
    const int unknown[] = { 8, 0, 1, -2, 3, 32, 2147483647 };
    for (int mode : unknown) {
        QTest::newRow(qPrintable(QString::fromLatin1("unknown %1").arg(mode)))
            << mode << u(allLabels);
    }
}

void tst_NumericKeypad::modesDisableWhatTheBaseLacks()
{
    QFETCH(int, mode);
    QFETCH(QString, enabled);
    KeypadStage<NumericKeypad> stage;
    stage.open();
    stage.keypad.setEditMode(mode);
    QCOMPARE(enabledKeyLabels(&stage.keypad).join(QLatin1String(" ")), enabled);
}

void tst_NumericKeypad::modesNeverEnable_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("binary, decimal") << 2 << 10 << u(binaryLabels);
    QTest::newRow("binary, hexadecimal") << 2 << 16 << u(binaryLabels);
    QTest::newRow("binary, unknown") << 2 << 8 << u(binaryLabels);
    QTest::newRow("decimal, hexadecimal") << 10 << 16 << u("1 2 3 ESC 4 5 6 BSP 7 8 9 0 ← → Enter");
    QTest::newRow("hexadecimal, decimal") << 16 << 10 << u("1 2 3 ESC 4 5 6 BSP 7 8 9 0 ← → Enter");
}

void tst_NumericKeypad::modesNeverEnable()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(QString, enabled);
    KeypadStage<NumericKeypad> stage;
    stage.open();
    stage.keypad.setEditMode(first);
    stage.keypad.setEditMode(second);
    QCOMPARE(enabledKeyLabels(&stage.keypad).join(QLatin1String(" ")), enabled);
}

void tst_NumericKeypad::theDecimalPointIsSwitchedAlone()
{
    KeypadStage<NumericKeypad> stage;
    stage.open();
    QStringList withoutPoint = labelList(allLabels);
    withoutPoint.removeAll(u("."));
    stage.keypad.setDecimalPointEnabled(false);
    QCOMPARE(enabledKeyLabels(&stage.keypad), withoutPoint);
    stage.keypad.setDecimalPointEnabled(true);
    QCOMPARE(enabledKeyLabels(&stage.keypad), labelList(allLabels));
    stage.keypad.setEditMode(2);
    stage.keypad.setDecimalPointEnabled(true);
    QCOMPARE(enabledKeyLabels(&stage.keypad), labelList("1 ESC BSP 0 . ← → Enter"));
}

void tst_NumericKeypad::insertingKeysTypeTheirLabel_data()
{
    QTest::addColumn<QString>("label");
    const QStringList labels = labelList("0 1 2 3 4 5 6 7 8 9 A B C D E F .");
    for (int i = 0; i < labels.size(); ++i)
        QTest::newRow(qPrintable(labels.at(i))) << labels.at(i);
}

void tst_NumericKeypad::insertingKeysTypeTheirLabel()
{
    QFETCH(QString, label);
    KeypadStage<NumericKeypad> stage;
    stage.open(u("12"));
    CHECKED(tap(&stage.keypad, label)); // replaces the selection
    QCOMPARE(stage.line()->text(), label);
    CHECKED(tap(&stage.keypad, label));
    QCOMPARE(stage.line()->text(), label + label);
    stage.line()->setCursorPosition(1);
    CHECKED(tap(&stage.keypad, u("0")));
    QCOMPARE(stage.line()->text(), label + u("0") + label);
    QCOMPARE(stage.line()->cursorPosition(), 2);
}

void tst_NumericKeypad::aDisabledKeyTypesNothing()
{
    KeypadStage<NumericKeypad> stage;
    stage.open(u("12"));
    stage.keypad.setEditMode(2);
    CHECKED(tapAll(&stage.keypad, u("A 2 3 B 4 5 6 C 7 8 9 +/- D E F .")));
    QCOMPARE(stage.line()->text(), u("12"));
    QCOMPARE(stage.line()->selectedText(), u("12"));
    CHECKED(tap(&stage.keypad, u("1")));
    QCOMPARE(stage.line()->text(), u("1"));
}

void tst_NumericKeypad::editingKeysMoveAndErase_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    // All begin with 123, selected.
    QTest::newRow("left of a selection") << u("←") << u("123") << 2;
    QTest::newRow("left twice") << u("← ←") << u("123") << 1;
    QTest::newRow("left stops at the start") << u("← ← ← ← ←") << u("123") << 0;
    QTest::newRow("right stops at the end") << u("← → → →") << u("123") << 3;
    QTest::newRow("erase a selection") << u("BSP") << u("") << 0;
    QTest::newRow("erase from empty") << u("BSP BSP") << u("") << 0;
    QTest::newRow("erase the last") << u("← → BSP") << u("12") << 2;
    QTest::newRow("erase in the middle") << u("← BSP") << u("13") << 1;
    QTest::newRow("erase at the start") << u("← ← ← BSP") << u("123") << 0;
    QTest::newRow("type in the middle") << u("← 9 .") << u("129.3") << 4;
    QTest::newRow("erase what was typed") << u("← 9 BSP BSP 7") << u("173") << 2;
}

void tst_NumericKeypad::editingKeysMoveAndErase()
{
    QFETCH(QString, keys);
    KeypadStage<NumericKeypad> stage;
    stage.open(u("123"));
    CHECKED(tapAll(&stage.keypad, keys));
    QTEST(stage.line()->text(), "text");
    QTEST(stage.line()->cursorPosition(), "cursor");
    QVERIFY(!stage.line()->hasSelectedText());
}

void tst_NumericKeypad::validatorRefusesWhatItDoesNotAccept()
{
    KeypadStage<NumericKeypad> stage;
    stage.open();
    QIntValidator validator(0, 99, nullptr);
    stage.keypad.setValidator(&validator);
    stage.keypad.setText(u("5"));
    stage.line()->setCursorPosition(1);
    CHECKED(tapAll(&stage.keypad, u("A .")));
    QCOMPARE(stage.line()->text(), u("5"));
    CHECKED(tapAll(&stage.keypad, u("7 8")));
    QCOMPARE(stage.line()->text(), u("57"));
    stage.keypad.setValidator(nullptr);
    CHECKED(tapAll(&stage.keypad, u("8 A")));
    QCOMPARE(stage.line()->text(), u("578A"));
}

void tst_NumericKeypad::onlyTheValidatorStopsASecondPoint()
{
    KeypadStage<NumericKeypad> stage;
    stage.open();
    CHECKED(tapAll(&stage.keypad, u("1 . . 5 .")));
    QCOMPARE(stage.line()->text(), u("1..5."));

    QDoubleValidator validator(nullptr);
    validator.setLocale(QLocale::c());
    stage.keypad.setText(QString());
    stage.keypad.setValidator(&validator);
    CHECKED(tapAll(&stage.keypad, u("1 . . 5 .")));
    QCOMPARE(stage.line()->text(), u("1.5"));
}

void tst_NumericKeypad::maximumLengthEndsTheEntry()
{
    KeypadStage<NumericKeypad> stage;
    stage.open();
    stage.keypad.setMaxLength(3);
    stage.keypad.setText(u("12345"));
    QCOMPARE(stage.line()->text(), u("123"));
    stage.line()->setCursorPosition(3);
    CHECKED(tap(&stage.keypad, u("4")));
    QCOMPARE(stage.line()->text(), u("123"));
    CHECKED(tapAll(&stage.keypad, u("BSP 9 8")));
    QCOMPARE(stage.line()->text(), u("129"));
}

void tst_NumericKeypad::typedValueReachesTheTarget()
{
    PanelView view(1);
    NumericKeypad keypad(&view, Qt::WindowFlags());
    QLineEdit field(u("old"));
    keypad.setObject(&field);
    keypad.setEditMode(10);
    keypad.setText(field.text());
    CHECKED(execWhile(
        &keypad, [&] { CHECKED(tapAll(&keypad, u("1 2 . 5 +/- BSP 7 Enter"))); }, Accepts));
    QCOMPARE(field.text(), u("-12.7"));
}

void tst_NumericKeypad::enterAndEscEndTheEntry()
{
    PanelView view(1);
    NumericKeypad keypad(&view, Qt::WindowFlags());
    QLabel label(u("old"));
    keypad.setObject(&label);
    keypad.setText(u("7"));
    CHECKED(execWhile(
        &keypad, [&] { CHECKED(tapAll(&keypad, u("8 ESC"))); }, Rejects));
    QCOMPARE(label.text(), u("old"));
    CHECKED(execWhile(
        &keypad, [&] { CHECKED(tapAll(&keypad, u("9 Enter"))); }, Accepts));
    QCOMPARE(label.text(), u("89")); // the text waited in the edit line
}

void tst_NumericKeypad::hardKeysTypeIntoTheSameLine()
{
    PanelView view(5);
    NumericKeypad keypad(&view, Qt::WindowFlags());
    QLabel label;
    keypad.setObject(&label);
    keypad.setText(u("7"));
    CHECKED(execWhile(
        &keypad,
        [&] {
            QApplication::setActiveWindow(&keypad); // as the windowing system does
            QVERIFY(keypad.focusWidget() == editLine(&keypad));
            QTest::keyClicks(keypad.focusWidget(), u("42"));
            CHECKED(tap(&keypad, u("+/-")));
            pressHardKey(&keypad, Qt::Key_Return);
        },
        Accepts));
    QCOMPARE(label.text(), u("-42"));
}

void tst_NumericKeypad::aCallWithoutKeyDoesNothing()
{
    KeypadStage<NumericKeypad> stage;
    stage.open(u("12"));
    QVERIFY(QMetaObject::invokeMethod(&stage.keypad, "slot_toolButton_clicked"));
    QVERIFY(stage.keypad.isVisible());
    QCOMPARE(stage.line()->text(), u("12"));
    QCOMPARE(stage.line()->selectedText(), u("12"));
    QCOMPARE(stage.target.text(), QString());
}

QTEST_MAIN(tst_NumericKeypad)

#include "tst_NumericKeypad.moc"
