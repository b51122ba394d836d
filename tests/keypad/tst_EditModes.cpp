// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"

#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

// Which keys an edit mode and the decimal point's switch disable: those of the numeric keypad, and
// of no other that has the same calls.

namespace {

const char allLabels[] = "A 1 2 3 ESC B 4 5 6 BSP C 7 8 9 +/- D E F 0 . ← → Enter";
const char binaryLabels[] = "1 ESC BSP 0 ← → Enter";
const char decimalLabels[] = "1 2 3 ESC 4 5 6 BSP 7 8 9 +/- 0 . ← → Enter";
const char hexadecimalLabels[] = "A 1 2 3 ESC B 4 5 6 BSP C 7 8 9 D E F 0 ← → Enter";
const char digitLabels[] = "1 2 3 ESC 4 5 6 BSP 7 8 9 0 ← → Enter";

QString enabledLine(const QWidget *keypad)
{
    return enabledKeyLabels(keypad).join(u(" "));
}

// Asserts it.
template <class Keypad>
void ignoreEveryMode()
{
    Keypad keypad(nullptr, Qt::WindowFlags());
    const QStringList all = keyLabels(&keypad);
    const int modes[] = { 2, 10, 16, 0, -1 };
    for (int mode : modes)
        keypad.setEditMode(mode);
    keypad.setDecimalPointEnabled(false);
    QCOMPARE(enabledKeyLabels(&keypad), all);
    key(&keypad, u("."))->setEnabled(false);
    keypad.setDecimalPointEnabled(true);
    QVERIFY(!key(&keypad, u("."))->isEnabled());
}

} // namespace

class tst_EditModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewKeypadIsDecimal();
    void bindingUndoesEveryMode();
    void modesDisableWhatTheBaseLacks_data();
    void modesDisableWhatTheBaseLacks();
    void modesNeverEnable_data();
    void modesNeverEnable();
    void theDecimalPointIsSwitchedAlone();
    void keysWithOtherLabelsAreSwitchedAsBefore_data();
    void keysWithOtherLabelsAreSwitchedAsBefore();
    void aDisabledKeyTypesNothing();
    void otherKeypadsIgnoreModes();
};

void tst_EditModes::aNewKeypadIsDecimal()
{
    NumericKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(enabledLine(&keypad), u(decimalLabels));
}

void tst_EditModes::bindingUndoesEveryMode()
{
    KeypadStage<NumericKeypad> stage;
    const int modes[] = { 0, 2, 10, 16 };
    for (int mode : modes) {
        stage.keypad.setEditMode(mode);
        stage.keypad.setDecimalPointEnabled(false);
        stage.keypad.setObject(&stage.target);
        QCOMPARE(enabledLine(&stage.keypad), u(allLabels));
    }
}

void tst_EditModes::modesDisableWhatTheBaseLacks_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("binary") << 2 << u(binaryLabels);
    QTest::newRow("decimal") << 10 << u(decimalLabels);
    QTest::newRow("hexadecimal") << 16 << u(hexadecimalLabels);
    const int unknown[] = { 8, 0, 1, -2, 3, 11, 15, 17, 32, 2147483647 };
    for (int mode : unknown) {
        QTest::newRow(qPrintable(QString::fromLatin1("unknown %1").arg(mode)))
            << mode << u(allLabels);
    }
}

void tst_EditModes::modesDisableWhatTheBaseLacks()
{
    QFETCH(int, mode);
    KeypadStage<NumericKeypad> stage;
    stage.keypad.setEditMode(mode);
    QTEST(enabledLine(&stage.keypad), "enabled");
}

void tst_EditModes::modesNeverEnable_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("binary, decimal") << 2 << 10 << u(binaryLabels);
    QTest::newRow("binary, hexadecimal") << 2 << 16 << u(binaryLabels);
    QTest::newRow("binary, unknown") << 2 << 8 << u(binaryLabels);
    QTest::newRow("decimal, hexadecimal") << 10 << 16 << u(digitLabels);
    QTest::newRow("hexadecimal, decimal") << 16 << 10 << u(digitLabels);
}

void tst_EditModes::modesNeverEnable()
{
    QFETCH(int, first);
    QFETCH(int, second);
    KeypadStage<NumericKeypad> stage;
    stage.keypad.setEditMode(first);
    stage.keypad.setEditMode(second);
    QTEST(enabledLine(&stage.keypad), "enabled");
}

void tst_EditModes::theDecimalPointIsSwitchedAlone()
{
    KeypadStage<NumericKeypad> stage;
    QStringList withoutPoint = labelList(allLabels);
    withoutPoint.removeAll(u("."));
    stage.keypad.setDecimalPointEnabled(false);
    QCOMPARE(enabledKeyLabels(&stage.keypad), withoutPoint);
    stage.keypad.setDecimalPointEnabled(true);
    QCOMPARE(enabledLine(&stage.keypad), u(allLabels));
    stage.keypad.setEditMode(2);
    stage.keypad.setDecimalPointEnabled(true);
    QCOMPARE(enabledLine(&stage.keypad), u("1 ESC BSP 0 . ← → Enter"));
}

void tst_EditModes::keysWithOtherLabelsAreSwitchedAsBefore_data()
{
    QTest::addColumn<int>("mode"); // 0: the decimal point alone
    QTest::addColumn<QString>("enabled");
    QTest::newRow("no decimal point") << 0 << u("A 1 2 3 ESC B 4 5 6 BSP C 7 8 9 ± D E F 0 ← → OK");
    QTest::newRow("binary") << 2 << u("1 ESC BSP 0 ← → OK");
    QTest::newRow("decimal") << 10 << u("1 2 3 ESC 4 5 6 BSP 7 8 9 ± 0 , ← → OK");
    QTest::newRow("hexadecimal") << 16 << u("A 1 2 3 ESC B 4 5 6 BSP C 7 8 9 D E F 0 ← → OK");
}

void tst_EditModes::keysWithOtherLabelsAreSwitchedAsBefore()
{
    QFETCH(int, mode);
    KeypadStage<NumericKeypad> stage;
    key(&stage.keypad, u("."))->setText(u(","));
    key(&stage.keypad, u("+/-"))->setText(u("±"));
    key(&stage.keypad, u("Enter"))->setText(u("OK"));
    if (mode == 0)
        stage.keypad.setDecimalPointEnabled(false);
    else
        stage.keypad.setEditMode(mode);
    QTEST(enabledLine(&stage.keypad), "enabled");

    stage.keypad.setDecimalPointEnabled(true);
    stage.open();
    CHECKED(tapAll(&stage.keypad, u("1 , 0 OK")));
    QCOMPARE(stage.target.text(), u("1,0"));
}

void tst_EditModes::aDisabledKeyTypesNothing()
{
    KeypadStage<NumericKeypad> stage;
    stage.open(u("12"));
    stage.keypad.setEditMode(2);
    CHECKED(tapAll(&stage.keypad, u("A 2 3 B 4 5 6 C 7 8 9 +/- D E F .")));
    QCOMPARE(stage.line()->selectedText(), u("12"));
    CHECKED(tap(&stage.keypad, u("1")));
    QCOMPARE(stage.line()->text(), u("1"));
}

void tst_EditModes::otherKeypadsIgnoreModes()
{
    CHECKED(ignoreEveryMode<GCodeKeypad>());
    CHECKED(ignoreEveryMode<vondKeypad>());
}

QTEST_MAIN(tst_EditModes)

#include "tst_EditModes.moc"
