// SPDX-License-Identifier: MIT
#include "DateTimeKeypad.h"

#include "FittedLabel_p.h"
#include "HMIDeviceInfo.h"
#include "KeyBoardLineEdit.h"
#include "KeyButton_p.h"
#include "KeypadFont_p.h"
#include "KeypadLook_p.h"
#include "KeypadRules_p.h"
#include "LabelSizes_p.h"
#include "QtDifferences_p.h"

#include <QColor>
#include <QCoreApplication>
#include <QDateTime>
#include <QGraphicsView>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QList>
#include <QLocale>
#include <QPalette>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const int dateLength = 10;
const int timeLength = 8;
const char dateFormat[] = "yyyy-MM-dd";
const char timeFormat[] = "hh:mm:ss";
const char dateTimeFormat[] = "yyyy-MM-dd hh:mm:ss";

const QRgb white = qRgb(255, 255, 255);
const QRgb invalidColour = qRgb(255, 153, 51); // orange

// clang-format off
// The hour reaches 24, which composes no time: the display is then empty, or shows midnight with a
// date.
const struct
{
    Keypad::KeyLabel name;
    Keypad::KeyLabel label;
    signed char row, column; // of the label; the spin box follows it
    short minimum, maximum;
} fieldCells[] = {
    { "year",   QT_TRANSLATE_NOOP("DateTimeKeypad", "year:"),   0, 0, 1600, 9999 },
    { "month",  QT_TRANSLATE_NOOP("DateTimeKeypad", "month:"),  1, 0,    1,   12 },
    { "day",    QT_TRANSLATE_NOOP("DateTimeKeypad", "day:"),    2, 0,    1,   28 },
    { "hour",   QT_TRANSLATE_NOOP("DateTimeKeypad", "hour:"),   0, 2,    0,   24 },
    { "minute", QT_TRANSLATE_NOOP("DateTimeKeypad", "minute:"), 1, 2,    0,   59 },
    { "second", QT_TRANSLATE_NOOP("DateTimeKeypad", "second:"), 2, 2,    0,   59 }
};

constexpr Keypad::KeyLabel digitLabels[] = {
    QT_TRANSLATE_NOOP("DateTimeKeypad", "1"), QT_TRANSLATE_NOOP("DateTimeKeypad", "2"),
    QT_TRANSLATE_NOOP("DateTimeKeypad", "3"), QT_TRANSLATE_NOOP("DateTimeKeypad", "4"),
    QT_TRANSLATE_NOOP("DateTimeKeypad", "5"), QT_TRANSLATE_NOOP("DateTimeKeypad", "6"),
    QT_TRANSLATE_NOOP("DateTimeKeypad", "7"), QT_TRANSLATE_NOOP("DateTimeKeypad", "8"),
    QT_TRANSLATE_NOOP("DateTimeKeypad", "9"), QT_TRANSLATE_NOOP("DateTimeKeypad", "0")
};
// clang-format on

QDateTime joined(const QDate &date, const QTime &time)
{
    return date.isValid() && time.isValid() ? QDateTime(date, time, Qt::UTC) : QDateTime();
}

// Date and time are read apart and joined in UTC: as one local time, an hour that a change to
// summer time skips could be neither read nor shown.
QDateTime parsed(const QString &text)
{
    const QString ofDate = QLatin1String(dateFormat);
    const QString ofTime = QLatin1String(timeFormat);
    if (text.length() == dateLength)
        return joined(QDate::fromString(text, ofDate), QTime(0, 0));
    if (text.length() == timeLength)
        return joined(QDate(1900, 1, 1), QTime::fromString(text, ofTime));
    if (text.mid(dateLength, 1) != QLatin1String(" "))
        return QDateTime();
    return joined(QDate::fromString(text.left(dateLength), ofDate),
                  QTime::fromString(text.mid(dateLength + 1), ofTime));
}

int daysIn(int year, int month)
{
    switch (month) {
    case 2:
        return year % 4 != 0 || (year % 100 == 0 && year % 400 != 0) ? 28 : 29;
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    default:
        return 31;
    }
}

void setActiveBase(QWidget *field, QPalette palette, const QColor &colour)
{
    palette.setColor(QPalette::Active, QPalette::Base, colour);
    field->setPalette(palette);
}

} // namespace

DateTimeKeypad *DateTimeKeypad::m_instance = nullptr;

DateTimeKeypad *DateTimeKeypad::instance()
{
    if (!m_instance)
        m_instance = new DateTimeKeypad(HMIDeviceInfo::graphicsView(), Qt::WindowFlags());
    return m_instance;
}

DateTimeKeypad::DateTimeKeypad(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::FramelessWindowHint)
    , m_formatLength(0)
{
    const QFont font = Keypad::setDialogFont(this, Keypad::manyKeysPoints);
    setUpDisplay();
    setUpFields();
    setUpButtons();

    QVBoxLayout *layout = new QVBoxLayout(this);
    Keypad::setUpLayout(layout, Keypad::keySpacing);
    layout->addLayout(displayAndDigits(), 2);
    layout->addLayout(labelledFields(), 3);
    layout->addLayout(commands(), 1);
    Keypad::setPartFonts(this, font);
}

