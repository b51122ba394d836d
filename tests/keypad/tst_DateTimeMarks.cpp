// SPDX-License-Identifier: MIT
#include "DateTimeStage.h"

// The colour that tells an operator whether the digits of a field are a value.

namespace {

const char valid[] = "#ffffff";
const char invalid[] = "#ff9933";

struct MarkRow
{
    const char *name;
    int number;
    const char *taps, *text, *colour;
};

const MarkRow markRows[] = {
    { "year of one digit", Year, "2", "2", invalid },
    { "year of two digits", Year, "2 0", "20", invalid },
    { "year of three digits", Year, "2 0 2", "202", invalid },
    { "year of four digits", Year, "2 0 2 5", "2025", valid },
    { "year 1599", Year, "1 5 9 9", "1599", invalid },
    { "year 1600", Year, "1 6 0 0", "1600", valid },
    { "year 1599 and Delete", Year, "1 5 9 9 Delete", "159", invalid },
    { "plus restores a year before 1600", Year, "1 5 9 9 +", "2024", valid },
    { "month 0", Month, "0", "0", invalid },
    { "month 07", Month, "0 7", "07", valid },
    { "month 1 and a digit too much", Month, "1 3", "1", valid },
    { "minus restores an emptied month", Month, "Delete -", "5", valid },
    { "day 0", Day, "0", "0", invalid },
    { "day 09", Day, "0 9", "09", valid },
    { "day 00", Day, "0 0", "00", invalid },
    { "hour 0", Hour, "0", "0", valid },
    { "hour 24", Hour, "2 4", "24", valid },
    { "minute 00", Minute, "0 0", "00", valid },
    { "second 0", Second, "0", "0", valid },
    { "second emptied and typed", Second, "Delete 5", "5", valid },
    { "plus", Second, "+", "11", valid },
    { "minus", Year, "-", "2023", valid },
};

QString mark(const QWidget *field)
{
    return field->palette().color(QPalette::Active, QPalette::Base).name();
}

} // namespace

class tst_DateTimeMarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptiedFieldIsInvalid_data();
    void anEmptiedFieldIsInvalid();
    void digitsThatAreNoValueAreInvalid_data();
    void digitsThatAreNoValueAreInvalid();
    void theMarkIsTheActiveBaseAlone_data();
    void theMarkIsTheActiveBaseAlone();
    void finishedEditingTakesTheMarkAway_data();
    void finishedEditingTakesTheMarkAway();
};

void tst_DateTimeMarks::anEmptiedFieldIsInvalid_data()
{
    addFieldRows();
}

void tst_DateTimeMarks::anEmptiedFieldIsInvalid()
{
    QFETCH(int, number);
    DateTimeStage stage;
    CHECKED(stage.work(number, u("Delete")));
    QCOMPARE(stage.field(number)->text(), QString());
    for (int i = 0; i < FieldCount; ++i)
        QCOMPARE(mark(stage.field(i)) == u(invalid), i == number);
}

void tst_DateTimeMarks::digitsThatAreNoValueAreInvalid_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("colour");
    for (const MarkRow &row : markRows)
        QTest::newRow(row.name) << row.number << u(row.taps) << u(row.text) << u(row.colour);
}

void tst_DateTimeMarks::digitsThatAreNoValueAreInvalid()
{
    QFETCH(int, number);
    QFETCH(QString, taps);
    DateTimeStage stage;
    CHECKED(stage.work(number, taps));
    QTEST(stage.field(number)->text(), "text");
    QTEST(mark(stage.field(number)), "colour");
}

void tst_DateTimeMarks::theMarkIsTheActiveBaseAlone_data()
{
    QTest::addColumn<QString>("tapped");
    QTest::addColumn<QString>("colour");
    QTest::newRow("invalid") << u("Delete") << u(invalid);
    QTest::newRow("valid") << u("+") << u(valid);
}

void tst_DateTimeMarks::theMarkIsTheActiveBaseAlone()
{
    QFETCH(QString, tapped);
    QFETCH(QString, colour);
    DateTimeStage stage;
    QPalette expected = stage.field(Month)->palette();
    expected.setColor(QPalette::Text, Qt::red);
    expected.setColor(QPalette::Base, Qt::blue);
    stage.field(Month)->setPalette(expected);
    CHECKED(stage.focus(Month));
    CHECKED(tap(&stage.keypad, tapped));
    expected.setBrush(QPalette::Active, QPalette::Base, QBrush(QColor(colour)));
    QCOMPARE(stage.field(Month)->palette(), expected);
}

void tst_DateTimeMarks::finishedEditingTakesTheMarkAway_data()
{
    QTest::addColumn<int>("hardKey");
    QTest::newRow("the focus moves on") << int(Qt::Key_Tab);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_DateTimeMarks::finishedEditingTakesTheMarkAway()
{
    QFETCH(int, hardKey);
    DateTimeStage stage;
    QSpinBox *month = stage.field(Month);
    QPalette red = month->palette();
    red.setColor(QPalette::Text, Qt::red);
    month->setPalette(red);
    CHECKED(stage.work(Month, u("Delete 0")));
    QCOMPARE(mark(month), u(invalid));
    pressHardKey(&stage.keypad, hardKey);

    QPalette expected = QApplication::palette(month);
    expected.setBrush(QPalette::Active, QPalette::Base, QBrush(Qt::white));
    QCOMPARE(month->palette(), expected);
    QVERIFY(month->text().toInt() >= 1);
    QVERIFY(stage.keypad.isVisible());
}

QTEST_MAIN(tst_DateTimeMarks)

#include "tst_DateTimeMarks.moc"
