// SPDX-License-Identifier: MIT
#include "DateTimeStage.h"
#include "support/QtDifferences.h"

#include <QDate>

#include <random>

// How the date-time keypad reads a text into its fields.

namespace {

struct TextRow
{
    const char *name, *before; // without a text before, the keypad is fresh
    int length;
    const char *text, *filled, *shown;
};

const TextRow textRows[] = {
    { "date", "", 10, "2024-05-17", "2024 5 17 0 0 0", "2024-05-17" },
    { "time", "", 8, "08:09:10", "1900 1 1 8 9 10", "08:09:10" },
    { "date and time", "", 19, shownTime, valuesOfShownTime, shownTime },
    { "without a format", "", 0, shownTime, valuesOfShownTime, shownTime },
    { "leap day", "", 10, "2024-02-29", "2024 2 29 0 0 0", "2024-02-29" },
    { "end of 7999", "", 19, "7999-12-31 23:59:59", "7999 12 31 23 59 59", "7999-12-31 23:59:59" },
    { "start of 8000", "", 19, "8000-01-01 00:00:00", "8000 1 1 0 0 0", "8000-01-01 00:00:00" },
    { "last second", "", 19, "9999-12-31 23:59:59", "9999 12 31 23 59 59", "9999-12-31 23:59:59" },

    { "time where a date is shown", "", 10, "12:34:56", "1900 1 1 12 34 56", "1900-01-01" },
    { "date where a time is shown", "", 8, "2024-05-17", "2024 5 17 0 0 0", "00:00:00" },
    { "date where both are shown", "", 0, "2024-05-17", "2024 5 17 0 0 0", "2024-05-17 00:00:00" },
    { "time where both are shown", "", 0, "12:34:56", "1900 1 1 12 34 56", "1900-01-01 12:34:56" },
    { "both where a date is shown", "", 10, shownTime, valuesOfShownTime, "2024-05-17" },
    { "both where a time is shown", "", 8, shownTime, valuesOfShownTime, "08:09:10" },

    { "earliest date", "", 10, "1600-01-01", "1600 1 1 0 0 0", "1600-01-01" },
    { "earliest date where both are shown", "", 0, "1600-01-01", "1600 1 1 0 0 0", "1600-01-01" },
    { "day 29 of the first month, fresh", "", 10, "1600-01-29", "1600 1 28 0 0 0", "1600-01-28" },
    { "day 31 of the first month, fresh", "", 10, "1600-01-31", "1600 1 28 0 0 0", "1600-01-28" },
    { "day 31 and a time, fresh", "", 0, "1600-01-31 01:02:03", "1600 1 28 1 2 3",
      "1600-01-28 01:02:03" },
    { "day 31 of the first month, used", shownTime, 10, "1600-01-31", "1600 1 31 0 0 0",
      "1600-01-31" },
    { "day 31 after February", "2023-02-28", 10, "2024-01-31", "2024 1 31 0 0 0", "2024-01-31" },
    { "leap day after a year without", "2023-02-28", 10, "2024-02-29", "2024 2 29 0 0 0",
      "2024-02-29" },
    { "February after day 31", "2024-01-31", 10, "2023-02-28", "2023 2 28 0 0 0", "2023-02-28" },
    { "year before 1600, fresh", "", 10, "1582-10-15", "1600 10 15 0 0 0", "1600-10-15" },
    { "year before 1600, used", shownTime, 10, "1582-10-15", "1600 10 15 0 0 0", "1600-10-15" },

    { "no such day, fresh", "", 10, "2024-02-30", "1600 1 1 0 0 0", "2024-02-30" },
    { "no such day, used", shownTime, 10, "2024-02-30", "1600 1 1 0 0 0", "1600-01-01" },
    { "no such day, with a time", shownTime, 0, "2024-02-30 01:02:03", "1600 1 1 0 0 0",
      "1600-01-01 00:00:00" },
    { "no such month", shownTime, 10, "2024-13-01", "1600 1 1 0 0 0", "1600-01-01" },
    { "no such hour, fresh", "", 8, "24:00:00", "1600 1 1 0 0 0", "24:00:00" },
    { "no such hour, used", shownTime, 8, "24:00:00", "1600 1 1 0 0 0", "00:00:00" },
    { "no such hour, with a date", shownTime, 0, "2024-05-17 24:00:00", "1600 1 1 0 0 0",
      "1600-01-01 00:00:00" },
    { "no such minute", shownTime, 8, "08:60:00", "1600 1 1 0 0 0", "00:00:00" },
    { "unparsable, fresh", "", 0, "no time", "1600 1 1 0 0 0", "no time" },
    { "unparsable, used", shownTime, 0, "no time", "1600 1 1 0 0 0", "1600-01-01 00:00:00" },
    { "ten letters", shownTime, 10, "2024-May-1", "1600 1 1 0 0 0", "1600-01-01" },
    { "eight letters", shownTime, 8, "8 o'clock", "1600 1 1 0 0 0", "00:00:00" },
    { "empty, fresh", "", 0, "", "1600 1 1 0 0 0", "" },
    { "empty, used", shownTime, 0, "", "1600 1 1 0 0 0", "1600-01-01 00:00:00" },
    { "T between date and time", shownTime, 0, "2024-05-17T08:09:10", "1600 1 1 0 0 0",
      "1600-01-01 00:00:00" },
    { "without seconds", shownTime, 0, "2024-05-17 08:09", "1600 1 1 0 0 0",
      "1600-01-01 00:00:00" },
    { "with a trailing blank", shownTime, 0, "2024-05-17 08:09:10 ", "1600 1 1 0 0 0",
      "1600-01-01 00:00:00" },
    { "the same text again", shownTime, 0, shownTime, valuesOfShownTime, shownTime },
    { "unparsable twice", "no time", 0, "nothing", "1600 1 1 0 0 0", "nothing" },
};

// The same sequence of values on every machine.
class RandomText
{
public:
    explicit RandomText(unsigned seed)
        : m_engine(seed)
    {
    }

