// SPDX-License-Identifier: MIT
#include "DateTimeStage.h"

#include <QDate>

// What the date-time keypad composes of its fields, by its format, and what "Ok" writes.

namespace {

struct ClampRow
{
    const char *name, *before;
    int number;
    const char *taps, *after;
};

const ClampRow clampRows[] = {
    { "January 31 to April", "2024-01-31", Month, "4", "2024-04-30" },
    { "January 31 to February", "2023-01-31", Month, "2", "2023-02-28" },
    { "January 31 to leap February", "2024-01-31", Month, "2", "2024-02-29" },
    { "April 30 to May", "2024-04-30", Month, "5", "2024-05-30" },
    { "one month back from March 31", "2024-03-31", Month, "-", "2024-02-29" },
    { "leap day to 2023", "2024-02-29", Year, "2 0 2 3", "2023-02-28" },
    { "leap day to 1900", "2000-02-29", Year, "1 9 0 0", "1900-02-28" },
    { "leap day to 2000", "2024-02-29", Year, "2 0 0 0", "2000-02-29" },
};

// An application that answers a change of the display by setting a field.
class FieldSetter : public QObject
{
    Q_OBJECT

public:
    enum Moment { WhenCleared, WhenShown };

    FieldSetter(DateTimeStage *stage, int number, int value, Moment moment)
        : m_field(stage->field(number))
        , m_value(value)
        , m_moment(moment)
        , m_calls(0)
    {
        connect(stage->line(), SIGNAL(textChanged(QString)), SLOT(onTextChanged(QString)));
    }

    int calls() const { return m_calls; }

public Q_SLOTS:
    void onTextChanged(const QString &text)
    {
        if (text.isEmpty() != (m_moment == WhenCleared))
            return;
        ++m_calls;
        m_field->setValue(m_value);
    }

private:
    QSpinBox *m_field;
    int m_value;
    Moment m_moment;
    int m_calls;
};

QString enabledFields(DateTimeStage *stage)
{
    QStringList names;
    for (int i = 0; i < FieldCount; ++i) {
        if (stage->field(i)->isEnabled())
            names << u(fieldRows[i].name);
    }
    return names.join(u(" "));
}

} // namespace

class tst_DateTimeDisplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void lengthChoosesTheFormat_data();
    void lengthChoosesTheFormat();
    void bindingKeepsFormatAndEnabling_data();
    void bindingKeepsFormatAndEnabling();
    void dayRangeOfEveryMonth_data();
    void dayRangeOfEveryMonth();
    void dayIsClampedToTheMonth_data();
    void dayIsClampedToTheMonth();
    void hour24ComposesNoTime_data();
    void hour24ComposesNoTime();
    void agreesWithFieldsThatTheApplicationSets_data();
    void agreesWithFieldsThatTheApplicationSets();
    void okWritesTheDisplay_data();
    void okWritesTheDisplay();
};

void tst_DateTimeDisplay::startsEmpty()
{
    DateTimeStage stage;
    QCOMPARE(stage.display(), QString());
    stage.keypad.show();
    QCOMPARE(stage.display(), QString());
    stage.field(Second)->setValue(1);
    QCOMPARE(stage.display(), u("1600-01-01 00:00:01"));
}

void tst_DateTimeDisplay::lengthChoosesTheFormat_data()
{
    QTest::addColumn<QString>("lengths");
    QTest::addColumn<QString>("enabled");
    QTest::addColumn<QString>("shown");

    const QString date = u("year month day");
    const QString time = u("hour minute second");
    const QString all = date + u(" ") + time;
    QTest::newRow("none") << QString() << all << u(shownTime);
    QTest::newRow("10") << u("10") << date << u("2024-05-17");
    QTest::newRow("8") << u("8") << time << u("08:09:10");
    QTest::newRow("19") << u("19") << all << u(shownTime);
    QTest::newRow("9") << u("9") << all << u("2024-05-1");
    QTest::newRow("0") << u("0") << all << QString();
    QTest::newRow("10, then 8") << u("10 8") << time << u("08:09:10");
    QTest::newRow("8, then 10") << u("8 10") << date << u("2024-05-17");
    QTest::newRow("10, then 19") << u("10 19") << date << u(shownTime);
    QTest::newRow("8, then 19") << u("8 19") << time << u(shownTime);
}

void tst_DateTimeDisplay::lengthChoosesTheFormat()
{
    QFETCH(QString, lengths);
    DateTimeStage stage;
    const QStringList list = lengths.split(QLatin1Char(' '));
    for (const QString &length : list) {
        if (!length.isEmpty())
            stage.keypad.setMaxLength(length.toInt());
    }
    stage.keypad.setText(u(shownTime));
    QTEST(enabledFields(&stage), "enabled");
    QTEST(stage.display(), "shown");
    QCOMPARE(stage.values(), u(valuesOfShownTime));
}

void tst_DateTimeDisplay::bindingKeepsFormatAndEnabling_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("enabled");
    QTest::addColumn<QString>("shown");
    QTest::newRow("date") << int(DateLength) << u("year month day") << u("2024-05-17");
    QTest::newRow("time") << int(TimeLength) << u("hour minute second") << u("08:09:10");
}

void tst_DateTimeDisplay::bindingKeepsFormatAndEnabling()
{
    QFETCH(int, length);
    DateTimeStage stage;
    QLabel other;
    stage.keypad.setMaxLength(length);
    key(&stage.keypad, u("7"))->setEnabled(false);
    stage.keypad.setObject(&other);
    QVERIFY(!key(&stage.keypad, u("7"))->isEnabled());
    QTEST(enabledFields(&stage), "enabled");
    stage.keypad.setText(u(shownTime));
    QTEST(stage.display(), "shown");
    stage.keypad.setObject(&stage.target);
    stage.field(Year)->setValue(2023);
    stage.field(Year)->setValue(2024);
    QTEST(stage.display(), "shown");
}

