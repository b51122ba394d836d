// SPDX-License-Identifier: MIT
#include "support/KeypadDriver.h"

#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QFontInfo>
#include <QGridLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QSpinBox>
#include <QTranslator>

#include <random>

namespace {

enum { Year, Month, Day, Hour, Minute, Second, FieldCount };
enum { DateLength = 10, TimeLength = 8, DateTimeLength = 19 };

const char shownTime[] = "2024-05-17 08:09:10";
const char valuesOfShownTime[] = "2024 5 17 8 9 10";

const char valid[] = "#ffffff";
const char invalid[] = "#ff9933";

struct FieldRow
{
    const char *name;
    const char *label;
    int row, column; // of the label; the spin box follows it
    int minimum, maximum;
};

const FieldRow fieldRows[FieldCount] = {
    { "year", "year:", 0, 0, 1600, 9999 }, { "month", "month:", 1, 0, 1, 12 },
    { "day", "day:", 2, 0, 1, 28 },        { "hour", "hour:", 0, 2, 0, 24 },
    { "minute", "minute:", 1, 2, 0, 59 },  { "second", "second:", 2, 2, 0, 59 },
};

const char keysInOrder[] = "1 2 3 4 5 6 7 8 9 0 + - Delete Ok Cancel";
const char editingKeys[] = "1 2 3 4 5 6 7 8 9 0 + - Delete";

QStringList words(const QString &text)
{
    return text.split(QLatin1Char(' '));
}

QSpinBox *spinBox(const QWidget *keypad, int field)
{
    return keypad->findChildren<QSpinBox *>().at(field);
}

QVector<int> numbers(const QWidget *keypad)
{
    QVector<int> values;
    for (int i = 0; i < FieldCount; ++i)
        values << spinBox(keypad, i)->value();
    return values;
}

QString values(const QWidget *keypad)
{
    QStringList list;
    for (int number : numbers(keypad))
        list << QString::number(number);
    return list.join(" ");
}

QString enabledFields(const QWidget *keypad)
{
    QStringList names;
    for (int i = 0; i < FieldCount; ++i) {
        if (spinBox(keypad, i)->isEnabled())
            names << fieldRows[i].name;
    }
    return names.join(" ");
}

QStringList fieldLabels(const QWidget *keypad)
{
    QStringList texts;
    for (const QLabel *label : keypad->findChildren<QLabel *>())
        texts << label->text();
    return texts;
}

QString display(const QWidget *keypad)
{
    return editLine(keypad)->text();
}

QString mark(const QWidget *field)
{
    return field->palette().color(QPalette::Active, QPalette::Base).name();
}

// What the keypad is made of, without the parts inside a spin box.
QWidgetList parts(const QWidget *keypad)
{
    QWidgetList widgets;
    for (QObject *child : keypad->children()) {
        if (child->isWidgetType())
            widgets << static_cast<QWidget *>(child);
    }
    return widgets;
}

QLayout *layoutAt(const QWidget *keypad, int position)
{
    return keypad->layout()->itemAt(position)->layout();
}

QString dateText(int year, int month, int day)
{
    return QString("%1-%2-%3")
        .arg(year, 4, 10, QLatin1Char('0'))
        .arg(month, 2, 10, QLatin1Char('0'))
        .arg(day, 2, 10, QLatin1Char('0'));
}

QString timeText(int hour, int minute, int second)
{
    return QString("%1:%2:%3")
        .arg(hour, 2, 10, QLatin1Char('0'))
        .arg(minute, 2, 10, QLatin1Char('0'))
        .arg(second, 2, 10, QLatin1Char('0'));
}

// The same sequence on every machine.
class Random
{
public:
    explicit Random(unsigned seed)
        : m_engine(seed)
    {
    }

    int between(int first, int last)
    {
        return first + int(m_engine() % unsigned(last - first + 1));
    }

    // The parser of Qt 4.8 ends with the year 7999.
    QString date()
    {
        const int year = between(1600, 7999);
        const int month = between(1, 12);
        return dateText(year, month, between(1, QDate(year, month, 1).daysInMonth()));
    }

    QString time()
    {
        const int hour = between(0, 23);
        const int minute = between(0, 59);
        return timeText(hour, minute, between(0, 59));
    }

    QString text(int length)
    {
        if (length == DateLength)
            return date();
        if (length == TimeLength)
            return time();
        const QString day = date();
        return day + QLatin1Char(' ') + time();
    }

private:
    std::mt19937 m_engine;
};

// What clocks on the wall show at this moment, as a value that can be reckoned with.
QDateTime wallClock(const QDateTime &moment)
{
    const QDateTime local = moment.toLocalTime();
    return QDateTime(local.date(), local.time(), Qt::UTC);
}

// The middles of the hours that clocks of this machine's time zone skipped in a year.
QStringList skippedTimes(int year)
{
    QStringList texts;
    QDateTime moment(QDate(year, 1, 1), QTime(0, 0), Qt::UTC);
    while (moment.date().year() == year) {
        const QDateTime next = moment.addSecs(3600);
        const QDateTime before = wallClock(moment).addSecs(3600);
        const int skipped = int(before.secsTo(wallClock(next)));
        if (skipped > 0)
            texts << before.addSecs(skipped / 2).toString("yyyy-MM-dd hh:mm:ss");
        moment = next;
    }
    return texts;
}

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
        return QString("%1 of key %2 (%3), modifiers %4, repeat %5, count %6")
            .arg(event.type() == QEvent::KeyPress ? "press" : "release")
            .arg(event.key())
            .arg(event.text())
            .arg(int(event.modifiers()))
            .arg(event.isAutoRepeat())
            .arg(event.count());
    }
};

// Puts the context in front of every text.
class ContextTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    // Qt 4 asks the first, later ones the second.
    virtual QString translate(const char *context, const char *text, const char *) const
    {
        return QString("%1/%2").arg(context, text);
    }
    virtual QString translate(const char *context, const char *text, const char *, int) const
    {
        return QString("%1/%2").arg(context, text);
    }
};

} // namespace

