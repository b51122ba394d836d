// SPDX-License-Identifier: MIT
#include "FieldWindow.h"
#include "NumberSamples.h"
#include "Operator.h"
#include "support/KeypadDriver.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QScopedPointer>
#include <QtTest>

using namespace NumberSamples;

namespace {

const char spinBoxSignals[] = "valueChanged(int) valueChanged(double) editingFinished()";
const char lineEditSignals[] =
    "textEdited(QString) textChanged(QString) returnPressed() editingFinished()";

struct NumberRow
{
    const char *name;
    Factory create;
    const char *opens;
    const char *limits;
    const char *keys;
    double value;
};

// clang-format off
const NumberRow spinBoxRows[] = {
    { "suffix",             speed,          "120",        "0 ... 6000 rpm",        "7 5 Enter",             75        },
    { "upper limit",        speed,          "120",        "0 ... 6000 rpm",        "6 0 0 0 Enter",         6000      },
    { "negative",           offset,         "5",          "-50 ... 50",            "1 2 +/- Enter",         -12       },
    { "base 16",            address,        "1F",         "0x0 ... 0xFF",          "A 5 Enter",             165       },
    { "base 2",             bits,           "101",        "0 ... 1111",            "1 1 0 Enter",           6         },
    { "from special text",  coolant,        "0",          "0 ... 100",             "4 Enter",               4         },
    { "to special text",    runningCoolant, "7",          "0 ... 100",             "0 Enter",               0         },
    { "wrapping",           angle,          "10",         "0 ... 359",             "3 5 9 Enter",           359       },
    { "groups",             pieces,         "1234567",    "≥ 0",                   "7 6 5 4 3 2 1 Enter",   7654321   },
    { "without tracking",   quietPieces,    "3",          "≤ 1000",                "9 9 9 Enter",           999       },
    { "decimals",           feed,           "0.25",       "F -10.00 ... F 10.00 mm", "1 . 5 Enter",         1.5       },
    { "four decimals",      finePosition,   "0.0625",     "0.0000 ... 1.0000",     "0 . 1 2 5 Enter",       0.125     },
    { "no decimals",        wholeFeed,      "40",         "0 ... 100",             "7 5 Enter",             75        },
    { "groups, decimals",   length,         "1234567.50", "0.00 ... 9000000.00",   "7 6 5 4 3 2 1 . 2 Enter", 7654321.2 }
};

const NumberRow numberEditRows[] = {
    { "whole number",       tool,           "12",         "1 ... 500",             "9 9 Enter",             99        },
    { "fraction",           radius,         "0.25",       "-10 ... 10",            "1 . 5 Enter",           1.5       },
    { "negative fraction",  radius,         "0.25",       "-10 ... 10",            "1 . 5 +/- Enter",       -1.5      },
    { "groups",             distance,       "1234.5",     "0 ... 90000",           "4 3 2 1 . 5 Enter",     4321.5    }
};

struct RefusedRow
{
    const char *name;
    Factory create;
    const char *keys; // with which the keypad opens again, as it was left
    const char *left;
};

const RefusedRow refusedRows[] = {
    { "too great",           speed,        "7 0 0 0 Enter",   "7000"  },
    { "too small",           offset,       "5 1 +/- Enter",   "-51"   },
    { "base 16",             address,      "1 0 0 Enter",     "100"   },
    { "base 2",              bits,         "1 0 0 0 0 Enter", "10000" },
    { "wrapping",            angle,        "3 6 0 Enter",     "360"   },
    { "beyond int",          pieces,       "9 9 9 9 9 9 9 9 9 9 9 Enter", "99999999999" },
    { "great fraction",      feed,         "1 0 . 0 1 Enter", "10.01" },
    { "small fraction",      feed,         "1 5 +/- Enter",   "-15"   },
    { "validator, great",    tool,         "5 0 1 Enter",     "501"   },
    { "validator, small",    tool,         "0 Enter",         "0"     },
    { "validator, fraction", radius,       "1 5 Enter",       "15"    }
};

struct StayRow
{
    const char *name;
    const char *keys;
    const char *heard;
};

const StayRow stayRows[] = {
    { "cancelled",           "1 0 1 ESC",     ""                },
    { "cancelled at once",   "ESC",           ""                },
    { "confirmed unchanged", "Enter",         "editingFinished" }
};
// clang-format on

void addNumberColumns()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("row");
}

