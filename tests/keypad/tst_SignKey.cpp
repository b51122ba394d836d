// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"

#include <QIntValidator>

// The sign key of the numeric and of the axis keypad: every test runs for both.

namespace {

// Asserts that there is a sign key.
void tapSign(AnyStage *stage)
{
    CHECKED(tap(stage->dialog(), u(currentKind().signLabel)));
}

} // namespace

class tst_SignKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void theLeadingMinusComesAndGoes_data();
    void theLeadingMinusComesAndGoes();
    void twiceGivesTheSameTextAndCursor();
    void aToggledValueIsStillReplacedByTheNextDigit();
    void aPartSelectedBecomesAllSelected();
    void theValidatorIsPassedBy();
    void theMaximumLengthCutsTheEnd();
};

void tst_SignKey::initTestCase_data()
{
    addKeypadRows(TogglesSign);
}

void tst_SignKey::theLeadingMinusComesAndGoes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor"); // -1: everything selected
    QTest::addColumn<QString>("newText");
    QTest::addColumn<int>("newCursor");

    QTest::newRow("plain, cursor at the end") << u("12") << 2 << u("-12") << 3;
    QTest::newRow("negative, cursor at the end") << u("-12") << 3 << u("12") << 2;
    QTest::newRow("a fraction, cursor at the end") << u("12.5") << 4 << u("-12.5") << 5;
    QTest::newRow("negative fraction, cursor at the end") << u("-12.5") << 5 << u("12.5") << 4;
    QTest::newRow("plain, cursor at the start") << u("12") << 0 << u("-12") << 1;
    QTest::newRow("plain, cursor inside") << u("12.5") << 2 << u("-12.5") << 3;
    QTest::newRow("negative, cursor inside") << u("-12.5") << 3 << u("12.5") << 2;
    QTest::newRow("negative, cursor behind the sign") << u("-12") << 1 << u("12") << 0;
    QTest::newRow("negative, cursor before the sign") << u("-12") << 0 << u("12") << 0;
    QTest::newRow("minus signs everywhere") << u("-1-2") << 4 << u("12") << 2;
    QTest::newRow("minus signs everywhere, cursor inside") << u("-X-5") << 2 << u("X5") << 1;
    QTest::newRow("only minus signs") << u("---") << 3 << u("") << 0;
    QTest::newRow("a minus sign further on") << u("X-5") << 3 << u("-X-5") << 4;
    QTest::newRow("a space in front") << u(" -5") << 3 << u("- -5") << 4;
    QTest::newRow("other dash") << u("–1") << 2 << u("-–1") << 3;
    QTest::newRow("empty") << u("") << 0 << u("-") << 1;
    QTest::newRow("lone minus sign") << u("-") << 1 << u("") << 0;
    QTest::newRow("plain, selected") << u("3.5") << -1 << u("-3.5") << -1;
    QTest::newRow("negative, selected") << u("-3.5") << -1 << u("3.5") << -1;
    QTest::newRow("minus signs everywhere, selected") << u("-X-5") << -1 << u("X5") << -1;
}

void tst_SignKey::theLeadingMinusComesAndGoes()
{
    QFETCH(QString, text);
    QFETCH(int, cursor);
    QFETCH(QString, newText);
    QFETCH(int, newCursor);
    AnyStage stage;
    stage.open(text);
    if (cursor >= 0)
        stage.line()->setCursorPosition(cursor);

    CHECKED(tapSign(&stage));

    QCOMPARE(stage.line()->text(), newText);
    if (newCursor >= 0) {
        QCOMPARE(stage.line()->cursorPosition(), newCursor);
        QVERIFY(!stage.line()->hasSelectedText());
    } else {
        QCOMPARE(stage.line()->selectedText(), newText);
    }
}

void tst_SignKey::twiceGivesTheSameTextAndCursor()
{
    AnyStage stage;
    stage.open(u("12.5"));
    for (int cursor = 0; cursor <= 4; ++cursor) {
        stage.line()->setCursorPosition(cursor);
        CHECKED(tapSign(&stage));
        CHECKED(tapSign(&stage));
        QCOMPARE(stage.line()->text(), u("12.5"));
        QCOMPARE(stage.line()->cursorPosition(), cursor);
    }
}

void tst_SignKey::aToggledValueIsStillReplacedByTheNextDigit()
{
    AnyStage stage;
    stage.open(u("3.5"));
    CHECKED(tapSign(&stage));
    QCOMPARE(stage.line()->selectedText(), u("-3.5"));
    CHECKED(tap(stage.dialog(), u("7")));
    QCOMPARE(stage.line()->text(), u("7"));
}

void tst_SignKey::aPartSelectedBecomesAllSelected()
{
    AnyStage stage;
    stage.open(u("123"));
    stage.line()->setSelection(1, 1);
    CHECKED(tapSign(&stage));
    QCOMPARE(stage.line()->selectedText(), u("-123"));
}

void tst_SignKey::theValidatorIsPassedBy()
{
    AnyStage stage;
    stage.open(u("5"));
    QIntValidator validator(0, 99, nullptr);
    stage.line()->setValidator(&validator);
    CHECKED(tapSign(&stage));
    QCOMPARE(stage.line()->text(), u("-5"));
    QVERIFY(!stage.line()->hasAcceptableInput());
}

void tst_SignKey::theMaximumLengthCutsTheEnd()
{
    AnyStage stage;
    stage.open(u("X12"));
    stage.line()->setMaxLength(3);
    stage.line()->setCursorPosition(3);
    CHECKED(tapSign(&stage));
    QCOMPARE(stage.line()->text(), u("-X1"));
    QCOMPARE(stage.line()->cursorPosition(), 3);
}

QTEST_MAIN(tst_SignKey)
#include "tst_SignKey.moc"