class tst_DateTimeKeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isAFramelessDialogOfItsOwnClass();
    void partsAreCreatedInMemberOrder();
    void threeLayoutsShareTheHeight();
    void displaySpansTheTenDigits();
    void everyFieldIsInItsCell_data();
    void everyFieldIsInItsCell();
    void cancelIsLaidOutBeforeOk();
    void sizePolicies();
    void fontIs32PixelsHigh();
    void displayIsDisabledAndCentred();
    void partsFitThePanel_data();
    void partsFitThePanel();
    void takesNoColoursOfItsOwn_data();
    void takesNoColoursOfItsOwn();
    void textsAreTranslatedInItsContext();
    void textsAreChinese();

    void fieldsStartAtTheirMinimum_data();
    void fieldsStartAtTheirMinimum();
    void displayStartsEmpty();

    void lengthChoosesTheFormat_data();
    void lengthChoosesTheFormat();
    void lengthLimitsTheDisplay();
    void setObjectKeepsFormatAndEnabling();
    void setObjectResetsTheDisplay();
    void nullObjectKeepsTheTarget();
    void validatorAndEchoModeGoToTheDisplay();

    void dayRangeOfEveryMonth_data();
    void dayRangeOfEveryMonth();
    void dayIsClampedToTheMonth_data();
    void dayIsClampedToTheMonth();
    void hour24ComposesNoTime_data();
    void hour24ComposesNoTime();

    void setTextFillsTheFields_data();
    void setTextFillsTheFields();
    void randomValuesSurviveToOk_data();
    void randomValuesSurviveToOk();
    void daysOfJanuary1600OnAFreshKeypad();
    void timesSkippedSomewhereSurvive_data();
    void timesSkippedSomewhereSurvive();
    void timesSkippedHereSurvive();

    void focusSpinBoxIsTheFieldWithTheFocus();
    void keysWorkOnTheFocusedFieldAlone_data();
    void keysWorkOnTheFocusedFieldAlone();
    void tapsAreKeyPressesOfTheField();
    void keysFollowATapIntoAField();
    void keysTakeNoFocus();
    void keysDoNothingWithoutFocus();
    void slotsDoNothingWithoutSender();
    void tapsNeverLeaveTheRange_data();
    void tapsNeverLeaveTheRange();

    void fieldIsMarked_data();
    void fieldIsMarked();
    void markIsTheActiveBaseAlone_data();
    void markIsTheActiveBaseAlone();
    void finishedEditingTakesTheMarkAway_data();
    void finishedEditingTakesTheMarkAway();

    void okWritesTheDisplay_data();
    void okWritesTheDisplay();
    void okWritesAnyTextProperty();
    void okWithoutTargetKeepsItOpen();
    void okAfterTheTargetIsGoneKeepsItOpen();
    void cancelWritesNothing_data();
    void cancelWritesNothing();
    void returnFinishesTheFieldAndKeepsItOpen();
    void hardKeysGoToTheField();

    void coversTheViewport_data();
    void coversTheViewport();
    void followsTheViewThatIsRegistered();
    void staysWhereItIsWithoutView();

private:
    QSpinBox *field(int number) const { return spinBox(m_keypad, number); }
    void use();
    void open();
    void focus(int number);

    PanelView *m_view;
    DateTimeKeypad *m_keypad;
};

void tst_DateTimeKeypad::init()
{
    m_view = new PanelView(1);
    m_keypad = new DateTimeKeypad(m_view, Qt::WindowFlags());
}

void tst_DateTimeKeypad::cleanup()
{
    delete m_keypad;
    delete m_view;
}

// The days of a fresh keypad end with 28 until a field changes.
void tst_DateTimeKeypad::use()
{
    m_keypad->setText("2000-10-15 12:30:30");
}

void tst_DateTimeKeypad::open()
{
    m_keypad->show();
    QApplication::setActiveWindow(m_keypad);
}

// Comes to a field as the Tab key does: its text is selected.
void tst_DateTimeKeypad::focus(int number)
{
    open();
    field(number)->clearFocus();
    field(number)->setFocus(Qt::TabFocusReason);
    QVERIFY(field(number)->hasFocus());
}

void tst_DateTimeKeypad::isAFramelessDialogOfItsOwnClass()
{
    const DateTimeKeypad keypad(m_view, Qt::WindowStaysOnTopHint);
    QVERIFY(keypad.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(keypad.windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(m_keypad->windowFlags() & Qt::FramelessWindowHint);

    const QMetaObject *meta = keypad.metaObject();
    QCOMPARE(QString(meta->className()), QString("DateTimeKeypad"));
    QVERIFY(meta->indexOfSlot("slot_toolButtonClicked()") >= 0);
    QVERIFY(meta->indexOfSlot("slot_valueChanged(int)") >= 0);
    QVERIFY(meta->indexOfSlot("slot_editingFinished()") >= 0);
    QCOMPARE(meta->indexOfSignal("signal_kTypeKeyPressed(int)"), -1);
}

void tst_DateTimeKeypad::partsAreCreatedInMemberOrder()
{
    QStringList classes;
    for (const QWidget *part : parts(m_keypad)) {
        if (!qobject_cast<const QLabel *>(part))
            classes << part->metaObject()->className();
    }
    QCOMPARE(classes.first(), QString("KeyBoardLineEdit"));
    for (int i = 1; i <= FieldCount; ++i)
        QCOMPARE(classes.at(i), QString("QSpinBox"));
    QCOMPARE(int(classes.count("QSpinBox")), int(FieldCount));
    QCOMPARE(keyLabels(m_keypad), words(keysInOrder));
}

void tst_DateTimeKeypad::threeLayoutsShareTheHeight()
{
    const QVBoxLayout *layout = qobject_cast<QVBoxLayout *>(m_keypad->layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 3);
    const int stretches[] = { 2, 3, 1 };
    m_keypad->show();
    const int shared = m_keypad->height() - 2 * layout->spacing();
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(layout->stretch(i), stretches[i]);
        const int height = layout->itemAt(i)->geometry().height();
        QVERIFY(qAbs(height - shared * stretches[i] / 6) <= 2);
    }
    QVERIFY(qobject_cast<QGridLayout *>(layoutAt(m_keypad, 0)));
    QVERIFY(qobject_cast<QGridLayout *>(layoutAt(m_keypad, 1)));
    QVERIFY(qobject_cast<QHBoxLayout *>(layoutAt(m_keypad, 2)));
    for (const QLayout *each : m_keypad->findChildren<QLayout *>()) {
        int left, top, right, bottom;
        each->getContentsMargins(&left, &top, &right, &bottom);
        QCOMPARE(left + top + right + bottom, 0);
        QCOMPARE(each->spacing(), 1);
    }
}

void tst_DateTimeKeypad::displaySpansTheTenDigits()
{
    QGridLayout *grid = qobject_cast<QGridLayout *>(layoutAt(m_keypad, 0));
    QCOMPARE(grid->count(), 11);
    int row, column, rowSpan, columnSpan;
    grid->getItemPosition(grid->indexOf(editLine(m_keypad)), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(row, 0);
    QCOMPARE(column, 0);
    QCOMPARE(rowSpan, 1);
    QCOMPARE(columnSpan, 10);

    for (int i = 0; i < 10; ++i) {
        QToolButton *digit = key(m_keypad, QString::number((i + 1) % 10));
        QCOMPARE(grid->itemAtPosition(1, i)->widget(), static_cast<QWidget *>(digit));
    }
}

void tst_DateTimeKeypad::everyFieldIsInItsCell_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < FieldCount; ++i)
        QTest::newRow(fieldRows[i].name) << i;
}