void tst_DateTimeDisplay::dayRangeOfEveryMonth_data()
{
    QTest::addColumn<int>("year");
    QTest::newRow("1900, no leap year") << 1900;
    QTest::newRow("2000, a leap year") << 2000;
    QTest::newRow("2023, no leap year") << 2023;
    QTest::newRow("2024, a leap year") << 2024;
}

void tst_DateTimeDisplay::dayRangeOfEveryMonth()
{
    QFETCH(int, year);
    DateTimeStage asked;
    DateTimeStage worked;
    for (int month = 12; month >= 1; --month) {
        const int days = QDate(year, month, 1).daysInMonth();
        asked.keypad.setSpinBoxDayRange(year, month);
        QCOMPARE(asked.field(Day)->minimum(), 1);
        QCOMPARE(asked.field(Day)->maximum(), days);

        worked.field(Year)->setValue(year);
        worked.field(Month)->setValue(month);
        QCOMPARE(worked.field(Day)->minimum(), 1);
        QCOMPARE(worked.field(Day)->maximum(), days);
    }
}

void tst_DateTimeDisplay::dayIsClampedToTheMonth_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("after");
    for (const ClampRow &row : clampRows)
        QTest::newRow(row.name) << u(row.before) << row.number << u(row.taps) << u(row.after);
}

void tst_DateTimeDisplay::dayIsClampedToTheMonth()
{
    QFETCH(QString, before);
    QFETCH(int, number);
    QFETCH(QString, taps);
    DateTimeStage stage;
    stage.keypad.setMaxLength(DateLength);
    stage.keypad.setText(before);
    CHECKED(stage.focus(number));
    CHECKED(tapAll(&stage.keypad, taps));
    QTEST(stage.display(), "after");
    QCOMPARE(stage.field(Day)->value(), stage.display().right(2).toInt());
}

void tst_DateTimeDisplay::hour24ComposesNoTime_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("shown");
    QTest::newRow("time") << int(TimeLength) << QString();
    QTest::newRow("date") << int(DateLength) << u("2024-05-17");
    QTest::newRow("date and time") << int(DateTimeLength) << u("2024-05-17 00:00:00");
}

void tst_DateTimeDisplay::hour24ComposesNoTime()
{
    QFETCH(int, length);
    DateTimeStage stage;
    stage.target.setText(u("old"));
    stage.keypad.setMaxLength(length);
    stage.keypad.setText(u(shownTime));
    stage.field(Hour)->setValue(24);
    QCOMPARE(stage.field(Hour)->value(), 24);
    QTEST(stage.display(), "shown");
    CHECKED(tap(&stage.keypad, u("Ok")));
    QTEST(stage.target.text(), "shown");
}

void tst_DateTimeDisplay::agreesWithFieldsThatTheApplicationSets_data()
{
    QTest::addColumn<int>("moment");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("value");
    const int moments[] = { FieldSetter::WhenCleared, FieldSetter::WhenShown };
    for (int moment : moments) {
        const char *const name = moment == FieldSetter::WhenShown ? "shown" : "cleared";
        QTest::newRow(qPrintable(u("another field, when ") + u(name))) << moment << int(Hour) << 23;
        QTest::newRow(qPrintable(u("the same field, when ") + u(name)))
            << moment << int(Month) << 2;
        QTest::newRow(qPrintable(u("the day, when ") + u(name))) << moment << int(Day) << 31;
    }
}

void tst_DateTimeDisplay::agreesWithFieldsThatTheApplicationSets()
{
    QFETCH(int, moment);
    QFETCH(int, number);
    QFETCH(int, value);
    DateTimeStage stage;
    stage.keypad.setText(u(shownTime));
    const FieldSetter setter(&stage, number, value, FieldSetter::Moment(moment));
    stage.field(Month)->setValue(4);
    QVERIFY(setter.calls() > 0);
    QCOMPARE(stage.field(number)->value(), number == Day ? 30 : value);
    const QVector<int> now = stage.numbers();
    QCOMPARE(stage.display(),
             dateText(now.at(Year), now.at(Month), now.at(Day)) + u(" ")
                 + timeText(now.at(Hour), now.at(Minute), now.at(Second)));
}

void tst_DateTimeDisplay::okWritesTheDisplay_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    QTest::newRow("date") << int(DateLength) << u("2024-05-17") << u("2024-05-17");
    QTest::newRow("time") << int(TimeLength) << u("08:09:10") << u("08:09:10");
    QTest::newRow("date and time") << int(DateTimeLength) << u(shownTime) << u(shownTime);
    QTest::newRow("date of a longer text") << int(DateLength) << u(shownTime) << u("2024-05-17");
    QTest::newRow("unparsable") << int(DateLength) << u("no date") << u("no date");
    QTest::newRow("empty") << int(DateLength) << QString() << QString();
}

void tst_DateTimeDisplay::okWritesTheDisplay()
{
    QFETCH(int, length);
    QFETCH(QString, text);
    DateTimeStage stage;
    stage.target.setText(u("old"));
    QSignalSpy changes(&stage.target, SIGNAL(textChanged(QString)));
    stage.keypad.setMaxLength(length);
    stage.keypad.setText(text);
    QCOMPARE(stage.target.text(), u("old"));
    CHECKED(execWhile(
        &stage.keypad, [&] { CHECKED(tap(&stage.keypad, u("Ok"))); }, Accepts));
    QTEST(stage.target.text(), "written");
    QCOMPARE(int(changes.count()), 1);
}

QTEST_MAIN(tst_DateTimeDisplay)

#include "tst_DateTimeDisplay.moc"
