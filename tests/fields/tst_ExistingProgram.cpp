// SPDX-License-Identifier: MIT
#include "MachineProgram.h"
#include "Operator.h"
#include "WhileModal.h"
#include "support/KeypadDriver.h"

#include <HMIDevice/FieldKeypads.h>
#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

// A program that exists gets its keypads by one line, and hears of its fields what it always heard.

namespace {

typedef QList<Operator::Action> Entries;

// What is done with a field of the program, and what comes of it.
struct FieldRow
{
    const char *name;
    const char *keypad;
    const char *vain; // keys that cancel, but not at once: the first may be a double tap
    const char *keys;
    const char *shown;  // in the field afterwards
    const char *signal; // sent once when the value changes
};

// clang-format off
const FieldRow fieldRows[] = {
    { "feed",     "NumericKeypad",   "1 ESC",    "1 . 5 Enter",     "1,500 mm/min", SIGNAL(valueChanged(double)) },
    { "speed",    "NumericKeypad",   "1 ESC",    "5 0 0 Enter",     "500",          SIGNAL(valueChanged(int)) },
    { "offset",   "NumericKeypad",   "1 ESC",    "1 . 5 +/- Enter", "-1,5",         SIGNAL(textEdited(QString)) },
    { "tool",     "NumericKeypad",   "1 ESC",    "1 2 Enter",       "12",           SIGNAL(textEdited(QString)) },
    { "part",     "CharacterKeypad", "a Esc",    "a b c Enter",     "abc",          SIGNAL(textEdited(QString)) },
    { "pin",      "CharacterKeypad", "a Esc",    "a b Enter",       "ab",           SIGNAL(textEdited(QString)) },
    { "material", "CharacterKeypad", "a Esc",    "v a Enter",       "va",           SIGNAL(currentIndexChanged(int)) },
    { "due",      "DateTimeKeypad",  "+ Cancel", "+ Ok",            "06.05.25",     SIGNAL(dateChanged(QDate)) }
};

const FieldRow settingRows[] = {
    { "rapid",     "NumericKeypad",   "1 ESC", "1 . 5 Enter", "1,500 mm/min", SIGNAL(valueChanged(double)) },
    { "axisSpeed", "NumericKeypad",   "1 ESC", "5 0 0 Enter", "500",          SIGNAL(valueChanged(int)) },
    { "machine",   "CharacterKeypad", "a Esc", "a b c Enter", "abc",          SIGNAL(textEdited(QString)) },
    { "usual",     "CharacterKeypad", "a Esc", "v a Enter",   "va",           SIGNAL(currentIndexChanged(int)) }
};
// clang-format on

template <int count>
void addRows(const FieldRow (&rows)[count])
{
    QTest::addColumn<const FieldRow *>("row");
    for (const FieldRow &row : rows)
        QTest::newRow(row.name) << &row;
}

QLineEdit *lineEditOf(QWidget *field)
{
    QLineEdit *edit = qobject_cast<QLineEdit *>(field);
    return edit ? edit : field->findChild<QLineEdit *>();
}

// Who says that editing is finished: the field, or a combo box's line edit.
QObject *finisherOf(QWidget *field)
{
    return qobject_cast<QAbstractSpinBox *>(field) ? field : lineEditOf(field);
}

// What the program hears of a field.
class Heard
{
public:
    Heard(QWidget *field, const char *signal)
        : m_changed(field, signal)
        , m_finished(finisherOf(field), SIGNAL(editingFinished()))
        , m_text(lineEditOf(field), SIGNAL(textChanged(QString)))
    {
    }

    bool isNothing() const
    {
        return m_changed.isEmpty() && m_finished.isEmpty() && m_text.isEmpty();
    }

    int changes() const { return int(m_changed.count()); }
    int finishes() const { return int(m_finished.count()); }

private:
    QSignalSpy m_changed;
    QSignalSpy m_finished;
    QSignalSpy m_text;
};

bool hasFocus(const QWidget *field)
{
    return Operator::waitUntil([=] { return QApplication::focusWidget() == field; });
}

// Types into \a field what the row says, once in vain and once for good.
void useField(QWidget *field, const FieldRow &row)
{
    const Heard heard(field, row.signal);
    const QString before = lineEditOf(field)->text();
    const auto opening = [=] {
        Operator::tap(lineEditOf(field));
    };
    const auto cancelling = [&] {
        QCOMPARE(QLatin1String(Operator::keypad()->metaObject()->className()),
                 QLatin1String(row.keypad));
        CHECKED(Operator::tapKeys(row.vain));
    };
    CHECKED(Operator::withKeypad(opening, Entries() << cancelling));
    QVERIFY(hasFocus(field));
    QVERIFY(heard.isNothing());
    QCOMPARE(lineEditOf(field)->text(), before);

    const auto entering = [&] {
        QVERIFY(heard.isNothing());
        CHECKED(Operator::tapKeys(row.keys));
    };
    CHECKED(Operator::withKeypad(opening, Entries() << entering));
    QVERIFY(hasFocus(field));
    QCOMPARE(lineEditOf(field)->text(), u(row.shown));
    QCOMPARE(heard.changes(), 1);
    QCOMPARE(heard.finishes(), 1);
}

// The program, and the one line that it was given.
struct Program
{
    Program()
        : jog(&window)
        , keypads(&window)
    {
    }