void tst_DateTimeKeypad::everyFieldIsInItsCell()
{
    QFETCH(int, number);
    const FieldRow &expected = fieldRows[number];
    const QGridLayout *grid = qobject_cast<QGridLayout *>(layoutAt(m_keypad, 1));
    QCOMPARE(grid->count(), 2 * FieldCount);

    QWidget *widget = grid->itemAtPosition(expected.row, expected.column)->widget();
    const QLabel *label = qobject_cast<QLabel *>(widget);
    QVERIFY(label);
    QCOMPARE(label->text(), QString(expected.label));
    QCOMPARE(grid->itemAtPosition(expected.row, expected.column + 1)->widget(),
             static_cast<QWidget *>(field(number)));
}

void tst_DateTimeKeypad::cancelIsLaidOutBeforeOk()
{
    QStringList labels;
    const QLayout *row = layoutAt(m_keypad, 2);
    for (int i = 0; i < row->count(); ++i)
        labels << qobject_cast<QToolButton *>(row->itemAt(i)->widget())->text();
    QCOMPARE(labels, words("+ - Delete Cancel Ok"));

    m_keypad->show();
    for (int i = 1; i < labels.size(); ++i)
        QVERIFY(key(m_keypad, labels.at(i - 1))->x() < key(m_keypad, labels.at(i))->x());
}

void tst_DateTimeKeypad::sizePolicies()
{
    for (const QWidget *part : parts(m_keypad)) {
        const bool isLabel = qobject_cast<const QLabel *>(part);
        QCOMPARE(part->sizePolicy().horizontalPolicy(),
                 isLabel ? QSizePolicy::Fixed : QSizePolicy::Expanding);
        QCOMPARE(part->sizePolicy().verticalPolicy(), QSizePolicy::Ignored);
    }
}

void tst_DateTimeKeypad::fontIs32PixelsHigh()
{
    const QString family = QFontInfo(QFont("simsun")).family();
    QCOMPARE(m_keypad->font().family(), family);
    QCOMPARE(m_keypad->font().pixelSize(), 32);
    for (const QWidget *part : parts(m_keypad)) {
        QCOMPARE(part->font().family(), family);
        QCOMPARE(part->font().pixelSize(), 32);
    }
}

void tst_DateTimeKeypad::displayIsDisabledAndCentred()
{
    QVERIFY(!editLine(m_keypad)->isEnabled());
    QVERIFY(editLine(m_keypad)->alignment() & Qt::AlignHCenter);
    for (int i = 0; i < FieldCount; ++i)
        QCOMPARE(field(i)->buttonSymbols(), QAbstractSpinBox::NoButtons);
}

void tst_DateTimeKeypad::partsFitThePanel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("480x272") << QSize(480, 272);
    QTest::newRow("640x480") << QSize(640, 480);
    QTest::newRow("800x600") << QSize(800, 600);
}

void tst_DateTimeKeypad::partsFitThePanel()
{
    QFETCH(QSize, size);
    const PanelView view(10, size, PanelView::Frameless);
    m_keypad->show();
    QCOMPARE(m_keypad->size(), size);

    const QWidgetList widgets = parts(m_keypad);
    QCOMPARE(int(widgets.size()), 1 + 2 * FieldCount + 15);
    for (int i = 0; i < widgets.size(); ++i) {
        QVERIFY(m_keypad->rect().contains(widgets.at(i)->geometry()));
        QVERIFY(!widgets.at(i)->size().isEmpty());
        for (int j = 0; j < i; ++j)
            QVERIFY(!widgets.at(i)->geometry().intersects(widgets.at(j)->geometry()));
    }
}

void tst_DateTimeKeypad::takesNoColoursOfItsOwn_data()
{
    QTest::addColumn<int>("deviceType");
    QTest::newRow("type 1") << 1;
    QTest::newRow("type 13") << 13;
}

void tst_DateTimeKeypad::takesNoColoursOfItsOwn()
{
    QFETCH(int, deviceType);
    HMIDeviceInfo::setDeviceInfo(deviceType, QSize(640, 480));
    const DateTimeKeypad keypad(m_view, Qt::WindowFlags());
    QVERIFY(!keypad.testAttribute(Qt::WA_SetPalette));
    for (const QWidget *part : parts(&keypad))
        QVERIFY(!part->testAttribute(Qt::WA_SetPalette));
}