DateTimeKeypad::~DateTimeKeypad() = default;

void DateTimeKeypad::setObject(QObject *object)
{
    Keypad::bindTarget(object, &m_object, this, m_lineEdit, Keypad::KeepKeys);
}

void DateTimeKeypad::setMaxLength(int length)
{
    m_lineEdit->setMaxLength(length);
    m_formatLength = length;
    if (length != dateLength && length != timeLength)
        return;
    for (int i = 0; i < FieldCount; ++i)
        m_fields[i]->setEnabled((i < Hour) == (length == dateLength));
}

void DateTimeKeypad::setValidator(const QValidator *validator)
{
    m_lineEdit->setValidator(validator);
}

void DateTimeKeypad::setPasswordEchoMode(bool on)
{
    Keypad::setPasswordEcho(m_lineEdit, on);
}

void DateTimeKeypad::setText(const QString &text)
{
    m_lineEdit->clear();
    m_lineEdit->setText(text);

    const QDateTime value = parsed(text);
    const QDate date = value.date();
    const QTime time = value.time();
    m_fields[Year]->setValue(date.year());
    m_fields[Month]->setValue(date.month());
    m_fields[Day]->setValue(date.day());
    m_fields[Hour]->setValue(time.hour());
    m_fields[Minute]->setValue(time.minute());
    m_fields[Second]->setValue(time.second());
}

void DateTimeKeypad::setSpinBoxDayRange(int year, int month)
{
    const int days = daysIn(year, month);
    // Setting the same range once more would lay out the keypad at every key.
    if (m_fields[Day]->minimum() != 1 || m_fields[Day]->maximum() != days)
        m_fields[Day]->setRange(1, days);
}

QSpinBox *DateTimeKeypad::focusSpinBox()
{
    for (QSpinBox *field : m_fields) {
        if (field->hasFocus())
            return field;
    }
    return nullptr;
}

void DateTimeKeypad::showEvent(QShowEvent *event)
{
    focusEnabledField();
    if (Keypad::coverView(this))
        QDialog::showEvent(event);
}

void DateTimeKeypad::slot_toolButtonClicked()
{
    const QObject *button = sender();
    if (!button)
        return;
    if (button == m_cancelButton)
        reject();
    else if (button == m_okButton)
        Keypad::confirm(this, m_object, m_lineEdit);
    else if (QSpinBox *field = focusSpinBox())
        edit(field, button);
}

void DateTimeKeypad::slot_valueChanged(int)
{
    if (!sender())
        return;
    setSpinBoxDayRange(m_fields[Year]->value(), m_fields[Month]->value());
    const QString text = composedText();
    m_lineEdit->clear();
    // A slot on textChanged() may have set a field meanwhile, whose value is shown already.
    if (composedText() == text)
        m_lineEdit->setText(text);
}

void DateTimeKeypad::slot_editingFinished()
{
    if (QSpinBox *field = qobject_cast<QSpinBox *>(sender()))
        setActiveBase(field, QPalette(), white);
}

void DateTimeKeypad::setUpDisplay()
{
    m_lineEdit = new KeyBoardLineEdit(this);
    m_lineEdit->setObjectName(QLatin1String(Keypad::editLineName));
    m_lineEdit->setEnabled(false);
    m_lineEdit->setAlignment(Qt::AlignCenter);
    m_lineEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
}

void DateTimeKeypad::setUpFields()
{
    for (int i = 0; i < FieldCount; ++i) {
        QSpinBox *field = new QSpinBox(this);
        field->setObjectName(QLatin1String(fieldCells[i].name) + QLatin1String("Field"));
        QtDifferences::setAccessibleName(field, tr(fieldCells[i].label));
        field->setLocale(QLocale::c());
        field->setButtonSymbols(QAbstractSpinBox::NoButtons);
        field->setRange(fieldCells[i].minimum, fieldCells[i].maximum);
        field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
        connect(field, SIGNAL(valueChanged(int)), this, SLOT(slot_valueChanged(int)));
        connect(field, SIGNAL(editingFinished()), this, SLOT(slot_editingFinished()));
        m_fields[i] = field;
    }
}

void DateTimeKeypad::setUpButtons()
{
    for (int i = 0; i < DigitCount; ++i)
        m_digitButtons[i] = createButton(digitLabels[i], Keypad::InsertLabel);
    m_plusButton = createButton(QT_TR_NOOP("+"), Keypad::InsertLabel);
    m_minusButton = createButton(QT_TR_NOOP("-"), Keypad::InsertLabel);
    QtDifferences::setAccessibleName(m_plusButton,
                                     QCoreApplication::translate("Keypad", "Increase"));
    QtDifferences::setAccessibleName(m_minusButton,
                                     QCoreApplication::translate("Keypad", "Decrease"));
    m_deleteButton = createButton(QT_TR_NOOP("Delete"), Keypad::Backspace);
    m_okButton = createButton(QT_TR_NOOP("Ok"), Keypad::Confirm);
    m_cancelButton = createButton(QT_TR_NOOP("Cancel"), Keypad::Cancel);
}

