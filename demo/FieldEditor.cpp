// SPDX-License-Identifier: MIT
#include "FieldEditor.h"

#include "FieldTable.h"
#include "GCodeStandIn.h"
#include "MachineScreen.h"
#include "TouchField.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QKeySequence>
#include <QScopedPointer>
#include <QSpinBox>
#include <QValidator>

namespace {

bool isAcceptable(const QValidator *validator, QString text)
{
    int cursor = 0;
    return !validator || validator->validate(text, cursor) == QValidator::Acceptable;
}

// The validator lives no longer than one entry, and the keypad does not own it.
template <class AnyKeypad>
int exec(AnyKeypad *keypad, const QString &text, const QValidator *validator)
{
    keypad->setValidator(validator);
    keypad->setText(text);
    const int result = keypad->exec();
    keypad->setValidator(nullptr);
    return result;
}

} // namespace

FieldEditor::FieldEditor(MachineScreen *screen)
    : QObject(screen)
    , m_screen(screen)
    , m_editing(false)
{
    connect(screen, SIGNAL(fieldTapped(TouchField *)), SLOT(edit(TouchField *)));
}

void FieldEditor::edit(TouchField *field)
{
    m_editing = true;
    m_screen->showMessage(QString());
    const QString before = field->text();
    const QScopedPointer<QValidator> validator(createValidator(field->rule(), nullptr));
    const int result = runKeypad(field, validator.data());
    m_editing = false;
    if (result != QDialog::Accepted)
        return;

    // A validator refuses what can never become right; too small a number can still be confirmed.
    if (!isAcceptable(validator.data(), field->text())) {
        field->setText(before);
        m_screen->showMessage(
            QString::fromUtf8("不接受 Not accepted. %1").arg(limitText(field->rule())));
        return;
    }
    m_screen->showMessage(QString::fromLatin1("%1 = %2").arg(QString::fromUtf8(field->rule().label),
                                                             field->displayText()));
}

int FieldEditor::runKeypad(TouchField *field, const QValidator *validator)
{
    switch (field->rule().keypad) {
    case Keypad::Number:
        return runKeys(NumericKeypad::instance(), field, field, validator);
    case Keypad::Axis:
        return runKeys(vondKeypad::instance(), field, field, validator);
    case Keypad::GCode: {
        GCodeStandIn standIn(field);
        return runKeys(GCodeKeypad::instance(), &standIn, field, validator);
    }
    case Keypad::Text:
        return runCharacters(field, validator);
    case Keypad::DateTime:
        return runDateTime(field, validator);
    }
    return QDialog::Rejected;
}

// setObject() comes first, because it takes back part of the adjustments. A keypad serves many
// fields and keeps the rest of them, so every adjustment is made for every field.

template <class KeypadWithKeys>
int FieldEditor::runKeys(KeypadWithKeys *keypad, QObject *target, const TouchField *field,
                         const QValidator *validator)
{
    const FieldRule &rule = field->rule();
    connect(keypad, SIGNAL(signal_kTypeKeyPressed(int)), SLOT(showHardKey(int)),
            Qt::UniqueConnection);
    keypad->setObject(target);
    keypad->setDecimalPointEnabled(decimals(rule) > 0);
    keypad->setEditMode(rule.base);
    keypad->setMaxLength(rule.maxLength);
    keypad->setPasswordEchoMode(rule.masked);
    keypad->setLimitToolTip(limitText(rule));
    return exec(keypad, field->text(), validator);
}

int FieldEditor::runCharacters(TouchField *field, const QValidator *validator)
{
    CharacterKeypad *keypad = CharacterKeypad::instance();
    connect(keypad, SIGNAL(signal_kTypeKeyPressed(int)), SLOT(showHardKey(int)),
            Qt::UniqueConnection);
    keypad->setObject(field);
    keypad->setMaxLength(field->rule().maxLength);
    keypad->setPasswordEchoMode(field->rule().masked);
    return exec(keypad, field->text(), validator);
}

int FieldEditor::runDateTime(TouchField *field, const QValidator *validator)
{
    DateTimeKeypad *keypad = DateTimeKeypad::instance();
    keypad->setObject(field);
    // Date and time lock each other's half; a date and time needs both, and unlocks neither.
    const QList<QSpinBox *> parts = keypad->findChildren<QSpinBox *>();
    for (QSpinBox *part : parts)
        part->setEnabled(true);
    keypad->setMaxLength(field->rule().maxLength);
    return exec(keypad, field->text(), validator);
}

void FieldEditor::showHardKey(int key)
{
    m_screen->showMessage(QString::fromUtf8("按键 Hard key %1").arg(QKeySequence(key).toString()));
}