template <class Row, int count>
void addRows(const Row (&rows)[count])
{
    addNumberColumns();
    for (const QString &locale : programLocales()) {
        for (int i = 0; i < count; ++i)
            QTest::newRow(qPrintable(u(rows[i].name) + u(", ") + locale)) << locale << i;
    }
}

void tapField(const FieldWindow &window)
{
    QLineEdit *part = window.field->findChild<QLineEdit *>();
    Operator::tap(part ? part : window.field.data());
}

QString shownText(const QWidget *field)
{
    return field->property("text").toString();
}

// Works the field of \a row once and compares what the program sees before and while it is worked.
void enter(FieldWindow *window, const NumberRow &row)
{
    const QString shown = shownText(window->field);
    CHECKED(
        Operator::withKeypad([=] { tapField(*window); },
                             QList<Operator::Action>() <<
                                 [=] {
                                     QCOMPARE(window->log.names(), QString());
                                     QCOMPARE(shownText(window->field), shown);
                                     QCOMPARE(editLine(Operator::keypad())->text(), u(row.opens));
                                     QCOMPARE(tipLabel(Operator::keypad())->text(), u(row.limits));
                                     CHECKED(Operator::tapKeys(row.keys));
                                 }));
    QVERIFY(window->field->hasFocus());
}

} // namespace

class tst_NumberFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSpinBoxTakesTheNumber_data() { addRows(spinBoxRows); }
    void aSpinBoxTakesTheNumber();
    void aLineEditTakesTheNumber_data() { addRows(numberEditRows); }
    void aLineEditTakesTheNumber();
    void aRefusedNumberReopensTheKeypad_data() { addRows(refusedRows); }
    void aRefusedNumberReopensTheKeypad();
    void aRefusedNumberCanBeCorrected();
    void theNumberStays_data();
    void theNumberStays();
    void aLineEditTakesText_data();
    void aLineEditTakesText();
    void aPasswordIsMasked();
    void writingCanBeUndone();
};

void tst_NumberFields::aSpinBoxTakesTheNumber()
{
    QFETCH(QString, locale);
    QFETCH(int, row);
    const DefaultLocale inLocale(locale);
    const NumberRow &number = spinBoxRows[row];
    const QScopedPointer<QWidget> setByProgram(number.create());
    setByProgram->setProperty("value", number.value);
    FieldWindow window(number.create(), spinBoxSignals);
    CHECKED(enter(&window, number));
    QCOMPARE(window.field->property("value").toDouble(), number.value);
    QCOMPARE(shownText(window.field), shownText(setByProgram.data()));
    QCOMPARE(window.log.names(), u("valueChanged editingFinished"));
}

void tst_NumberFields::aLineEditTakesTheNumber()
{
    QFETCH(QString, locale);
    QFETCH(int, row);
    const DefaultLocale inLocale(locale);
    const NumberRow &number = numberEditRows[row];
    FieldWindow window(number.create(), lineEditSignals);
    CHECKED(enter(&window, number));
    bool isNumber = false;
    QCOMPARE(QLocale().toDouble(shownText(window.field), &isNumber), number.value);
    QVERIFY(isNumber);
    QCOMPARE(window.log.names(), u("textEdited textChanged editingFinished"));
}

void tst_NumberFields::aRefusedNumberReopensTheKeypad()
{
    QFETCH(QString, locale);
    QFETCH(int, row);
    const DefaultLocale inLocale(locale);
    const RefusedRow &refused = refusedRows[row];
    FieldWindow window(refused.create(), spinBoxSignals);
    window.log.listenToKnown(window.field, lineEditSignals);
    const QString shown = shownText(window.field);
    QString limits;
    CHECKED(Operator::withKeypad([&] { tapField(window); },
                                 QList<Operator::Action>() <<
                                     [&] {
                                         limits = tipLabel(Operator::keypad())->text();
                                         CHECKED(Operator::tapKeys(refused.keys));
                                     } <<
                                     [&] {
                                         QCOMPARE(editLine(Operator::keypad())->text(),
                                                  u(refused.left));
                                         QCOMPARE(tipLabel(Operator::keypad())->text(), limits);
                                         QCOMPARE(shownText(window.field), shown);
                                         QCOMPARE(window.log.names(), QString());
                                         CHECKED(Operator::tapKeys("ESC"));
                                     }));
    QVERIFY(!limits.isEmpty());
    QCOMPARE(shownText(window.field), shown);
    QCOMPARE(window.log.names(), QString());
}

