// SPDX-License-Identifier: MIT
#include "DateTimeStage.h"

#include <QDate>
#include <QKeyEvent>
#include <QToolButton>

#include <random>

// What the date-time keypad's keys and hard keys do to the field that has the focus.

namespace {

const char editingKeys[] = "1 2 3 4 5 6 7 8 9 0 + - Delete";

struct KeyRow
{
    const char *name;
    int number;
    const char *taps, *filled;
};

const KeyRow keyRows[] = {
    { "plus on year", Year, "+", "2025 5 17 8 9 10" },
    { "minus on month", Month, "-", "2024 4 17 8 9 10" },
    { "plus on day", Day, "+ +", "2024 5 19 8 9 10" },
    { "minus on hour", Hour, "-", "2024 5 17 7 9 10" },
    { "plus on minute", Minute, "+", "2024 5 17 8 10 10" },
    { "minus on second", Second, "-", "2024 5 17 8 9 9" },
    { "year typed", Year, "1 9 8 7", "1987 5 17 8 9 10" },
    { "month typed", Month, "1 2", "2024 12 17 8 9 10" },
    { "day typed", Day, "3 1", "2024 5 31 8 9 10" },
    { "hour typed", Hour, "2 4", "2024 5 17 24 9 10" },
    { "minute typed", Minute, "5 6", "2024 5 17 8 56 10" },
    { "second typed", Second, "0", "2024 5 17 8 9 0" },
    { "minus ends at the first hour", Hour, "- - - - - - - - - -", "2024 5 17 0 9 10" },
    { "plus ends at the last month", Month, "+ + + + + + + + + +", "2024 12 17 8 9 10" },
    { "a digit too much is refused", Month, "1 3", "2024 1 17 8 9 10" },
    { "Delete alone keeps the value", Day, "Delete", valuesOfShownTime },
    { "Delete and another digit", Minute, "4 5 Delete 7", "2024 5 17 8 47 10" },
};

// Notes the key events that come to a widget.
class KeyEvents : public QObject
{
public:
    QStringList seen;

    static QString press(int key, const QString &text)
    {
        return described(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text, false, 1));
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
            seen << described(*static_cast<QKeyEvent *>(event));
        return false;
    }

private:
    static QString described(const QKeyEvent &event)
    {
        return QString::fromLatin1("%1 of key %2 (%3), modifiers %4, repeat %5, count %6")
            .arg(QLatin1String(event.type() == QEvent::KeyPress ? "press" : "release"))
            .arg(event.key())
            .arg(event.text())
            .arg(int(event.modifiers()))
            .arg(event.isAutoRepeat())
            .arg(event.count());
    }
};

// What the keypad composes of the fields: hour 24 shows midnight.
QString composed(const QVector<int> &numbers)
{
    const QString date = dateText(numbers.at(Year), numbers.at(Month), numbers.at(Day));
    if (numbers.at(Hour) == 24)
        return date + u(" 00:00:00");
    return date + u(" ") + timeText(numbers.at(Hour), numbers.at(Minute), numbers.at(Second));
}

} // namespace

class tst_DateTimeKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void focusSpinBoxIsTheFieldWithTheFocus();
    void keysWorkOnTheFocusedFieldAlone_data();
    void keysWorkOnTheFocusedFieldAlone();
    void tapsAreKeyPressesOfTheField();
    void keysFollowATapIntoAField();
    void keysTakeNoFocus();
    void keysDoNothingWithoutFocus();
    void slotsDoNothingWithoutSender();
    void aKeyOfSomebodyElseDoesNothing();
    void tapsNeverLeaveTheRange_data();
    void tapsNeverLeaveTheRange();
    void returnFinishesTheFieldAndKeepsItOpen();
    void hardKeysGoToTheField();
};

void tst_DateTimeKeys::focusSpinBoxIsTheFieldWithTheFocus()
{
    DateTimeStage stage;
    QVERIFY(!stage.keypad.focusSpinBox());
    for (int i = 0; i < FieldCount; ++i) {
        CHECKED(stage.focus(i));
        QVERIFY(stage.keypad.focusSpinBox() == stage.field(i));
    }
    key(&stage.keypad, u("5"))->setFocus();
    QVERIFY(!stage.keypad.focusSpinBox());
}

void tst_DateTimeKeys::keysWorkOnTheFocusedFieldAlone_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("filled");
    for (const KeyRow &row : keyRows)
        QTest::newRow(row.name) << row.number << u(row.taps) << u(row.filled);
}

void tst_DateTimeKeys::keysWorkOnTheFocusedFieldAlone()
{
    QFETCH(int, number);
    QFETCH(QString, taps);
    DateTimeStage stage;
    CHECKED(stage.work(number, taps));
    QTEST(stage.values(), "filled");
}

void tst_DateTimeKeys::tapsAreKeyPressesOfTheField()
{
    DateTimeStage stage;
    KeyEvents events;
    CHECKED(stage.focus(Year));
    stage.field(Year)->installEventFilter(&events);
    CHECKED(tapAll(&stage.keypad, u(editingKeys)));

    QStringList expected;
    const QStringList digits = labelList("1 2 3 4 5 6 7 8 9 0");
    for (const QString &digit : digits)
        expected << KeyEvents::press(Qt::Key_0 + digit.toInt(), digit);
    expected << KeyEvents::press(Qt::Key_Backspace, QString());
    QCOMPARE(events.seen, expected);
}