QToolButton *DateTimeKeypad::createButton(const char *label, int action)
{
    QToolButton *button = new Keypad::KeyButton(this);
    button->setText(tr(label));
    Keypad::nameKey(button, Keypad::KeyAction(action), QLatin1String(label));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    connect(button, SIGNAL(clicked()), this, SLOT(slot_toolButtonClicked()));
    return button;
}

QLayout *DateTimeKeypad::displayAndDigits()
{
    QGridLayout *grid = new QGridLayout;
    grid->setSpacing(Keypad::keySpacing);
    grid->addWidget(m_lineEdit, 0, 0, 1, DigitCount);
    for (int i = 0; i < DigitCount; ++i)
        grid->addWidget(m_digitButtons[i], 1, i);
    return grid;
}

QLayout *DateTimeKeypad::labelledFields()
{
    QGridLayout *grid = new QGridLayout;
    grid->setSpacing(Keypad::keySpacing);
    QList<Keypad::SizedLabel *> labels;
    for (int i = 0; i < FieldCount; ++i) {
        Keypad::FittedLabel<QLabel> *label = new Keypad::FittedLabel<QLabel>(
            tr(fieldCells[i].label), this, Keypad::anyWidth, Keypad::oneLine);
        label->setObjectName(QLatin1String(fieldCells[i].name) + QLatin1String("Label"));
        label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
        label->setMinimumWidth(1); // for the policy would take the room that a value needs
        labels << label;
        grid->addWidget(label, fieldCells[i].row, fieldCells[i].column);
        grid->addWidget(m_fields[i], fieldCells[i].row, fieldCells[i].column + 1);
    }
    Keypad::shareLabelSizes(labels);
    return grid;
}

QLayout *DateTimeKeypad::commands()
{
    QHBoxLayout *row = new QHBoxLayout;
    row->setSpacing(Keypad::keySpacing);
    row->addWidget(m_plusButton);
    row->addWidget(m_minusButton);
    row->addWidget(m_deleteButton);
    row->addWidget(m_cancelButton);
    row->addWidget(m_okButton);
    return row;
}

// The field that had the focus at the last use may have been disabled since, by another format. At
// the first use nothing has had it, and Qt gives it to the first enabled field.
void DateTimeKeypad::focusEnabledField()
{
    const QWidget *last = focusWidget();
    if (!last || (last->isEnabled() && qobject_cast<const QSpinBox *>(last)))
        return;
    for (QSpinBox *field : m_fields) {
        if (field->isEnabled()) {
            field->setFocus();
            return;
        }
    }
}

QString DateTimeKeypad::composedText() const
{
    const QDate date(m_fields[Year]->value(), m_fields[Month]->value(), m_fields[Day]->value());
    const QTime time(m_fields[Hour]->value(), m_fields[Minute]->value(), m_fields[Second]->value());
    const QLocale locale = QLocale::c(); // the digits of the keys, wherever the panel stands
    switch (m_formatLength) {
    case timeLength:
        return locale.toString(time, QLatin1String(timeFormat));
    case dateLength:
        return locale.toString(date, QLatin1String(dateFormat));
    default:
        return locale.toString(QDateTime(date, time, Qt::UTC), QLatin1String(dateTimeFormat));
    }
}

void DateTimeKeypad::edit(QSpinBox *field, const QObject *button)
{
    if (button == m_deleteButton) {
        pressKey(field, Qt::Key_Backspace, QString());
    } else if (button == m_plusButton) {
        field->stepUp();
    } else if (button == m_minusButton) {
        field->stepDown();
    } else {
        QToolButton *const *end = m_digitButtons + DigitCount;
        QToolButton *const *place = std::find<QToolButton *const *>(m_digitButtons, end, button);
        if (place == end)
            return;
        const int digit = int(place - m_digitButtons + 1) % 10;
        pressKey(field, Qt::Key_0 + digit, QString::number(digit));
    }
    setActiveBase(field, field->palette(), QColor(isValid(field) ? white : invalidColour));
}

void DateTimeKeypad::pressKey(QSpinBox *field, int key, const QString &text)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(field, &event);
}

bool DateTimeKeypad::isValid(const QSpinBox *field) const
{
    bool isNumber = false;
    const int number = field->text().toInt(&isNumber);
    if (field == m_fields[Year])
        return isNumber && number >= field->minimum();
    if (field == m_fields[Month] || field == m_fields[Day])
        return isNumber && number != 0;
    return isNumber;
}
