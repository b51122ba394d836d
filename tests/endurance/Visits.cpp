// SPDX-License-Identifier: MIT
#include "Visits.h"

#include "support/Text.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/ClickLabel.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QGraphicsView>
#include <QIntValidator>
#include <QStringList>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include <cstdlib>

namespace {

// clang-format off
const Visit visits[] = {
    { Visit::Numeric,    1, "12.5", "1 2 . 7 5 +/- Enter",    0, "-12.75", 10, 0 },
    { Visit::Numeric,   13, "-3",   "7 BSP ←",      Qt::Key_F5, "-3",     10, 8 },
    { Visit::Numeric,    1, "1F",   "A F 0 Enter",            0, "AF0",    16, 4 },
    { Visit::Numeric,    1, "101",  "1 0 0 1",   Qt::Key_Enter, "1001",    2, 8 },
    { Visit::GCode,      1, "",     "G 0 1 X - 5 Enter",      0, "G01X-5", 10, 0 },
    { Visit::GCode,     13, "M30",  "G 2",          Qt::Key_F1, "M30",     10, 0 },
    { Visit::Axis,       1, "X1",   "Y 2 . 5 - Enter",        0, "-Y2.5",  10, 0 },
    { Visit::Axis,      13, "X1",   "Z 9",      Qt::Key_Escape, "X1",      10, 6 },
    { Visit::DateTime,   1, "2024-02-29", "+ + Ok",           0, "2026-02-28", 0, 10 },
    { Visit::DateTime,   1, "12:34:56", "1 Cancel",           0, "12:34:56", 0, 8 },
    { Visit::Character,  1, "abc",  "caps H CAPS i *# - << 1 Enter", 0, "Hi-1", 0, 0 },
    { Visit::Character, 13, "abc",  "x y Del",      Qt::Key_F2, "abc",      0, 0 },
    { Visit::Character,  1, "",     "CN n i > < 1st h a o 2nd EN Enter", 0, "你号", 0, 0 },
    { Visit::Character,  1, "",     "CN z h u z h o u Del Del Del Del EN q",
      Qt::Key_Return, "q", 0, 4 },
    { Visit::Character,  1, "主",   "CN z h u 1st n i *# + << h a o 1st EN Esc", 0, "主", 0, 0 },
    { Visit::Character, 13, "",     "CN l v 1st EN",       Qt::Key_Return, "绿", 0, 0 },
};
// clang-format on

void refuse(const QString &reason)
{
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    std::exit(2);
}

template <class Keypad>
void adjustFace(Keypad *keypad, const Visit &visit)
{
    keypad->setEditMode(visit.editMode);
    keypad->setDecimalPointEnabled(visit.editMode == 10);
    keypad->setLimitToolTip(visit.maxLength > 0 ? QString::number(visit.maxLength) : QString());
}

void adjustFace(DateTimeKeypad *, const Visit &)
{
}
void adjustFace(CharacterKeypad *, const Visit &)
{
}

QWidget *shownKey(const QWidget *keypad, const QString &label)
{
    static const QString candidates[] = { u("1st"), u("2nd") };
    for (int i = 0; i < 2; ++i) {
        if (label == candidates[i])
            return keypad->findChildren<ClickLabel *>().value(i);
    }
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (QToolButton *key : keys) {
        if (key->text() == label && key->isVisible())
            return key;
    }
    refuse(u("no key \"%1\"").arg(label));
    return nullptr;
}

} // namespace

int visitCount()
{
    return int(sizeof(visits) / sizeof(visits[0]));
}

const Visit &visitAt(int index)
{
    return visits[index];
}

void Operator::fillIn(const Visit &visit, bool isPainted)
{
    m_visit = &visit;
    m_isPainted = isPainted;
    if (m_source == BareDialogs)
        return openBareDialog();
    HMIDeviceInfo::setDeviceInfo(DeviceType(visit.panelType), QSize());
    switch (visit.kind) {
    case Visit::Numeric:
        return use<NumericKeypad>();
    case Visit::GCode:
        return use<GCodeKeypad>();
    case Visit::Axis:
        return use<vondKeypad>();
    case Visit::DateTime:
        return use<DateTimeKeypad>();
    case Visit::Character:
        return use<CharacterKeypad>();
    }
}

void Operator::openBareDialog()
{
    QScopedPointer<QDialog> &dialog = m_bareDialogs[m_visit->kind];
    if (!dialog) {
        dialog.reset(new QDialog(HMIDeviceInfo::graphicsView()));
        new QLineEdit(dialog.data());
    }
    m_keypad = dialog.data();
    QTimer::singleShot(0, this, SLOT(work()));
    dialog->exec();
}

template <class Keypad>
void Operator::use()
{
    if (m_source == KeptKeypads) {
        open(Keypad::instance());
    } else {
        const QScopedPointer<Keypad> keypad(
            new Keypad(HMIDeviceInfo::graphicsView(), Qt::WindowFlags()));
        open(keypad.data());
    }
}

// Binds other fields first, one of which goes.
template <class Keypad>
void Operator::open(Keypad *keypad)
{
    m_keypad = keypad;
    keypad->setUpdatesEnabled(m_isPainted);
    QLineEdit &field = m_fields[m_visit->kind % 3];
    field.setText(u(m_visit->text));
    keypad->setObject(&m_fields[(m_visit->kind + 1) % 3]);
    {
        QLineEdit goesSoon;
        keypad->setObject(&goesSoon);
    }
    keypad->setObject(&field);
    adjustFace(keypad, *m_visit);
    QIntValidator validator(0, 9);
    keypad->setValidator(&validator);
    keypad->setValidator(nullptr);
    keypad->setPasswordEchoMode(m_visit->maxLength > 0);
    if (m_visit->maxLength > 0)
        keypad->setMaxLength(m_visit->maxLength);
    keypad->setText(field.text());
    QTimer::singleShot(0, this, SLOT(work()));
    keypad->exec();
    if (field.text() != u(m_visit->result))
        refuse(u("\"%1\" instead of \"%2\"").arg(field.text(), u(m_visit->result)));
}

void Operator::work()
{
    QApplication::setActiveWindow(m_keypad); // as the windowing system does some time after show
    QApplication::processEvents();
    if (m_source == BareDialogs)
        return m_keypad->accept();
    const QStringList labels = u(m_visit->taps).split(QLatin1Char(' '));
    for (const QString &label : labels)
        QTest::mouseClick(shownKey(m_keypad, label), Qt::LeftButton);
    if (m_visit->hardKey != 0) {
        QWidget *receiver = m_keypad->focusWidget();
        QTest::keyClick(receiver ? receiver : m_keypad, Qt::Key(m_visit->hardKey));
    }
    if (m_keypad->isVisible())
        refuse(u("a keypad stays open after ") + u(m_visit->taps));
}