void tst_DateTimeKeys::keysFollowATapIntoAField()
{
    DateTimeStage stage;
    stage.open(u(shownTime));
    stage.activate();
    QLineEdit *text = stage.field(Minute)->findChild<QLineEdit *>();
    QTest::mouseClick(text, Qt::LeftButton, Qt::NoModifier, text->rect().center());
    QVERIFY(stage.keypad.focusSpinBox() == stage.field(Minute));
    CHECKED(tapAll(&stage.keypad, u("Delete 3 4")));
    QCOMPARE(stage.display(), u("2024-05-17 08:34:10"));
}

void tst_DateTimeKeys::keysTakeNoFocus()
{
    DateTimeStage stage;
    stage.keypad.setObject(QScopedPointer<QObject>(new QObject).data()); // gone: "Ok" ends nothing
    CHECKED(stage.focus(Minute));
    const QStringList labels = labelList(editingKeys) << u("Ok");
    for (const QString &label : labels) {
        CHECKED(tap(&stage.keypad, label));
        QVERIFY2(stage.field(Minute)->hasFocus(), qPrintable(label));
    }
}

void tst_DateTimeKeys::keysDoNothingWithoutFocus()
{
    DateTimeStage stage;
    stage.open(u(shownTime));
    stage.activate();
    if (stage.keypad.focusWidget())
        stage.keypad.focusWidget()->clearFocus();
    QPalette blue;
    blue.setColor(QPalette::Base, Qt::blue);
    for (int i = 0; i < FieldCount; ++i)
        stage.field(i)->setPalette(blue);

    CHECKED(tapAll(&stage.keypad, u(editingKeys)));
    QCOMPARE(stage.values(), u(valuesOfShownTime));
    QCOMPARE(stage.display(), u(shownTime));
    for (int i = 0; i < FieldCount; ++i)
        QCOMPARE(stage.field(i)->palette().color(QPalette::Base), QColor(Qt::blue)); // no mark
    QVERIFY(stage.keypad.isVisible());
}

void tst_DateTimeKeys::slotsDoNothingWithoutSender()
{
    DateTimeStage stage;
    stage.keypad.setText(u("no time"));
    CHECKED(stage.focus(Month));
    QVERIFY(QMetaObject::invokeMethod(&stage.keypad, "slot_valueChanged", Q_ARG(int, 7)));
    QVERIFY(QMetaObject::invokeMethod(&stage.keypad, "slot_toolButtonClicked"));
    QVERIFY(QMetaObject::invokeMethod(&stage.keypad, "slot_editingFinished"));
    QCOMPARE(stage.display(), u("no time"));
    QCOMPARE(stage.field(Day)->maximum(), 28);
    QVERIFY(!stage.field(Month)->testAttribute(Qt::WA_SetPalette));
    QVERIFY(stage.keypad.isVisible());
}

void tst_DateTimeKeys::aKeyOfSomebodyElseDoesNothing()
{
    DateTimeStage stage;
    QToolButton foreign;
    QObject::connect(&foreign, SIGNAL(clicked()), &stage.keypad, SLOT(slot_toolButtonClicked()));
    stage.keypad.setText(u(shownTime));
    CHECKED(stage.focus(Month));
    foreign.click();
    QCOMPARE(stage.values(), u(valuesOfShownTime));
    QVERIFY(!stage.field(Month)->testAttribute(Qt::WA_SetPalette)); // no mark
    QVERIFY(stage.keypad.isVisible());
}

void tst_DateTimeKeys::tapsNeverLeaveTheRange_data()
{
    addFieldRows();
}

void tst_DateTimeKeys::tapsNeverLeaveTheRange()
{
    QFETCH(int, number);
    DateTimeStage stage;
    const QStringList keys = labelList(editingKeys);
    std::mt19937 random(1600 + unsigned(number));
    stage.keypad.setText(u("2024-01-31 23:59:59"));
    CHECKED(stage.focus(number));
    for (int i = 0; i < 1500; ++i) {
        CHECKED(tap(&stage.keypad, keys.at(int(random() % unsigned(keys.size())))));
        const QVector<int> now = stage.numbers();
        QVERIFY(now.at(number) >= fieldRows[number].minimum);
        QVERIFY(number == Day || now.at(number) <= fieldRows[number].maximum);
        QVERIFY(QDate::isValid(now.at(Year), now.at(Month), now.at(Day)));
        QCOMPARE(stage.display(), composed(now));
    }
}

void tst_DateTimeKeys::returnFinishesTheFieldAndKeepsItOpen()
{
    DateTimeStage stage;
    stage.target.setText(u("old"));
    stage.keypad.setText(u(shownTime));
    CHECKED(execWhile(
        &stage.keypad,
        [&] {
            CHECKED(stage.focus(Year));
            CHECKED(tapAll(&stage.keypad, u("2 0")));
            pressHardKey(&stage.keypad, Qt::Key_Return);
        },
        StaysOpen));
    QCOMPARE(stage.target.text(), u("old"));
    QCOMPARE(stage.values(), u(valuesOfShownTime));
}

void tst_DateTimeKeys::hardKeysGoToTheField()
{
    DateTimeStage stage;
    HMIDeviceInfo::setDeviceInfo(13, QSize());
    stage.keypad.setText(u(shownTime));
    CHECKED(stage.focus(Month));
    pressHardKey(&stage.keypad, Qt::Key_Up);
    QCOMPARE(stage.field(Month)->value(), 6);
    pressHardKey(&stage.keypad, Qt::Key_Down);
    QCOMPARE(stage.field(Month)->value(), 5);
    pressHardKey(&stage.keypad, Qt::Key_7);
    QCOMPARE(stage.display(), u("2024-07-17 08:09:10"));
    pressHardKey(&stage.keypad, Qt::Key_F1);
    QVERIFY(stage.keypad.isVisible());
}

QTEST_MAIN(tst_DateTimeKeys)

#include "tst_DateTimeKeys.moc"