void tst_DateTimeKeypad::textsAreTranslatedInItsContext()
{
    ContextTranslator translator;
    QApplication::installTranslator(&translator);
    const DateTimeKeypad keypad(m_view, Qt::WindowFlags());

    for (const QString &label : words(keysInOrder))
        QVERIFY2(key(&keypad, "DateTimeKeypad/" + label), qPrintable(label));
    for (const FieldRow &row : fieldRows)
        QVERIFY2(fieldLabels(&keypad).contains(QString("DateTimeKeypad/") + row.label), row.label);
}

void tst_DateTimeKeypad::textsAreChinese()
{
    const QString file = QString::fromLocal8Bit(HMI_CHINESE_TRANSLATION);
    if (!QFile::exists(file))
        HMI_SKIP("The translations are not built.");
    QTranslator chinese;
    QVERIFY(chinese.load(file));
    QApplication::installTranslator(&chinese);

    const DateTimeKeypad keypad(m_view, Qt::WindowFlags());
    QCOMPARE(fieldLabels(&keypad), words(u("年： 月： 日： 时： 分： 秒：")));
    QCOMPARE(keyLabels(&keypad), words(u("1 2 3 4 5 6 7 8 9 0 + - 删除 确定 取消")));
}

void tst_DateTimeKeypad::fieldsStartAtTheirMinimum_data()
{
    everyFieldIsInItsCell_data();
}

void tst_DateTimeKeypad::fieldsStartAtTheirMinimum()
{
    QFETCH(int, number);
    QCOMPARE(field(number)->minimum(), fieldRows[number].minimum);
    QCOMPARE(field(number)->maximum(), fieldRows[number].maximum);
    QCOMPARE(field(number)->value(), fieldRows[number].minimum);
    QVERIFY(field(number)->isEnabled());
}

void tst_DateTimeKeypad::displayStartsEmpty()
{
    QCOMPARE(display(m_keypad), QString());
    m_keypad->show();
    QCOMPARE(display(m_keypad), QString());
    field(Second)->setValue(1);
    QCOMPARE(display(m_keypad), QString("1600-01-01 00:00:01"));
}

void tst_DateTimeKeypad::lengthChoosesTheFormat_data()
{
    QTest::addColumn<QStringList>("lengths");
    QTest::addColumn<QString>("enabled");
    QTest::addColumn<QString>("shown");

    const QString date("year month day");
    const QString time("hour minute second");
    const QString all = date + " " + time;
    QTest::newRow("none") << QStringList() << all << shownTime;
    QTest::newRow("10") << words("10") << date << "2024-05-17";
    QTest::newRow("8") << words("8") << time << "08:09:10";
    QTest::newRow("19") << words("19") << all << shownTime;
    QTest::newRow("9") << words("9") << all << "2024-05-1";
    QTest::newRow("0") << words("0") << all << "";
    QTest::newRow("10, then 8") << words("10 8") << time << "08:09:10";
    QTest::newRow("8, then 10") << words("8 10") << date << "2024-05-17";
    QTest::newRow("10, then 19") << words("10 19") << date << shownTime;
    QTest::newRow("8, then 19") << words("8 19") << time << shownTime;
}

void tst_DateTimeKeypad::lengthChoosesTheFormat()
{
    QFETCH(QStringList, lengths);
    for (const QString &length : lengths)
        m_keypad->setMaxLength(length.toInt());
    m_keypad->setText(shownTime);
    QTEST(enabledFields(m_keypad), "enabled");
    QTEST(display(m_keypad), "shown");
    QCOMPARE(values(m_keypad), QString(valuesOfShownTime));
}

void tst_DateTimeKeypad::lengthLimitsTheDisplay()
{
    m_keypad->setMaxLength(TimeLength);
    QCOMPARE(editLine(m_keypad)->maxLength(), int(TimeLength));
    m_keypad->setText("not at all");
    QCOMPARE(display(m_keypad), QString("not at a"));
}

void tst_DateTimeKeypad::setObjectKeepsFormatAndEnabling()
{
    QLabel target;
    m_keypad->setMaxLength(TimeLength);
    key(m_keypad, "7")->setEnabled(false);
    m_keypad->setObject(&target);
    QVERIFY(!key(m_keypad, "7")->isEnabled());
    QCOMPARE(enabledFields(m_keypad), QString("hour minute second"));
    m_keypad->setText(shownTime);
    QCOMPARE(display(m_keypad), QString("08:09:10"));
}

void tst_DateTimeKeypad::setObjectResetsTheDisplay()
{
    QLineEdit target("old");
    m_keypad->setText(shownTime);
    m_keypad->setPasswordEchoMode(true);
    editLine(m_keypad)->setMaxLength(30);
    target.blockSignals(true);
    m_keypad->setObject(&target);
    QCOMPARE(editLine(m_keypad)->echoMode(), QLineEdit::Normal);
    QCOMPARE(editLine(m_keypad)->maxLength(), 32767);
    QCOMPARE(display(m_keypad), QString(shownTime));
    QCOMPARE(target.text(), QString("old"));
    QVERIFY(!target.signalsBlocked());
}

void tst_DateTimeKeypad::nullObjectKeepsTheTarget()
{
    QLabel target;
    m_keypad->setObject(&target);
    m_keypad->setObject(nullptr);
    m_keypad->setText(shownTime);
    CHECKED(tap(m_keypad, "Ok"));
    QCOMPARE(target.text(), QString(shownTime));
}

void tst_DateTimeKeypad::validatorAndEchoModeGoToTheDisplay()
{
    const QIntValidator validator(nullptr);
    m_keypad->setValidator(&validator);
    QCOMPARE(editLine(m_keypad)->validator(), static_cast<const QValidator *>(&validator));
    m_keypad->setValidator(nullptr);
    QVERIFY(!editLine(m_keypad)->validator());

    m_keypad->setPasswordEchoMode(true);
    QCOMPARE(editLine(m_keypad)->echoMode(), QLineEdit::Password);
    m_keypad->setPasswordEchoMode(false);
    QCOMPARE(editLine(m_keypad)->echoMode(), QLineEdit::Normal);
}

