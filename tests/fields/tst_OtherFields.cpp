// SPDX-License-Identifier: MIT
#include "FieldWindow.h"
#include "Operator.h"
#include "support/KeypadDriver.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QComboBox>
#include <QDateTimeEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTextBlock>
#include <QTextEdit>
#include <QtTest>

namespace {

typedef QList<Operator::Action> Entries;

QDateTime noon()
{
    return QDateTime(QDate(2023, 5, 17), QTime(12, 30, 45));
}

QWidget *date()
{
    QDateEdit *edit = new QDateEdit(noon().date());
    edit->setDisplayFormat(u("dd.MM.yyyy"));
    edit->setDateRange(QDate(2023, 1, 1), QDate(2024, 12, 31));
    return edit;
}

QWidget *timeOfDay()
{
    QTimeEdit *edit = new QTimeEdit(noon().time());
    edit->setDisplayFormat(u("hh:mm"));
    return edit;
}

QWidget *dateTime()
{
    QDateTimeEdit *edit = new QDateTimeEdit(noon());
    edit->setDisplayFormat(u("d/M/yy h:mm:ss"));
    edit->setMaximumDateTime(noon().addSecs(60));
    return edit;
}

QWidget *lineEdit()
{
    return new QLineEdit(u("7"));
}

QWidget *readOnlyLineEdit()
{
    QLineEdit *edit = new QLineEdit(u("7"));
    edit->setReadOnly(true);
    return edit;
}

QWidget *readOnlySpinBox()
{
    QSpinBox *box = new QSpinBox;
    box->setReadOnly(true);
    return box;
}

QWidget *readOnlyDate()
{
    QDateEdit *edit = new QDateEdit;
    edit->setReadOnly(true);
    return edit;
}

QWidget *readOnlyText()
{
    QPlainTextEdit *edit = new QPlainTextEdit(u("7"));
    edit->setReadOnly(true);
    return edit;
}

QWidget *disabledSpinBox()
{
    QSpinBox *box = new QSpinBox;
    box->setEnabled(false);
    return box;
}

QWidget *disabledLineEdit()
{
    QWidget *edit = lineEdit();
    edit->setEnabled(false);
    return edit;
}

QWidget *choice()
{
    QComboBox *box = new QComboBox;
    box->addItems(labelList("one two"));
    return box;
}

QWidget *editableChoice()
{
    QComboBox *box = new QComboBox;
    box->addItems(labelList("one two"));
    box->setEditable(true);
    return box;
}

typedef QWidget *(*Factory)();

const Factory closedFields[] = { readOnlyLineEdit, readOnlySpinBox,  readOnlyDate, readOnlyText,
                                 disabledSpinBox,  disabledLineEdit, choice };

const Factory dateTimeFields[] = { date, timeOfDay, dateTime };

QWidget *tappedPart(QWidget *field)
{
    if (QAbstractScrollArea *area = qobject_cast<QAbstractScrollArea *>(field))
        return area->viewport();
    QLineEdit *part = field->findChild<QLineEdit *>();
    return part ? part : field;
}

Entries typing(const QByteArray &names)
{
    return Entries() << [=] {
        CHECKED(typeKeys(names.constData()));
    };
}

template <class Edit>
QTextBlock secondLine(const Edit *edit)
{
    return edit->document()->firstBlock().next();
}

// Works the second of three lines, and takes it back.
template <class Edit>
void editSecondLine()
{
    Edit *edit = new Edit;
    const QString text = u("G0 X1\nG1 Y2\nM30");
    edit->setPlainText(text);
    FieldWindow window(edit, "textChanged()");
    QTextCursor cursor(secondLine(edit));
    const QPoint place = edit->cursorRect(cursor).center() + QPoint(3, 0);
    CHECKED(Operator::withKeypad([=] { Operator::tap(edit->viewport(), place); },
                                 Entries() <<
                                     [&] {
                                         QCOMPARE(window.log.names(), QString());
                                         QCOMPARE(editLine(Operator::keypad())->text(), u("G1 Y2"));
                                         CHECKED(typeKeys("x y Return"));
                                     }));
    QCOMPARE(edit->toPlainText(), u("G0 X1\nxy\nM30"));
    QCOMPARE(edit->textCursor().block(), secondLine(edit));
    QCOMPARE(window.log.names(), u("textChanged"));
    edit->undo();
    QCOMPARE(edit->toPlainText(), text);
}

} // namespace