    QString next(int length)
    {
        if (length == DateLength)
            return date();
        if (length == TimeLength)
            return time();
        const QString day = date();
        return day + u(" ") + time();
    }

private:
    int between(int first, int last)
    {
        return first + int(m_engine() % unsigned(last - first + 1));
    }

    QString date()
    {
        const int year = between(1600, QtDifferences::lastYearRead());
        const int month = between(1, 12);
        return dateText(year, month, between(1, QDate(year, month, 1).daysInMonth()));
    }

    QString time()
    {
        const int hour = between(0, 23);
        const int minute = between(0, 59);
        return timeText(hour, minute, between(0, 59));
    }

    std::mt19937 m_engine;
};

} // namespace

class tst_DateTimeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setTextFillsTheFields_data();
    void setTextFillsTheFields();
    void daysOfJanuary1600OnAFreshKeypad();
    void randomValuesSurviveToOk_data();
    void randomValuesSurviveToOk();
};

void tst_DateTimeText::setTextFillsTheFields_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("filled");
    QTest::addColumn<QString>("shown");
    for (const TextRow &row : textRows) {
        QTest::newRow(row.name) << u(row.before) << row.length << u(row.text) << u(row.filled)
                                << u(row.shown);
    }
}

void tst_DateTimeText::setTextFillsTheFields()
{
    QFETCH(QString, before);
    QFETCH(int, length);
    QFETCH(QString, text);
    if (text.left(4).toInt() > QtDifferences::lastYearRead())
        HMI_SKIP("this Qt does not read dates so late");
    DateTimeStage stage;
    if (!before.isEmpty())
        stage.keypad.setText(before);
    if (length)
        stage.keypad.setMaxLength(length);
    stage.keypad.setText(text);
    QTEST(stage.values(), "filled");
    QTEST(stage.display(), "shown");
}

void tst_DateTimeText::daysOfJanuary1600OnAFreshKeypad()
{
    for (int day = 1; day <= 31; ++day) {
        DateTimeStage stage;
        stage.keypad.setMaxLength(DateLength);
        stage.keypad.setText(dateText(1600, 1, day));
        QCOMPARE(stage.display(), dateText(1600, 1, qMin(day, 28)));
    }
}

void tst_DateTimeText::randomValuesSurviveToOk_data()
{
    QTest::addColumn<int>("length");
    QTest::newRow("date") << int(DateLength);
    QTest::newRow("time") << int(TimeLength);
    QTest::newRow("date and time") << int(DateTimeLength);
}

void tst_DateTimeText::randomValuesSurviveToOk()
{
    QFETCH(int, length);
    DateTimeStage stage;
    stage.keypad.setMaxLength(length);
    stage.keypad.setText(u(shownTime)); // the days of a fresh keypad end with 28
    RandomText random(20240229);
    QToolButton *ok = key(&stage.keypad, u("Ok"));
    for (int i = 0; i < 10000; ++i) {
        const QString text = random.next(length);
        stage.keypad.setText(text);
        ok->click();
        QCOMPARE(stage.target.text(), text);
    }
}

QTEST_MAIN(tst_DateTimeText)

#include "tst_DateTimeText.moc"