void tst_DateTimeKeypad::dayRangeOfEveryMonth_data()
{
    QTest::addColumn<int>("year");
    QTest::newRow("1900, no leap year") << 1900;
    QTest::newRow("2000, a leap year") << 2000;
    QTest::newRow("2023, no leap year") << 2023;
    QTest::newRow("2024, a leap year") << 2024;
}

void tst_DateTimeKeypad::dayRangeOfEveryMonth()
{
    QFETCH(int, year);
    DateTimeKeypad asked(m_view, Qt::WindowFlags());
    for (int month = 12; month >= 1; --month) {
        const int days = QDate(year, month, 1).daysInMonth();
        asked.setSpinBoxDayRange(year, month);
        QCOMPARE(spinBox(&asked, Day)->minimum(), 1);
        QCOMPARE(spinBox(&asked, Day)->maximum(), days);

        field(Year)->setValue(year);
        field(Month)->setValue(month);
        QCOMPARE(field(Day)->minimum(), 1);
        QCOMPARE(field(Day)->maximum(), days);
    }
}

void tst_DateTimeKeypad::dayIsClampedToTheMonth_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("after");

    static const struct
    {
        const char *name, *before;
        int number;
        const char *taps, *after;
    } rows[] = {
        { "January 31 to April", "2024-01-31", Month, "4", "2024-04-30" },
        { "January 31 to February", "2023-01-31", Month, "2", "2023-02-28" },
        { "January 31 to leap February", "2024-01-31", Month, "2", "2024-02-29" },
        { "April 30 to May", "2024-04-30", Month, "5", "2024-05-30" },
        { "one month back from March 31", "2024-03-31", Month, "-", "2024-02-29" },
        { "leap day to 2023", "2024-02-29", Year, "2 0 2 3", "2023-02-28" },
        { "leap day to 1900", "2000-02-29", Year, "1 9 0 0", "1900-02-28" },
        { "leap day to 2000", "2024-02-29", Year, "2 0 0 0", "2000-02-29" },
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.before << row.number << row.taps << row.after;
}

void tst_DateTimeKeypad::dayIsClampedToTheMonth()
{
    QFETCH(QString, before);
    QFETCH(int, number);
    QFETCH(QString, taps);
    m_keypad->setMaxLength(DateLength);
    m_keypad->setText(before);
    focus(number);
    CHECKED(tapAll(m_keypad, taps));
    QTEST(display(m_keypad), "after");
    QCOMPARE(field(Day)->value(), display(m_keypad).right(2).toInt());
}

void tst_DateTimeKeypad::hour24ComposesNoTime_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("shown");
    QTest::newRow("time") << int(TimeLength) << "";
    QTest::newRow("date") << int(DateLength) << "2024-05-17";
    QTest::newRow("date and time") << int(DateTimeLength) << "2024-05-17 00:00:00";
}

void tst_DateTimeKeypad::hour24ComposesNoTime()
{
    QFETCH(int, length);
    QLabel target("old");
    m_keypad->setObject(&target);
    m_keypad->setMaxLength(length);
    m_keypad->setText(shownTime);
    field(Hour)->setValue(24);
    QCOMPARE(field(Hour)->value(), 24);
    QTEST(display(m_keypad), "shown");
    CHECKED(tap(m_keypad, "Ok"));
    QTEST(target.text(), "shown");
}

void tst_DateTimeKeypad::setTextFillsTheFields_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("filled");
    QTest::addColumn<QString>("shown");

    static const struct
    {
        const char *name, *before; // without a text before, the keypad is fresh
        int length;
        const char *text, *filled, *shown;
    } rows[] = {
        { "date", "", 10, "2024-05-17", "2024 5 17 0 0 0", "2024-05-17" },
        { "time", "", 8, "08:09:10", "1900 1 1 8 9 10", "08:09:10" },
        { "date and time", "", 19, shownTime, valuesOfShownTime, shownTime },
        { "without a format", "", 0, shownTime, valuesOfShownTime, shownTime },
        { "leap day", "", 10, "2024-02-29", "2024 2 29 0 0 0", "2024-02-29" },
        { "last second", "", 19, "7999-12-31 23:59:59", "7999 12 31 23 59 59",
          "7999-12-31 23:59:59" },

        { "time where a date is shown", "", 10, "12:34:56", "1900 1 1 12 34 56", "1900-01-01" },
        { "date where a time is shown", "", 8, "2024-05-17", "2024 5 17 0 0 0", "00:00:00" },
        { "date where both are shown", "", 0, "2024-05-17", "2024 5 17 0 0 0",
          "2024-05-17 00:00:00" },
        { "time where both are shown", "", 0, "12:34:56", "1900 1 1 12 34 56",
          "1900-01-01 12:34:56" },
        { "both where a date is shown", "", 10, shownTime, valuesOfShownTime, "2024-05-17" },
        { "both where a time is shown", "", 8, shownTime, valuesOfShownTime, "08:09:10" },

        { "earliest date", "", 10, "1600-01-01", "1600 1 1 0 0 0", "1600-01-01" },
        { "earliest date where both are shown", "", 0, "1600-01-01", "1600 1 1 0 0 0",
          "1600-01-01" },
        { "day 29 of the first month, fresh", "", 10, "1600-01-29", "1600 1 28 0 0 0",
          "1600-01-28" },
        { "day 31 of the first month, fresh", "", 10, "1600-01-31", "1600 1 28 0 0 0",
          "1600-01-28" },
        { "day 31 and a time, fresh", "", 0, "1600-01-31 01:02:03", "1600 1 28 1 2 3",
          "1600-01-28 01:02:03" },
        { "day 31 of the first month, used", shownTime, 10, "1600-01-31", "1600 1 31 0 0 0",
          "1600-01-31" },
        { "day 31 after February", "2023-02-28", 10, "2024-01-31", "2024 1 31 0 0 0",
          "2024-01-31" },
        { "leap day after a year without", "2023-02-28", 10, "2024-02-29", "2024 2 29 0 0 0",
          "2024-02-29" },
        { "February after day 31", "2024-01-31", 10, "2023-02-28", "2023 2 28 0 0 0",
          "2023-02-28" },
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
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.before << row.length << row.text << row.filled << row.shown;
}