class tst_OtherFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDateOrTimeIsTaken_data();
    void aDateOrTimeIsTaken();
    void aDateOutOfLimitsReopensTheKeypad();
    void cancelLeavesADateAsItIs_data();
    void cancelLeavesADateAsItIs();
    void anEditableComboBoxFollows_data();
    void anEditableComboBoxFollows();
    void aTextEditTakesItsCurrentLine() { editSecondLine<QTextEdit>(); }
    void aPlainTextEditTakesItsCurrentLine() { editSecondLine<QPlainTextEdit>(); }
    void aFieldThatCannotBeEditedOpensNone_data();
    void aFieldThatCannotBeEditedOpensNone();
    void theProgramChoosesTheKeypad_data();
    void theProgramChoosesTheKeypad();
    void theProgramWantsNoKeypad();
    void editTellsWhetherTheFieldWasWritten();
    void aFieldMayDieWhileItsKeypadIsOpen();
};

void tst_OtherFields::aDateOrTimeIsTaken_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("opens");
    QTest::addColumn<QString>("limits");
    QTest::addColumn<QDateTime>("value");
    for (const QString &name : programLocales()) {
        QTest::newRow(qPrintable(u("date, ") + name))
            << name << 0 << u("2023-05-17") << u("2023-01-01 ... 2024-12-31")
            << QDateTime(QDate(2024, 5, 17), QTime(0, 0));
        QTest::newRow(qPrintable(u("time, ") + name))
            << name << 1 << u("12:30:45") << QString()
            << QDateTime(QDate(2000, 1, 1), QTime(13, 30, 45));
    }
}

void tst_OtherFields::aDateOrTimeIsTaken()
{
    QFETCH(QString, locale);
    QFETCH(int, field);
    QFETCH(QString, opens);
    QFETCH(QString, limits);
    QFETCH(QDateTime, value);
    const DefaultLocale inLocale(locale);
    FieldWindow window(dateTimeFields[field](), "dateTimeChanged(QDateTime) editingFinished()");
    CHECKED(Operator::withKeypad([&] { Operator::tap(tappedPart(window.field)); },
                                 Entries() <<
                                     [&] {
                                         QVERIFY(Operator::keypad()->inherits("DateTimeKeypad"));
                                         QCOMPARE(editLine(Operator::keypad())->text(), opens);
                                         const QLabel *limitLine = qobject_cast<QLabel *>(
                                             Operator::keypad()->layout()->menuBar());
                                         QCOMPARE(limitLine ? limitLine->text() : QString(),
                                                  limits);
                                         QCOMPARE(window.log.names(), QString());
                                         CHECKED(Operator::tapKeys("+ Ok"));
                                     }));
    QCOMPARE(qobject_cast<QDateTimeEdit *>(window.field)->dateTime(), value);
    QCOMPARE(window.log.names(), u("dateTimeChanged editingFinished"));
    QVERIFY(window.field->hasFocus());
}

void tst_OtherFields::aDateOutOfLimitsReopensTheKeypad()
{
    FieldWindow window(dateTime(), "dateTimeChanged(QDateTime) editingFinished()");
    CHECKED(Operator::withKeypad([&] { Operator::tap(tappedPart(window.field)); },
                                 Entries() <<
                                     [] {
                                         CHECKED(Operator::tapKeys("+ Ok"));
                                     } <<
                                     [&] {
                                         QCOMPARE(editLine(Operator::keypad())->text(),
                                                  u("2024-05-17 12:30:45"));
                                         QCOMPARE(window.log.names(), QString());
                                         CHECKED(Operator::tapKeys("Cancel"));
                                     }));
    QCOMPARE(qobject_cast<QDateTimeEdit *>(window.field)->dateTime(), noon());
    QCOMPARE(window.log.names(), QString());
}

void tst_OtherFields::cancelLeavesADateAsItIs_data()
{
    QTest::addColumn<int>("field");
    QTest::newRow("date") << 0;
    QTest::newRow("time") << 1;
    QTest::newRow("date and time") << 2;
}

void tst_OtherFields::cancelLeavesADateAsItIs()
{
    QFETCH(int, field);
    FieldWindow window(dateTimeFields[field](), "dateTimeChanged(QDateTime) editingFinished()");
    const QString shown = window.field->property("text").toString();
    CHECKED(Operator::withKeypad([&] { Operator::tap(tappedPart(window.field)); },
                                 Entries() << [] { CHECKED(Operator::tapKeys("- Cancel")); }));
    QCOMPARE(window.field->property("text").toString(), shown);
    QCOMPARE(window.log.names(), QString());
}

void tst_OtherFields::anEditableComboBoxFollows_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("an item") << QByteArray("t w o Return") << 1 << u("two") << 2;
    QTest::newRow("a new item") << QByteArray("x y Return") << 2 << u("xy") << 3;
    QTest::newRow("cancel") << QByteArray("t w o Escape") << 0 << u("one") << 2;
}

