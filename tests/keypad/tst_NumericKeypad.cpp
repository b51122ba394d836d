// SPDX-License-Identifier: MIT
#include "support/OpenKeypad.h"

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
    OpenKeypad<NumericKeypad> open;
    open.keypad.setEditMode(mode);
    QCOMPARE(enabledKeyLabels(&open.keypad).join(QLatin1String(" ")), enabled);
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
    OpenKeypad<NumericKeypad> open;
    open.keypad.setEditMode(first);
    open.keypad.setEditMode(second);
    QCOMPARE(enabledKeyLabels(&open.keypad).join(QLatin1String(" ")), enabled);
}

void tst_NumericKeypad::theDecimalPointIsSwitchedAlone()
{
    OpenKeypad<NumericKeypad> open;
    QStringList withoutPoint = labelList(allLabels);
    withoutPoint.removeAll(u("."));
    open.keypad.setDecimalPointEnabled(false);
    QCOMPARE(enabledKeyLabels(&open.keypad), withoutPoint);
    open.keypad.setDecimalPointEnabled(true);
    QCOMPARE(enabledKeyLabels(&open.keypad), labelList(allLabels));
    open.keypad.setEditMode(2);
    open.keypad.setDecimalPointEnabled(true);
    QCOMPARE(enabledKeyLabels(&open.keypad), labelList("1 ESC BSP 0 . ← → Enter"));
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
    OpenKeypad<NumericKeypad> open(u("12"));
    tap(&open.keypad, label); // replaces the selection
    QCOMPARE(open.line()->text(), label);
    tap(&open.keypad, label);
    QCOMPARE(open.line()->text(), label + label);
    open.line()->setCursorPosition(1);
    tap(&open.keypad, u("0"));
    QCOMPARE(open.line()->text(), label + u("0") + label);
    QCOMPARE(open.line()->cursorPosition(), 2);
}

void tst_NumericKeypad::aDisabledKeyTypesNothing()
{
    OpenKeypad<NumericKeypad> open(u("12"));
    open.keypad.setEditMode(2);
    tapAll(&open.keypad, u("A 2 3 B 4 5 6 C 7 8 9 +/- D E F ."));
    QCOMPARE(open.line()->text(), u("12"));
    QCOMPARE(open.line()->selectedText(), u("12"));
    tap(&open.keypad, u("1"));
    QCOMPARE(open.line()->text(), u("1"));
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
    OpenKeypad<NumericKeypad> open(u("123"));
    tapAll(&open.keypad, keys);
    QTEST(open.line()->text(), "text");
    QTEST(open.line()->cursorPosition(), "cursor");
    QVERIFY(!open.line()->hasSelectedText());
}

void tst_NumericKeypad::validatorRefusesWhatItDoesNotAccept()
{
    OpenKeypad<NumericKeypad> open;
    QIntValidator validator(0, 99, nullptr);
    open.keypad.setValidator(&validator);
    open.keypad.setText(u("5"));
    open.line()->setCursorPosition(1);
    tapAll(&open.keypad, u("A ."));
    QCOMPARE(open.line()->text(), u("5"));
    tapAll(&open.keypad, u("7 8"));
    QCOMPARE(open.line()->text(), u("57"));
    open.keypad.setValidator(nullptr);
    tapAll(&open.keypad, u("8 A"));
    QCOMPARE(open.line()->text(), u("578A"));
}

void tst_NumericKeypad::onlyTheValidatorStopsASecondPoint()
{
    OpenKeypad<NumericKeypad> open;
    tapAll(&open.keypad, u("1 . . 5 ."));
    QCOMPARE(open.line()->text(), u("1..5."));

    QDoubleValidator validator(nullptr);
    validator.setLocale(QLocale::c());
    open.keypad.setText(QString());
    open.keypad.setValidator(&validator);
    tapAll(&open.keypad, u("1 . . 5 ."));
    QCOMPARE(open.line()->text(), u("1.5"));
}

void tst_NumericKeypad::maximumLengthEndsTheEntry()
{
    OpenKeypad<NumericKeypad> open;
    open.keypad.setMaxLength(3);
    open.keypad.setText(u("12345"));
    QCOMPARE(open.line()->text(), u("123"));
    open.line()->setCursorPosition(3);
    tap(&open.keypad, u("4"));
    QCOMPARE(open.line()->text(), u("123"));
    tapAll(&open.keypad, u("BSP 9 8"));
    QCOMPARE(open.line()->text(), u("129"));
}

void tst_NumericKeypad::typedValueReachesTheTarget()
{
    PanelView view(1);
    NumericKeypad keypad(&view, Qt::WindowFlags());
    QLineEdit field(u("old"));
    keypad.setObject(&field);
    keypad.setEditMode(10);
    keypad.setText(field.text());
    const int result = execWhile(&keypad, [&] { tapAll(&keypad, u("1 2 . 5 +/- BSP 7 Enter")); });
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(field.text(), u("-12.7"));
}

void tst_NumericKeypad::enterAndEscEndTheEntry()
{
    PanelView view(1);
    NumericKeypad keypad(&view, Qt::WindowFlags());
    QLabel label(u("old"));
    keypad.setObject(&label);
    keypad.setText(u("7"));
    QCOMPARE(execWhile(&keypad, [&] { tapAll(&keypad, u("8 ESC")); }), int(QDialog::Rejected));
    QCOMPARE(label.text(), u("old"));
    QCOMPARE(execWhile(&keypad, [&] { tapAll(&keypad, u("9 Enter")); }), int(QDialog::Accepted));
    QCOMPARE(label.text(), u("89")); // the text waited in the edit line
}

void tst_NumericKeypad::hardKeysTypeIntoTheSameLine()
{
    PanelView view(5);
    NumericKeypad keypad(&view, Qt::WindowFlags());
    QLabel label;
    keypad.setObject(&label);
    keypad.setText(u("7"));
    const int result = execWhile(&keypad, [&] {
        QApplication::setActiveWindow(&keypad); // as the windowing system does
        QVERIFY(keypad.focusWidget() == editLine(&keypad));
        QTest::keyClicks(keypad.focusWidget(), u("42"));
        tap(&keypad, u("+/-"));
        pressHardKey(&keypad, Qt::Key_Return);
    });
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(label.text(), u("-42"));
}

void tst_NumericKeypad::aCallWithoutKeyDoesNothing()
{
    OpenKeypad<NumericKeypad> open(u("12"));
    QVERIFY(QMetaObject::invokeMethod(&open.keypad, "slot_toolButton_clicked"));
    QVERIFY(open.keypad.isVisible());
    QCOMPARE(open.line()->text(), u("12"));
    QCOMPARE(open.line()->selectedText(), u("12"));
    QCOMPARE(open.target.text(), QString());
}

QTEST_MAIN(tst_NumericKeypad)

#include "tst_NumericKeypad.moc"