void tst_DateTimeKeypad::setTextFillsTheFields()
{
    QFETCH(QString, before);
    QFETCH(int, length);
    QFETCH(QString, text);
    if (!before.isEmpty())
        m_keypad->setText(before);
    if (length)
        m_keypad->setMaxLength(length);
    m_keypad->setText(text);
    QTEST(values(m_keypad), "filled");
    QTEST(display(m_keypad), "shown");
}

void tst_DateTimeKeypad::randomValuesSurviveToOk_data()
{
    QTest::addColumn<int>("length");
    QTest::newRow("date") << int(DateLength);
    QTest::newRow("time") << int(TimeLength);
    QTest::newRow("date and time") << int(DateTimeLength);
}

void tst_DateTimeKeypad::randomValuesSurviveToOk()
{
    QFETCH(int, length);
    QLabel target;
    m_keypad->setObject(&target);
    m_keypad->setMaxLength(length);
    use();
    Random random(20240229);
    QToolButton *ok = key(m_keypad, "Ok");
    for (int i = 0; i < 10000; ++i) {
        const QString text = random.text(length);
        m_keypad->setText(text);
        ok->click();
        QCOMPARE(target.text(), text);
    }
}

void tst_DateTimeKeypad::daysOfJanuary1600OnAFreshKeypad()
{
    for (int day = 1; day <= 31; ++day) {
        DateTimeKeypad keypad(m_view, Qt::WindowFlags());
        keypad.setMaxLength(DateLength);
        keypad.setText(dateText(1600, 1, day));
        QCOMPARE(display(&keypad), dateText(1600, 1, qMin(day, 28)));
    }
}

void tst_DateTimeKeypad::timesSkippedSomewhereSurvive_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("Berlin") << "2024-03-31 02:30:00";
    QTest::newRow("Berlin, first second") << "2024-03-31 02:00:00";
    QTest::newRow("Berlin, last second") << "2024-03-31 02:59:59";
    QTest::newRow("New York") << "2024-03-10 02:30:00";
    QTest::newRow("Sydney") << "2024-10-06 02:30:00";
    QTest::newRow("Lord Howe, half an hour") << "2024-10-06 02:15:00";
    QTest::newRow("Sao Paulo, midnight") << "2018-11-04 00:30:00";
    QTest::newRow("Apia, a day") << "2011-12-30 12:00:00";
}

void tst_DateTimeKeypad::timesSkippedSomewhereSurvive()
{
    QFETCH(QString, text);
    m_keypad->setText(text);
    QCOMPARE(display(m_keypad), text);
    const QString filled = values(m_keypad);

    field(Hour)->stepUp();
    QVERIFY(display(m_keypad) != text);
    field(Hour)->stepDown();
    QCOMPARE(display(m_keypad), text);
    QCOMPARE(values(m_keypad), filled);
}

void tst_DateTimeKeypad::timesSkippedHereSurvive()
{
    QStringList texts;
    for (int year = 1990; year <= 2036; ++year)
        texts << skippedTimes(year);
    if (texts.isEmpty())
        HMI_SKIP("The time zone has no change to summer time.");

    QLabel target;
    m_keypad->setObject(&target);
    use();
    for (const QString &text : texts) {
        m_keypad->setText(text);
        CHECKED(tap(m_keypad, "Ok"));
        QCOMPARE(target.text(), text);
    }
}

void tst_DateTimeKeypad::focusSpinBoxIsTheFieldWithTheFocus()
{
    QVERIFY(!m_keypad->focusSpinBox());
    for (int i = 0; i < FieldCount; ++i) {
        focus(i);
        QCOMPARE(m_keypad->focusSpinBox(), field(i));
    }
    key(m_keypad, "5")->setFocus();
    QVERIFY(!m_keypad->focusSpinBox());
}

void tst_DateTimeKeypad::keysWorkOnTheFocusedFieldAlone_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("filled");

    static const struct
    {
        const char *name;
        int number;
        const char *taps, *filled;
    } rows[] = {
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
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.number << row.taps << row.filled;
}

void tst_DateTimeKeypad::keysWorkOnTheFocusedFieldAlone()
{
    QFETCH(int, number);
    QFETCH(QString, taps);
    m_keypad->setText(shownTime);
    focus(number);
    CHECKED(tapAll(m_keypad, taps));
    QTEST(values(m_keypad), "filled");
}

void tst_DateTimeKeypad::tapsAreKeyPressesOfTheField()
{
    KeyEvents events;
    focus(Year);
    field(Year)->installEventFilter(&events);
    CHECKED(tapAll(m_keypad, editingKeys));

    QStringList expected;
    for (const QString &digit : words("1 2 3 4 5 6 7 8 9 0"))
        expected << KeyEvents::press(Qt::Key_0 + digit.toInt(), digit);
    expected << KeyEvents::press(Qt::Key_Backspace, QString());
    QCOMPARE(events.seen, expected);
}

void tst_DateTimeKeypad::keysFollowATapIntoAField()
{
    m_keypad->setText(shownTime);
    open();
    QLineEdit *text = field(Minute)->findChild<QLineEdit *>();
    QTest::mouseClick(text, Qt::LeftButton, Qt::NoModifier, text->rect().center());
    QCOMPARE(m_keypad->focusSpinBox(), field(Minute));
    CHECKED(tapAll(m_keypad, "Delete 3 4"));
    QCOMPARE(display(m_keypad), QString("2024-05-17 08:34:10"));
}