    QWidget *field(const char *name) const { return window.findChild<QWidget *>(u(name)); }

    void doubleTap(const QModelIndex &index) const
    {
        Operator::doubleTap(window.table()->viewport(), window.table()->visualRect(index).center());
    }

    MachineWindow window;
    JogFilter jog;
    FieldKeypads keypads;
};

} // namespace

Q_DECLARE_METATYPE(const FieldRow *)

class tst_ExistingProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void fieldsTakeWhatIsTyped_data();
    void fieldsTakeWhatIsTyped();
    void numbersAreWhatWasTyped();
    void comboBoxFollows();
    void closedFieldsOpenNothing_data();
    void closedFieldsOpenNothing();
    void refusedValuesStayInTheKeypad();
    void keysOfAKeypadDoNotJog();
    void cellsGoThroughTheModel_data();
    void cellsGoThroughTheModel();
    void cellsStayWithinTheLimitsOfTheirDelegate();
    void closedCellsOpenNothing();
    void settingsTakeWhatIsTyped_data();
    void settingsTakeWhatIsTyped();
    void secondWindow();
};

void tst_ExistingProgram::initTestCase()
{
    dressApplication();
}

void tst_ExistingProgram::fieldsTakeWhatIsTyped_data()
{
    addRows(fieldRows);
}

void tst_ExistingProgram::fieldsTakeWhatIsTyped()
{
    QFETCH(const FieldRow *, row);
    Program program;
    CHECKED(Operator::show(&program.window));
    CHECKED(useField(program.field(row->name), *row));
    QCOMPARE(program.jog.seenKeys, 0);
}

void tst_ExistingProgram::numbersAreWhatWasTyped()
{
    Program program;
    CHECKED(Operator::show(&program.window));
    QDoubleSpinBox *feed = program.window.findChild<QDoubleSpinBox *>(u("feed"));
    CHECKED(Operator::withKeypad([=] { Operator::tap(lineEditOf(feed)); },
                                 Entries() << [] { Operator::tapKeys("1 . 5 Enter"); }));
    QCOMPARE(feed->value(), 1.5);
}

void tst_ExistingProgram::comboBoxFollows()
{
    Program program;
    CHECKED(Operator::show(&program.window));
    QComboBox *material = program.window.findChild<QComboBox *>(u("material"));
    CHECKED(Operator::withKeypad([=] { Operator::tap(material->lineEdit()); },
                                 Entries() << [] { Operator::tapKeys("a l u Enter"); }));
    QCOMPARE(material->currentIndex(), 2);
    QCOMPARE(material->count(), 3);
}

void tst_ExistingProgram::closedFieldsOpenNothing_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = labelList("serial fastest idle fixed");
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_ExistingProgram::closedFieldsOpenNothing()
{
    QFETCH(QString, name);
    Program program;
    CHECKED(Operator::show(&program.window));
    QLineEdit *edit = lineEditOf(program.window.findChild<QWidget *>(name));
    const QString before = edit->text();
    CHECKED(Operator::withoutKeypad([=] { Operator::tap(edit); }));
    QCOMPARE(edit->text(), before);
}

void tst_ExistingProgram::refusedValuesStayInTheKeypad()
{
    Program program;
    CHECKED(Operator::show(&program.window));
    QSpinBox *speed = program.window.findChild<QSpinBox *>(u("speed"));
    const Heard heard(speed, SIGNAL(valueChanged(int)));
    const auto tooMuch = [] {
        Operator::tapKeys("7 0 0 0 Enter");
    };
    const auto again = [&](const char *keys) {
        QCOMPARE(editLine(Operator::keypad())->text(), u("7000"));
        QVERIFY(tipLabel(Operator::keypad())->text().contains(u("6000")));
        QVERIFY(heard.isNothing());
        CHECKED(Operator::tapKeys(keys));
    };
    const auto opening = [=] {
        Operator::tap(lineEditOf(speed));
    };
    CHECKED(Operator::withKeypad(
        opening, Entries() << tooMuch << [&] { again("ESC"); }));
    QVERIFY(heard.isNothing());
    QCOMPARE(speed->value(), 1200);
    CHECKED(Operator::withKeypad(
        opening,
        Entries() << tooMuch <<
            [&] {
                again("9 9 Enter");
            }
                  << [] { Operator::tapKeys("9 0 0 Enter"); }));
    QCOMPARE(speed->value(), 900);
    QCOMPARE(heard.changes(), 1);
    QCOMPARE(heard.finishes(), 1);
}

