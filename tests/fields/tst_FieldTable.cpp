// SPDX-License-Identifier: MIT
#include "FieldSamples.h"
#include "FieldStage.h"

#include <QPlainTextEdit>
#include <QTextEdit>
#include <QtTest>

// Each kind of field, and what a program sees when an operator fills it in.

using namespace FieldSamples;

namespace {

struct Row
{
    const char *name;
    QWidget *(*make)();
    const char *signatures; // of the field, and after a "|" of the line edit in it
    const char *shown;      // by the keypad
    const char *limits;     // the same
    const char *taps;
    const char *text;  // of the field, afterwards, as localized() has it
    const char *heard; // by the program; the same
};

#define INT_SIGNALS "valueChanged(int) textChanged(QString) editingFinished()"
#define FRACTION_SIGNALS "valueChanged(double) textChanged(QString) editingFinished()"
#define DATE_SIGNALS "dateTimeChanged(QDateTime) editingFinished()"
#define LINE_SIGNALS "textChanged(QString) textEdited(QString) returnPressed() editingFinished()"
#define COMBO_SIGNALS "editTextChanged(QString) currentIndexChanged(int) activated(int)"

// clang-format off
const Row rows[] = {
    { "spin box", speed, INT_SIGNALS "|textEdited(QString)",
      "1200", "S-500 ... S6000 rpm", "1 5 0 0 Enter",
      "S1500 rpm", "textEdited(S1500 rpm) textChanged(S1500 rpm) valueChanged(1500) editingFinished()" },
    { "spin box, sign key", speed, INT_SIGNALS,
      "1200", "S-500 ... S6000 rpm", "4 0 0 +/- Enter",
      "S-400 rpm", "textChanged(S-400 rpm) valueChanged(-400) editingFinished()" },
    { "spin box, nothing typed", speed, INT_SIGNALS,
      "1200", "S-500 ... S6000 rpm", "Enter",
      "S1200 rpm", "editingFinished()" },
    { "spin box without limits", unlimited, INT_SIGNALS,
      "7", "", "8 Enter",
      "8", "textChanged(8) valueChanged(8) editingFinished()" },
    { "spin box with groups", grouped, INT_SIGNALS,
      "1000000", "0 ... 2000000", "1 5 0 0 0 0 0 Enter",
      "1_500_000", "textChanged(1_500_000) valueChanged(1500000) editingFinished()" },
    { "special value, left", special, INT_SIGNALS,
      "0", "0 ... 10", "7 Enter",
      "7", "textChanged(7) valueChanged(7) editingFinished()" },
    { "special value, kept", special, INT_SIGNALS,
      "0", "0 ... 10", "0 Enter",
      "off", "editingFinished()" },
    { "hexadecimal", hexadecimal, INT_SIGNALS,
      "AB", "0 ... FFFF", "F E Enter",
      "fe", "textChanged(fe) valueChanged(254) editingFinished()" },
    { "binary", binary, INT_SIGNALS,
      "101", "0 ... 11111111", "1 1 0 Enter",
      "110", "textChanged(110) valueChanged(6) editingFinished()" },
    { "without tracking", untracked, INT_SIGNALS,
      "5", "0 ... 99", "4 2 Enter",
      "42", "textChanged(42) valueChanged(42) editingFinished()" },
    { "fractions", feed, FRACTION_SIGNALS,
      "0.500", "F-10.000 ... F2000.500 mm/min", "1 . 5 Enter",
      "F1·500 mm/min", "textChanged(F1·500 mm/min) valueChanged(1.5) editingFinished()" },
    { "fractions without limits", anyFraction, FRACTION_SIGNALS,
      "1234.5", "", "1 . 5 Enter",
      "1·5", "textChanged(1·5) valueChanged(1.5) editingFinished()" },
    { "fractions without decimals", wholeFraction, FRACTION_SIGNALS,
      "5", "0 ... 100", "1 5 Enter",
      "15", "textChanged(15) valueChanged(15) editingFinished()" },
    { "fractions with groups", groupedFraction, FRACTION_SIGNALS,
      "12345.60", "0.00 ... 99999.00", "9 8 7 6 . 5 4 Enter",
      "9_876·54", "textChanged(9_876·54) valueChanged(9876.54) editingFinished()" },
    { "own spin box", ownEven, INT_SIGNALS,
      "150", "0 ... 1000", "8 Enter",
      "8", "textChanged(8) valueChanged(8) editingFinished()" },
    { "own text", ownMinutes, INT_SIGNALS,
      "2:30", "0:00 ... 16:40", "1 *# : << 5 0 Enter",
      "1:50", "textChanged(1:50) valueChanged(110) editingFinished()" },
    { "own base", ownHex, INT_SIGNALS,
      "96", "0 ... 3E8", "F F Enter",
      "FF", "textChanged(FF) valueChanged(255) editingFinished()" },
    { "own number", ownLong, "valueChanged(qlonglong) editingFinished()",
      "5000000000", "0 ... 9000000000", "6 0 0 0 0 0 0 0 0 0 Enter",
      "6000000000", "valueChanged(6000000000) editingFinished()" },
    { "date", date, DATE_SIGNALS,
      "2024-02-29", "", "+ Ok",
      "28.02.2025", "dateTimeChanged(2025-02-28 12:34:56) editingFinished()" },
    { "date with limits", limitedDate, DATE_SIGNALS,
      "2024-02-29", "2020-01-01 ... 2029-12-31", "+ Ok",
      "28.2.2025", "dateTimeChanged(2025-02-28 12:34:56) editingFinished()" },
    { "time of day", timeOfDay, DATE_SIGNALS,
      "12:34:56", "", "+ Ok",
      "13:34", "dateTimeChanged(2024-02-29 13:34:56) editingFinished()" },
    { "date and time", dateTime, DATE_SIGNALS,
      "2024-02-29 12:34:56", "", "- Ok",
      "2023/02/28 12:34:56", "dateTimeChanged(2023-02-28 12:34:56) editingFinished()" },
    { "line edit", text, LINE_SIGNALS,
      "abc", "", "x y Enter",
      "xy", "textEdited(xy) textChanged(xy) editingFinished()" },
    { "password", password, LINE_SIGNALS,
      "secret", "", "x y Enter",
      "xy", "textEdited(xy) textChanged(xy) editingFinished()" },
    { "maximum length", shortText, LINE_SIGNALS,
      "ab", "", "w x y z Enter",
      "wxy", "textEdited(wxy) textChanged(wxy) editingFinished()" },
    { "whole number", wholeNumber, LINE_SIGNALS,
      "12", "-100 ... 100", "4 5 +/- Enter",
      "-45", "textEdited(-45) textChanged(-45) editingFinished()" },
    { "fraction", fraction, LINE_SIGNALS,
      "2.25", "0 ... 50", "1 . 5 Enter",
      "1·5", "textEdited(1·5) textChanged(1·5) editingFinished()" },
    { "fraction of C", fractionOfC, LINE_SIGNALS,
      "2.25", "0 ... 50", "1 . 5 Enter",
      "1.5", "textEdited(1.5) textChanged(1.5) editingFinished()" },
    { "other validator", word, LINE_SIGNALS,
      "ab", "", "d x c Enter",
      "dc", "textEdited(dc) textChanged(dc) editingFinished()" },
    { "input mask", address, LINE_SIGNALS,
      "10.0.0.1", "", "1 . 2 . 3 . 4 Enter",
      "1.2.3.4", "textEdited(1.2.3.4) textChanged(1.2.3.4) editingFinished()" },
    { "combo box, an item", material, COMBO_SIGNALS,
      "steel", "", "t i Enter",
      "ti", "editTextChanged(ti) currentIndexChanged(2) activated(2)" },
    { "combo box, no item", material, COMBO_SIGNALS,
      "steel", "", "t u Enter",
      "tu", "editTextChanged(tu)" },
    { "combo box of numbers", override, COMBO_SIGNALS,
      "100", "0 ... 120", "1 0 Enter",
      "10", "editTextChanged(10) currentIndexChanged(2) activated(2)" },
    { "line of a plain text", program<QPlainTextEdit>, "textChanged()",
      "N10 G0", "", "x Enter",
      "x\nN20 G1\nN30 M2", "textChanged()" },
    { "line of a text", program<QTextEdit>, "textChanged()",
      "N10 G0", "", "x Enter",
      "x\nN20 G1\nN30 M2", "textChanged()" },
};
// clang-format on

QString textOf(QWidget *field)
{
    const char *const properties[] = { "text", "currentText", "plainText" };
    for (const char *property : properties) {
        if (field->metaObject()->indexOfProperty(property) >= 0)
            return field->property(property).toString();
    }
    return tapPlace(field)->property("text").toString();
}

} // namespace