void tst_DateTimeKeypad::keysTakeNoFocus()
{
    focus(Minute);
    for (const QString &label : words(QString(editingKeys) + " Ok")) {
        CHECKED(tap(m_keypad, label));
        QVERIFY2(field(Minute)->hasFocus(), qPrintable(label));
    }
}

void tst_DateTimeKeypad::keysDoNothingWithoutFocus()
{
    m_keypad->setText(shownTime);
    open();
    if (m_keypad->focusWidget())
        m_keypad->focusWidget()->clearFocus();
    QPalette blue;
    blue.setColor(QPalette::Base, Qt::blue);
    for (int i = 0; i < FieldCount; ++i)
        field(i)->setPalette(blue);

    CHECKED(tapAll(m_keypad, editingKeys));
    QCOMPARE(values(m_keypad), QString(valuesOfShownTime));
    QCOMPARE(display(m_keypad), QString(shownTime));
    for (int i = 0; i < FieldCount; ++i)
        QCOMPARE(mark(field(i)), QColor(Qt::blue).name());
    QVERIFY(m_keypad->isVisible());
}

void tst_DateTimeKeypad::slotsDoNothingWithoutSender()
{
    m_keypad->setText("no time");
    focus(Month);
    QVERIFY(QMetaObject::invokeMethod(m_keypad, "slot_valueChanged", Q_ARG(int, 7)));
    QVERIFY(QMetaObject::invokeMethod(m_keypad, "slot_toolButtonClicked"));
    QVERIFY(QMetaObject::invokeMethod(m_keypad, "slot_editingFinished"));
    QCOMPARE(display(m_keypad), QString("no time"));
    QCOMPARE(field(Day)->maximum(), 28);
    QVERIFY(!field(Month)->testAttribute(Qt::WA_SetPalette));
    QVERIFY(m_keypad->isVisible());
}

void tst_DateTimeKeypad::tapsNeverLeaveTheRange_data()
{
    everyFieldIsInItsCell_data();
}

void tst_DateTimeKeypad::tapsNeverLeaveTheRange()
{
    QFETCH(int, number);
    const QStringList keys = words(editingKeys);
    Random random(1600 + unsigned(number));
    m_keypad->setText("2024-01-31 23:59:59");
    focus(number);
    for (int i = 0; i < 1500; ++i) {
        tap(m_keypad, keys.at(random.between(0, keys.size() - 1)));
        const QVector<int> now = numbers(m_keypad);
        QVERIFY(now.at(number) >= fieldRows[number].minimum);
        QVERIFY(number == Day || now.at(number) <= fieldRows[number].maximum);
        QVERIFY(QDate::isValid(now.at(Year), now.at(Month), now.at(Day)));

        const int hour = now.at(Hour) == 24 ? 0 : now.at(Hour);
        const int minute = now.at(Hour) == 24 ? 0 : now.at(Minute);
        const int second = now.at(Hour) == 24 ? 0 : now.at(Second);
        QCOMPARE(display(m_keypad),
                 dateText(now.at(Year), now.at(Month), now.at(Day)) + " "
                     + timeText(hour, minute, second));
    }
}

void tst_DateTimeKeypad::fieldIsMarked_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("colour");
    for (int i = 0; i < FieldCount; ++i)
        QTest::newRow(fieldRows[i].name) << i << "Delete" << QString() << invalid;

    static const struct
    {
        const char *name;
        int number;
        const char *taps, *text, *colour;
    } rows[] = {
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
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.number << row.taps << row.text << row.colour;
}

void tst_DateTimeKeypad::fieldIsMarked()
{
    QFETCH(int, number);
    QFETCH(QString, taps);
    m_keypad->setText(shownTime);
    focus(number);
    CHECKED(tapAll(m_keypad, taps));
    QTEST(field(number)->text(), "text");
    QTEST(mark(field(number)), "colour");
    for (int i = 0; i < FieldCount; ++i)
        QVERIFY(i == number || mark(field(i)) != invalid);
}

void tst_DateTimeKeypad::markIsTheActiveBaseAlone_data()
{
    QTest::addColumn<QString>("tapped");
    QTest::addColumn<QString>("colour");
    QTest::newRow("invalid") << "Delete" << invalid;
    QTest::newRow("valid") << "+" << valid;
}

void tst_DateTimeKeypad::markIsTheActiveBaseAlone()
{
    QFETCH(QString, tapped);
    QFETCH(QString, colour);
    QPalette expected = field(Month)->palette();
    expected.setColor(QPalette::Text, Qt::red);
    expected.setColor(QPalette::Base, Qt::blue);
    field(Month)->setPalette(expected);
    focus(Month);
    CHECKED(tap(m_keypad, tapped));
    expected.setBrush(QPalette::Active, QPalette::Base, QBrush(QColor(colour)));
    QCOMPARE(field(Month)->palette(), expected);
}