void tst_NumberFields::aRefusedNumberCanBeCorrected()
{
    FieldWindow window(feed(), spinBoxSignals);
    CHECKED(Operator::withKeypad([&] { tapField(window); },
                                 QList<Operator::Action>() <<
                                     [] {
                                         CHECKED(Operator::tapKeys("9 9 Enter"));
                                     } <<
                                     [] {
                                         CHECKED(Operator::tapKeys("8 8 Enter"));
                                     } <<
                                     [] { CHECKED(Operator::tapKeys("7 . 5 Enter")); }));
    QCOMPARE(window.field->property("value").toDouble(), 7.5);
    QCOMPARE(window.log.names(), u("valueChanged editingFinished"));
}

void tst_NumberFields::theNumberStays_data()
{
    addNumberColumns();
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QString>("heard");
    for (const QString &locale : programLocales()) {
        for (int i = 0; i < int(sizeof spinBoxRows / sizeof *spinBoxRows); ++i) {
            for (const StayRow &stay : stayRows) {
                QTest::newRow(
                    qPrintable(u(stay.name) + u(", ") + u(spinBoxRows[i].name) + u(", ") + locale))
                    << locale << i << QByteArray(stay.keys) << u(stay.heard);
            }
        }
    }
}

void tst_NumberFields::theNumberStays()
{
    QFETCH(QString, locale);
    QFETCH(int, row);
    QFETCH(QByteArray, keys);
    const DefaultLocale inLocale(locale);
    FieldWindow window(spinBoxRows[row].create(), spinBoxSignals);
    const QString shown = shownText(window.field);
    CHECKED(Operator::withKeypad([&] { tapField(window); },
                                 QList<Operator::Action>()
                                     << [&] { CHECKED(Operator::tapKeys(keys.constData())); }));
    QCOMPARE(shownText(window.field), shown);
    QTEST(window.log.names(), "heard");
    QVERIFY(window.field->hasFocus());
}

void tst_NumberFields::aLineEditTakesText_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << 0 << QByteArray("x y Return") << u("xy");
    QTest::newRow("maximum length") << 0 << QByteArray("1 2 3 4 5 6 7 Return") << u("12345");
    QTest::newRow("password") << 1 << QByteArray("q w Return") << u("qw");
    QTest::newRow("input mask") << 2 << QByteArray("8 7 6 5 Return") << u("87-65");
}

void tst_NumberFields::aLineEditTakesText()
{
    QFETCH(int, field);
    QFETCH(QByteArray, keys);
    QFETCH(QString, text);
    const Factory factories[] = { name, password, partNumber };
    FieldWindow window(factories[field](), lineEditSignals);
    const QString before = shownText(window.field);
    CHECKED(Operator::withKeypad([&] { tapField(window); },
                                 QList<Operator::Action>() <<
                                     [&] {
                                         QVERIFY(Operator::keypad()->inherits("CharacterKeypad"));
                                         QCOMPARE(editLine(Operator::keypad())->text(), before);
                                         QCOMPARE(window.log.names(), QString());
                                         CHECKED(typeKeys(keys.constData()));
                                     }));
    QCOMPARE(shownText(window.field), text);
    QCOMPARE(window.log.names(), u("textEdited textChanged editingFinished"));
}

void tst_NumberFields::aPasswordIsMasked()
{
    const Factory factories[] = { name, password };
    for (const Factory factory : factories) {
        FieldWindow window(factory());
        const QLineEdit::EchoMode mode =
            factory == password ? QLineEdit::Password : QLineEdit::Normal;
        CHECKED(Operator::withKeypad([&] { tapField(window); },
                                     QList<Operator::Action>() <<
                                         [&] {
                                             QCOMPARE(editLine(Operator::keypad())->echoMode(),
                                                      mode);
                                             CHECKED(typeKeys("Escape"));
                                         }));
    }
}

void tst_NumberFields::writingCanBeUndone()
{
    FieldWindow window(name());
    QLineEdit *edit = qobject_cast<QLineEdit *>(window.field);
    CHECKED(
        Operator::withKeypad([&] { tapField(window); },
                             QList<Operator::Action>() << [] { CHECKED(typeKeys("x y Return")); }));
    QCOMPARE(edit->text(), u("xy"));
    edit->undo();
    QCOMPARE(edit->text(), u("abc"));
    edit->redo();
    QCOMPARE(edit->text(), u("xy"));
}

QTEST_MAIN(tst_NumberFields)
#include "tst_NumberFields.moc"
