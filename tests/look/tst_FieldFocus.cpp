// SPDX-License-Identifier: MIT
#include "support/KeypadStage.h"

#include <HMIDevice/DateTimeKeypad.h>

#include <QSpinBox>

// Whatever a date-time keypad was used for, at its next use an enabled field has the focus: "+"
// works at once.

namespace {

enum Field { Year, Month, Day, Hour, Minute, Second };
enum Format { Date = 10, Time = 8, DateAndTime = 19 };

const char *textFor(int format)
{
    switch (format) {
    case Date:
        return "2024-05-17";
    case Time:
        return "08:09:10";
    default:
        return "2024-05-17 08:09:10";
    }
}

class FocusStage : public KeypadStage<DateTimeKeypad>
{
public:
    QSpinBox *field(int number) { return keypad.findChildren<QSpinBox *>().at(number); }

    void openFor(int format)
    {
        if (format == DateAndTime) {
            for (int i = Year; i <= Second; ++i)
                field(i)->setEnabled(true); // as an application does
        }
        keypad.setObject(&target);
        keypad.setMaxLength(format);
        open(u(textFor(format)));
        activate();
        QApplication::processEvents();
    }
};

} // namespace

class tst_FieldFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstUse_data();
    void theFirstUse();
    void theSecondUse_data();
    void theSecondUse();
    void afterAKeyHadTheFocus();

private:
    void plusStepsTheField(FocusStage &stage, int expected);
};

void tst_FieldFocus::theFirstUse_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("expected");
    QTest::newRow("date") << int(Date) << int(Year);
    QTest::newRow("time") << int(Time) << int(Hour);
    QTest::newRow("date and time") << int(DateAndTime) << int(Year);
}

void tst_FieldFocus::theFirstUse()
{
    QFETCH(int, format);
    QFETCH(int, expected);
    FocusStage stage;
    stage.openFor(format);
    CHECKED(plusStepsTheField(stage, expected));
}

void tst_FieldFocus::theSecondUse_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("left"); // the field that has the focus at the end of the first use
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("expected");
    QTest::newRow("time after date") << int(Date) << int(Year) << int(Time) << int(Hour);
    QTest::newRow("time after the day") << int(Date) << int(Day) << int(Time) << int(Hour);
    QTest::newRow("date after time") << int(Time) << int(Hour) << int(Date) << int(Year);
    QTest::newRow("date after the second") << int(Time) << int(Second) << int(Date) << int(Year);
    QTest::newRow("date after both") << int(DateAndTime) << int(Minute) << int(Date) << int(Year);
    QTest::newRow("time after both") << int(DateAndTime) << int(Month) << int(Time) << int(Hour);
    QTest::newRow("both after the second")
        << int(Time) << int(Second) << int(DateAndTime) << int(Second);
    QTest::newRow("date after the month") << int(Date) << int(Month) << int(Date) << int(Month);
}

void tst_FieldFocus::theSecondUse()
{
    QFETCH(int, first);
    QFETCH(int, left);
    QFETCH(int, second);
    QFETCH(int, expected);
    FocusStage stage;
    stage.openFor(first);
    stage.field(left)->setFocus();
    QVERIFY(stage.field(left)->hasFocus());
    tap(stage.dialog(), u("Cancel"));
    stage.openFor(second);
    CHECKED(plusStepsTheField(stage, expected));
}

void tst_FieldFocus::afterAKeyHadTheFocus()
{
    FocusStage stage;
    stage.openFor(Date);
    key(stage.dialog(), u("Ok"))->setFocus();
    QVERIFY(key(stage.dialog(), u("Ok"))->hasFocus());
    tap(stage.dialog(), u("Cancel"));
    stage.openFor(Date);
    CHECKED(plusStepsTheField(stage, Year));
}

void tst_FieldFocus::plusStepsTheField(FocusStage &stage, int expected)
{
    QVERIFY(stage.keypad.focusSpinBox() == stage.field(expected));
    const int value = stage.field(expected)->value();
    tap(stage.dialog(), u("+"));
    QCOMPARE(stage.field(expected)->value(), value + 1);
}

QTEST_MAIN(tst_FieldFocus)

#include "tst_FieldFocus.moc"