void tst_DateTimeKeypad::finishedEditingTakesTheMarkAway_data()
{
    QTest::addColumn<int>("hardKey");
    QTest::newRow("the focus moves on") << int(Qt::Key_Tab);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_DateTimeKeypad::finishedEditingTakesTheMarkAway()
{
    QFETCH(int, hardKey);
    QPalette red = field(Month)->palette();
    red.setColor(QPalette::Text, Qt::red);
    field(Month)->setPalette(red);
    m_keypad->setText(shownTime);
    focus(Month);
    CHECKED(tapAll(m_keypad, "Delete 0"));
    QCOMPARE(mark(field(Month)), QString(invalid));
    pressHardKey(m_keypad, hardKey);

    QPalette expected = QApplication::palette(field(Month));
    expected.setBrush(QPalette::Active, QPalette::Base, QBrush(Qt::white));
    QCOMPARE(field(Month)->palette(), expected);
    QVERIFY(field(Month)->text().toInt() >= 1);
    QVERIFY(m_keypad->isVisible());
}

void tst_DateTimeKeypad::okWritesTheDisplay_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");

    static const struct
    {
        const char *name;
        int length;
        const char *text, *written;
    } rows[] = {
        { "date", DateLength, "2024-05-17", "2024-05-17" },
        { "time", TimeLength, "08:09:10", "08:09:10" },
        { "date and time", DateTimeLength, shownTime, shownTime },
        { "date of a longer text", DateLength, shownTime, "2024-05-17" },
        { "unparsable", DateLength, "no date", "no date" },
        { "empty", DateLength, "", "" },
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.length << row.text << row.written;
}

void tst_DateTimeKeypad::okWritesTheDisplay()
{
    QFETCH(int, length);
    QFETCH(QString, text);
    QFETCH(QString, written);
    QLineEdit target("old");
    QSignalSpy changes(&target, SIGNAL(textChanged(QString)));
    m_keypad->setObject(&target);
    m_keypad->setMaxLength(length);
    m_keypad->setText(text);
    QCOMPARE(target.text(), QString("old"));

    CHECKED(execWhile(
        m_keypad, [this]() { CHECKED(tap(m_keypad, "Ok")); }, Accepts));
    QCOMPARE(target.text(), written);
    QCOMPARE(int(changes.count()), 1);
}

void tst_DateTimeKeypad::okWritesAnyTextProperty()
{
    QObject target;
    m_keypad->setObject(&target);
    m_keypad->setText(shownTime);
    CHECKED(tap(m_keypad, "Ok"));
    QCOMPARE(target.property("text").toString(), QString(shownTime));
}

void tst_DateTimeKeypad::okWithoutTargetKeepsItOpen()
{
    CHECKED(execWhile(
        m_keypad, [this]() { CHECKED(tap(m_keypad, "Ok")); }, StaysOpen));
}

void tst_DateTimeKeypad::okAfterTheTargetIsGoneKeepsItOpen()
{
    QScopedPointer<QLabel> target(new QLabel);
    m_keypad->setObject(target.data());
    const std::function<void()> loseTheTarget = [&]() {
        target.reset();
        CHECKED(tap(m_keypad, "Ok"));
    };
    CHECKED(execWhile(m_keypad, loseTheTarget, StaysOpen));
}

void tst_DateTimeKeypad::cancelWritesNothing_data()
{
    QTest::addColumn<bool>("bound");
    QTest::addColumn<bool>("byHardKey");
    QTest::newRow("Cancel") << true << false;
    QTest::newRow("Cancel without a target") << false << false;
    QTest::newRow("Escape") << true << true;
}

void tst_DateTimeKeypad::cancelWritesNothing()
{
    QFETCH(bool, bound);
    QFETCH(bool, byHardKey);
    QLabel target("old");
    if (bound)
        m_keypad->setObject(&target);
    m_keypad->setText(shownTime);

    const std::function<void()> cancel = [&]() {
        if (byHardKey)
            pressHardKey(m_keypad, Qt::Key_Escape);
        else
            CHECKED(tap(m_keypad, "Cancel"));
    };
    CHECKED(execWhile(m_keypad, cancel, Rejects));
    QCOMPARE(target.text(), QString("old"));
}

void tst_DateTimeKeypad::returnFinishesTheFieldAndKeepsItOpen()
{
    QLabel target("old");
    m_keypad->setObject(&target);
    m_keypad->setText(shownTime);
    const std::function<void()> confirmByHardKey = [this]() {
        focus(Year);
        CHECKED(tapAll(m_keypad, "2 0"));
        pressHardKey(m_keypad, Qt::Key_Return);
    };
    CHECKED(execWhile(m_keypad, confirmByHardKey, StaysOpen));
    QCOMPARE(target.text(), QString("old"));
    QCOMPARE(values(m_keypad), QString(valuesOfShownTime));
}

void tst_DateTimeKeypad::hardKeysGoToTheField()
{
    HMIDeviceInfo::setDeviceInfo(13, QSize(640, 480));
    m_keypad->setText(shownTime);
    focus(Month);
    pressHardKey(m_keypad, Qt::Key_Up);
    QCOMPARE(field(Month)->value(), 6);
    pressHardKey(m_keypad, Qt::Key_Down);
    QCOMPARE(field(Month)->value(), 5);
    pressHardKey(m_keypad, Qt::Key_7);
    QCOMPARE(display(m_keypad), QString("2024-07-17 08:09:10"));
    pressHardKey(m_keypad, Qt::Key_F1);
    QVERIFY(m_keypad->isVisible());
}

void tst_DateTimeKeypad::coversTheViewport_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("frame");
    QTest::newRow("480x272") << QSize(480, 272) << int(PanelView::Frameless);
    QTest::newRow("640x480") << QSize(640, 480) << int(PanelView::Frameless);
    QTest::newRow("800x600") << QSize(800, 600) << int(PanelView::Frameless);
    QTest::newRow("640x480 in a frame") << QSize(640, 480) << int(PanelView::Framed);
}

void tst_DateTimeKeypad::coversTheViewport()
{
    QFETCH(QSize, size);
    QFETCH(int, frame);
    const PanelView view(10, size, PanelView::Frame(frame));
    DateTimeKeypad keypad(m_view, Qt::WindowFlags());
    keypad.show();
    QCOMPARE(keypad.geometry(), view.coveredRect());
}

void tst_DateTimeKeypad::followsTheViewThatIsRegistered()
{
    m_keypad->show();
    QCOMPARE(m_keypad->geometry(), m_view->coveredRect());
    m_keypad->hide();
    const PanelView other(10, QSize(480, 272));
    m_keypad->show();
    QCOMPARE(m_keypad->geometry(), other.coveredRect());
}

void tst_DateTimeKeypad::staysWhereItIsWithoutView()
{
    HMIDeviceInfo::setGraphicsView(nullptr);
    m_keypad->resize(300, 200);
    const QRect before = m_keypad->geometry();
    QVERIFY(before.center() != m_view->geometry().center());
    m_keypad->show();
    QCOMPARE(m_keypad->geometry(), before);
}

QTEST_MAIN(tst_DateTimeKeypad)
#include "tst_DateTimeKeypad.moc"
