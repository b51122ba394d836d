// SPDX-License-Identifier: MIT
#include "DateTimeStage.h"

#include <QDateTime>
#include <QLocale>

// Where clocks skip an hour when summer time begins, and where numbers have other digits: neither
// may touch what an operator enters.

namespace {

// What clocks on the wall show at this moment, as a value that can be reckoned with.
QDateTime wallClock(const QDateTime &moment)
{
    const QDateTime local = moment.toLocalTime();
    return QDateTime(local.date(), local.time(), Qt::UTC);
}

// The middles of the hours that clocks of this time zone skip in a year.
QStringList skippedTimes(int year)
{
    QStringList texts;
    QDateTime moment(QDate(year, 1, 1), QTime(0, 0), Qt::UTC);
    while (moment.date().year() == year) {
        const QDateTime next = moment.addSecs(3600);
        const QDateTime before = wallClock(moment).addSecs(3600);
        const int skipped = int(before.secsTo(wallClock(next)));
        if (skipped > 0)
            texts << QLocale::c().toString(before.addSecs(skipped / 2), u("yyyy-MM-dd hh:mm:ss"));
        moment = next;
    }
    return texts;
}

} // namespace

class tst_DateTimeAbroad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timesSkippedSomewhereSurvive_data();
    void timesSkippedSomewhereSurvive();
    void timesSkippedHereSurvive_data();
    void timesSkippedHereSurvive();
    void digitsAreThoseOfTheKeys();
};

void tst_DateTimeAbroad::timesSkippedSomewhereSurvive_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("Berlin") << u("2024-03-31 02:30:00");
    QTest::newRow("Berlin, first second") << u("2024-03-31 02:00:00");
    QTest::newRow("Berlin, last second") << u("2024-03-31 02:59:59");
    QTest::newRow("New York") << u("2024-03-10 02:30:00");
    QTest::newRow("Sydney") << u("2024-10-06 02:30:00");
    QTest::newRow("Lord Howe, half an hour") << u("2024-10-06 02:15:00");
    QTest::newRow("Sao Paulo, midnight") << u("2018-11-04 00:30:00");
    QTest::newRow("Apia, a day") << u("2011-12-30 12:00:00");
}

void tst_DateTimeAbroad::timesSkippedSomewhereSurvive()
{
    QFETCH(QString, text);
    DateTimeStage stage;
    stage.keypad.setText(text);
    QCOMPARE(stage.display(), text);
    const QString filled = stage.values();

    stage.field(Hour)->stepUp();
    QVERIFY(stage.display() != text);
    stage.field(Hour)->stepDown();
    QCOMPARE(stage.display(), text);
    QCOMPARE(stage.values(), filled);
}

void tst_DateTimeAbroad::timesSkippedHereSurvive_data()
{
    QTest::addColumn<int>("year");
    const int years[] = { 1990, 2000, 2010, 2024, 2036 };
    for (int year : years)
        QTest::newRow(qPrintable(QString::number(year))) << year;
}

void tst_DateTimeAbroad::timesSkippedHereSurvive()
{
    QFETCH(int, year);
    const QStringList texts = skippedTimes(year);
    QCOMPARE(int(texts.size()), 1);
    DateTimeStage stage;
    stage.keypad.setText(u(shownTime)); // the days of a fresh keypad end with 28
    stage.keypad.setText(texts.first());
    CHECKED(tap(&stage.keypad, u("Ok")));
    QCOMPARE(stage.target.text(), texts.first());
}

void tst_DateTimeAbroad::digitsAreThoseOfTheKeys()
{
    QCOMPARE(QLocale::system().toString(2024).at(0), QChar(0x0662)); // here they are others
    DateTimeStage stage;
    CHECKED(stage.work(Month, u("+")));
    QCOMPARE(stage.field(Month)->text(), u("6"));
    QVERIFY(stage.field(Month)->palette().color(QPalette::Active, QPalette::Base) == Qt::white);
    CHECKED(tap(&stage.keypad, u("Ok")));
    QCOMPARE(stage.target.text(), u("2024-06-17 08:09:10"));
}

int main(int argc, char *argv[])
{
    // Central Europe's, told by its rule: a machine may have no table of zones.
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    qputenv("LC_ALL", "ar_EG.UTF-8");
    QApplication application(argc, argv);
    tst_DateTimeAbroad test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_DateTimeAbroad.moc"