class tst_FieldTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addLocaleRows(); }
    void init() { useLocale(); }
    void fieldTakesWhatWasTyped_data();
    void fieldTakesWhatWasTyped();
};

void tst_FieldTable::fieldTakesWhatWasTyped_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(sizeof(rows) / sizeof(rows[0])); ++i)
        QTest::newRow(rows[i].name) << i;
}

void tst_FieldTable::fieldTakesWhatWasTyped()
{
    QFETCH(int, index);
    const Row &row = rows[index];
    FieldStage stage;
    QWidget *field = stage.add(row.make());
    const QStringList signatures = u(row.signatures).split(QLatin1Char('|'));
    CHECKED(stage.log.listen(field, signatures.first().toLatin1()));
    if (signatures.size() > 1)
        CHECKED(stage.log.listen(tapPlace(field), signatures.last().toLatin1()));
    CHECKED(Operator::show(&stage.window));

    const Operator::Action entry = [&] {
        QCOMPARE(keypadText(), u(row.shown));
        QCOMPARE(keypadLimits(), u(row.limits));
        QCOMPARE(stage.log.heard(), QString());
        CHECKED(Operator::tapKeys(row.taps));
    };
    CHECKED(Operator::withKeypad([=] { Operator::tap(tapPlace(field), QPoint(4, 4)); },
                                 QList<Operator::Action>() << entry));
    QCOMPARE(textOf(field), localized(row.text));
    QCOMPARE(stage.log.heard(), localized(row.heard));
}

QTEST_MAIN(tst_FieldTable)
#include "tst_FieldTable.moc"