void tst_OtherFields::anEditableComboBoxFollows()
{
    QFETCH(QByteArray, keys);
    QFETCH(int, index);
    QFETCH(QString, text);
    QFETCH(int, count);
    FieldWindow window(editableChoice());
    window.keypads.setReturnPressed(window.field, true);
    CHECKED(Operator::withKeypad([&] { Operator::tap(tappedPart(window.field)); }, typing(keys)));
    const QComboBox *box = qobject_cast<QComboBox *>(window.field);
    QCOMPARE(box->currentIndex(), index);
    QCOMPARE(box->currentText(), text);
    QCOMPARE(box->count(), count);
}

void tst_OtherFields::aFieldThatCannotBeEditedOpensNone_data()
{
    QTest::addColumn<int>("field");
    const QStringList names =
        labelList("read-only-line read-only-number read-only-date read-only-text "
                  "disabled-number disabled-line fixed-choice");
    for (int i = 0; i < int(names.size()); ++i)
        QTest::newRow(qPrintable(names.at(i))) << i;
}

void tst_OtherFields::aFieldThatCannotBeEditedOpensNone()
{
    QFETCH(int, field);
    FieldWindow window(closedFields[field]());
    QCOMPARE(window.keypads.kind(window.field), FieldKeypads::NoKeypad);
    QVERIFY(!window.keypads.edit(window.field));
    CHECKED(Operator::withoutKeypad([&] {
        Operator::tap(tappedPart(window.field));
        if (QComboBox *box = qobject_cast<QComboBox *>(window.field))
            box->hidePopup();
    }));
}

void tst_OtherFields::theProgramChoosesTheKeypad_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("keypad");
    QTest::newRow("numeric") << int(FieldKeypads::Numeric) << u("numeric")
                             << QByteArray("NumericKeypad");
    QTest::newRow("gcode") << int(FieldKeypads::GCode) << u("gcode") << QByteArray("GCodeKeypad");
    QTest::newRow("axis") << int(FieldKeypads::Axis) << u("axis") << QByteArray("vondKeypad");
    QTest::newRow("character") << int(FieldKeypads::Character) << u("character")
                               << QByteArray("CharacterKeypad");
}

void tst_OtherFields::theProgramChoosesTheKeypad()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    QFETCH(QByteArray, keypad);
    const Operator::Action leaves = [&] {
        QVERIFY(Operator::keypad()->inherits(keypad.constData()));
        CHECKED(Operator::pressHardKey("Escape"));
    };
    FieldWindow byCode(lineEdit());
    byCode.keypads.setKind(byCode.field, FieldKeypads::Kind(kind));
    QCOMPARE(int(byCode.keypads.kind(byCode.field)), kind);
    CHECKED(Operator::withKeypad([&] { Operator::tap(byCode.field); }, Entries() << leaves));

    FieldWindow byForm(lineEdit());
    byForm.field->setProperty("keypad", name);
    QCOMPARE(int(byForm.keypads.kind(byForm.field)), kind);
    CHECKED(Operator::withKeypad([&] { Operator::tap(byForm.field); }, Entries() << leaves));
}

void tst_OtherFields::theProgramWantsNoKeypad()
{
    FieldWindow window(lineEdit());
    window.field->setProperty("keypad", u("none"));
    QCOMPARE(window.keypads.kind(window.field), FieldKeypads::NoKeypad);
    CHECKED(Operator::withoutKeypad([&] { Operator::tap(window.field); }));
    window.keypads.resetKind(window.field);
    QCOMPARE(window.keypads.kind(window.field), FieldKeypads::Character);
    CHECKED(Operator::withKeypad([&] { Operator::tap(window.field); }, typing("Escape")));
}

void tst_OtherFields::editTellsWhetherTheFieldWasWritten()
{
    FieldWindow window(lineEdit());
    bool isWritten = false;
    const Operator::Action opens = [&] {
        isWritten = window.keypads.edit(window.field);
    };
    CHECKED(Operator::withKeypad(opens, typing("8 Return")));
    QVERIFY(isWritten);
    QCOMPARE(window.field->property("text").toString(), u("8"));
    CHECKED(Operator::withKeypad(opens, typing("9 Escape")));
    QVERIFY(!isWritten);
    QCOMPARE(window.field->property("text").toString(), u("8"));
}

void tst_OtherFields::aFieldMayDieWhileItsKeypadIsOpen()
{
    const Factory factories[] = { lineEdit, date, editableChoice };
    for (const Factory factory : factories) {
        FieldWindow window(factory());
        bool isWritten = true;
        CHECKED(Operator::withKeypad([&] { isWritten = window.keypads.edit(window.field); },
                                     Entries() <<
                                         [&] {
                                             delete window.field;
                                             Operator::keypad()->accept();
                                         }));
        QVERIFY(!isWritten);
        QVERIFY(!window.field);
    }
}

QTEST_MAIN(tst_OtherFields)
#include "tst_OtherFields.moc"