void tst_ExistingProgram::keysOfAKeypadDoNotJog()
{
    Program program;
    CHECKED(Operator::show(&program.window));
    QSpinBox *speed = program.window.findChild<QSpinBox *>(u("speed"));
    const auto typing = [] {
        for (const char *name : { "8", "0", "1", "Left", "Right", "Return" })
            CHECKED(Operator::pressHardKey(name));
    };
    CHECKED(Operator::withKeypad([=] { Operator::tap(lineEditOf(speed)); }, Entries() << typing));
    QVERIFY(hasFocus(speed));
    QCOMPARE(speed->value(), 801);
    QCOMPARE(program.jog.seenKeys, 0);
    CHECKED(Operator::pressHardKey("Right"));
    QCOMPARE(program.jog.jogs, 1);
}

void tst_ExistingProgram::cellsGoThroughTheModel_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QByteArray>("keypad");
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QVariant>("value");
    const QByteArray numeric("NumericKeypad");
    const QByteArray character("CharacterKeypad");
    QTest::newRow("text") << int(NameColumn) << character << QByteArray("a b Enter")
                          << QVariant(u("ab"));
    QTest::newRow("delegate") << int(LengthColumn) << numeric << QByteArray("1 5 . 5 Enter")
                              << QVariant(15.5);
    QTest::newRow("whole") << int(TeethColumn) << numeric << QByteArray("6 Enter") << QVariant(6);
}

void tst_ExistingProgram::cellsGoThroughTheModel()
{
    QFETCH(int, column);
    QFETCH(QByteArray, keypad);
    QFETCH(QByteArray, keys);
    QFETCH(QVariant, value);
    Program program;
    CHECKED(Operator::show(&program.window));
    const QModelIndex index = program.window.tools()->index(1, column);
    QSignalSpy changed(program.window.tools(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    const auto entering = [&] {
        QCOMPARE(QByteArray(Operator::keypad()->metaObject()->className()), keypad);
        CHECKED(Operator::tapKeys(keys.constData()));
    };
    CHECKED(Operator::withKeypad([&] { program.doubleTap(index); }, Entries() << entering));
    QCOMPARE(index.data(Qt::EditRole), value);
    QCOMPARE(int(changed.count()), 1);
}

void tst_ExistingProgram::cellsStayWithinTheLimitsOfTheirDelegate()
{
    Program program;
    CHECKED(Operator::show(&program.window));
    const QModelIndex index = program.window.tools()->index(0, LengthColumn);
    QSignalSpy changed(program.window.tools(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    const auto again = [&] {
        QCOMPARE(editLine(Operator::keypad())->text(), u("1.5"));
        CHECKED(Operator::tapKeys("ESC"));
    };
    CHECKED(Operator::withKeypad([&] { program.doubleTap(index); },
                                 Entries() <<
                                     [] {
                                         Operator::tapKeys("1 . 5 Enter");
                                     } << again));
    QCOMPARE(index.data(Qt::EditRole), QVariant(120.25));
    QCOMPARE(int(changed.count()), 0);
}

void tst_ExistingProgram::closedCellsOpenNothing()
{
    Program program;
    CHECKED(Operator::show(&program.window));
    const QModelIndex index = program.window.tools()->index(0, StateColumn);
    CHECKED(Operator::withoutKeypad([&] { program.doubleTap(index); }));
    QCOMPARE(program.window.table()->currentIndex(), index); // tapped it was
}

void tst_ExistingProgram::settingsTakeWhatIsTyped_data()
{
    addRows(settingRows);
}

void tst_ExistingProgram::settingsTakeWhatIsTyped()
{
    QFETCH(const FieldRow *, row);
    Program program;
    CHECKED(Operator::show(&program.window));
    const WhileModal modal([=](QWidget *dialog) {
        QWidget *field = dialog->findChild<QWidget *>(u(row->name));
        CHECKED(tapTabOf(field));
        CHECKED(useField(field, *row));
    });
    CHECKED(Operator::tap(program.window.settingsButton()));
    QVERIFY(Operator::waitUntil([&] { return modal.isDone(); }));
}

void tst_ExistingProgram::secondWindow()
{
    Program program;
    CHECKED(Operator::show(&program.window));
    QWidget second;
    second.setGeometry(60, 80, 500, 400);
    QVBoxLayout layout(&second);
    QDoubleSpinBox box;
    layout.addWidget(&box);
    CHECKED(Operator::show(&second));
    const FieldRow row = { "",      "NumericKeypad",
                           "1 ESC", "2 . 5 Enter",
                           "2,50",  SIGNAL(valueChanged(double)) };
    CHECKED(useField(&box, row));
    QCOMPARE(box.value(), 2.5);
    QVERIFY(second.isActiveWindow());
    QCOMPARE(program.jog.seenKeys, 0);
}

QTEST_MAIN(tst_ExistingProgram)

#include "tst_ExistingProgram.moc"
