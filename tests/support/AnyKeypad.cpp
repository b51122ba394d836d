// SPDX-License-Identifier: MIT
#include "AnyKeypad.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QPointer>

namespace {

template <class Keypad>
class Adaptor : public AnyKeypad
{
public:
    Adaptor(QWidget *parent, Qt::WindowFlags flags)
        : m_keypad(new Keypad(parent, flags))
    {
    }
    ~Adaptor() override { delete m_keypad; }

    QDialog *dialog() override { return m_keypad; }
    void setObject(QObject *object) override { m_keypad->setObject(object); }
    void setText(const QString &text) override { m_keypad->setText(text); }
    void setMaxLength(int length) override { m_keypad->setMaxLength(length); }
    void setValidator(const QValidator *v) override { m_keypad->setValidator(v); }
    void setPasswordEchoMode(bool on) override { m_keypad->setPasswordEchoMode(on); }

protected:
    QPointer<Keypad> m_keypad; // goes with its parent
};

template <class Keypad>
class FixedFaceAdaptor : public Adaptor<Keypad>
{
public:
    FixedFaceAdaptor(QWidget *parent, Qt::WindowFlags flags)
        : Adaptor<Keypad>(parent, flags)
    {
    }

    void setLimitToolTip(const QString &text) override { this->m_keypad->setLimitToolTip(text); }
};

template <class AdaptorClass>
AnyKeypad *create(QWidget *parent, Qt::WindowFlags flags)
{
    return new AdaptorClass(parent, flags);
}

// clang-format off
const KeypadKind keypadKinds[] = {
    { "NumericKeypad", create<FixedFaceAdaptor<NumericKeypad>>, "Enter", "ESC", "+/-",
      "12.5", "-3", FixedFace | TypesText | TogglesSign },
    { "GCodeKeypad", create<FixedFaceAdaptor<GCodeKeypad>>, "Enter", "ESC", nullptr,
      "G01X5", "M30", FixedFace | TypesText | CoversTarget },
    { "vondKeypad", create<FixedFaceAdaptor<vondKeypad>>, "Enter", "ESC", "-",
      "X12.5", "-Y3", FixedFace | TypesText | TogglesSign },
    { "DateTimeKeypad", create<Adaptor<DateTimeKeypad>>, "Ok", "Cancel", nullptr,
      "2024-02-29 12:34:56", "1999-12-31 23:59:59", 0 },
    { "CharacterKeypad", create<Adaptor<CharacterKeypad>>, "Enter", "Esc", nullptr,
      "abc", "hello world", TypesText }
};
// clang-format on

} // namespace

void AnyKeypad::setLimitToolTip(const QString &)
{
    qFatal("this keypad has no line for limits");
}

void AnyKeypad::confirm()
{
    tap(dialog(), u(currentKind().confirmLabel));
}

void AnyKeypad::cancel()
{
    tap(dialog(), u(currentKind().cancelLabel));
}

void addKeypadRows(int traits)
{
    QTest::addColumn<int>("keypad");
    const int count = int(sizeof(keypadKinds) / sizeof(keypadKinds[0]));
    for (int i = 0; i < count; ++i) {
        if ((keypadKinds[i].traits & traits) == traits)
            QTest::newRow(keypadKinds[i].className) << i;
    }
}

const KeypadKind &currentKind()
{
    QFETCH_GLOBAL(int, keypad);
    return keypadKind(keypad);
}

const KeypadKind &keypadKind(int index)
{
    return keypadKinds[index];
}

AnyKeypad *newKeypad(QWidget *parent, AnyKeypad *)
{
    return currentKind().create(parent, Qt::WindowFlags());
}
