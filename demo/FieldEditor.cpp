// SPDX-License-Identifier: MIT
#include "FieldEditor.h"

#include "FieldTable.h"
#include "GCodeStandIn.h"
#include "MachineScreen.h"
#include "TouchField.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/KeyBoardLineEdit.h>
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

} // namespace

FieldEditor::FieldEditor(MachineScreen *screen)
    : QObject(screen)
    , m_screen(screen)
    , m_editing(false)
{
    connect(&m_watch, SIGNAL(told(QString)), SIGNAL(told(QString)));
    connect(screen, SIGNAL(fieldTapped(TouchField *)), SLOT(edit(TouchField *)));
}

void FieldEditor::edit(TouchField *field)
{
    m_editing = true;
    m_screen->showMessage(QString());
    const QString before = field->text();
    const QScopedPointer<QValidator> validator(createValidator(field->rule(), nullptr));
    const bool written = runKeypad(field, validator.data());
    m_editing = false;
    if (!written)
        return;

    // A validator refuses what can never become right; too small a number can still be confirmed.
    if (!isAcceptable(validator.data(), field->text())) {
        field->setText(before);
        m_watch.tellText(*field);
        m_screen->showMessage(
            QString::fromUtf8("不接受 Not accepted. %1").arg(limitText(field->rule())));
        return;
    }
    m_screen->showMessage(QString::fromLatin1("%1 = %2").arg(QString::fromUtf8(field->rule().label),
                                                             field->displayText()));
}

bool FieldEditor::runKeypad(TouchField *field, const QValidator *validator)
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
    return false;
}

// The validator lives no longer than one entry, and the keypad does not own it.
template <class AnyKeypad>
bool FieldEditor::exec(AnyKeypad *keypad, const TouchField *field, const QObject *target,
                       const QValidator *validator)
{
    m_watch.watch(keypad);
    keypad->setValidator(validator);
    keypad->setText(field->text());
    const int result = keypad->exec();
    m_watch.tellResult(keypad, result);
    keypad->setValidator(nullptr);
    if (result != QDialog::Accepted)
        return false;
    const KeyBoardLineEdit *entry = keypad->template findChild<KeyBoardLineEdit *>();
    if (m_watch.tellWritten(*field, *target, entry->text()))
        return true;
    m_screen->showMessage(
        QString::fromUtf8("未写入 Not written: %1").arg(QString::fromUtf8(field->rule().label)));
    return false;
}

// setObject() comes first, because it takes back part of the adjustments. A keypad serves many
// fields and keeps the rest of them, so every adjustment is made for every field.

template <class KeypadWithKeys>
bool FieldEditor::runKeys(KeypadWithKeys *keypad, QObject *target, const TouchField *field,
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
    return exec(keypad, field, target, validator);
}

bool FieldEditor::runCharacters(TouchField *field, const QValidator *validator)
{
    CharacterKeypad *keypad = CharacterKeypad::instance();
    connect(keypad, SIGNAL(signal_kTypeKeyPressed(int)), SLOT(showHardKey(int)),
            Qt::UniqueConnection);
    keypad->setObject(field);
    keypad->setMaxLength(field->rule().maxLength);
    keypad->setPasswordEchoMode(field->rule().masked);
    return exec(keypad, field, field, validator);
}

bool FieldEditor::runDateTime(TouchField *field, const QValidator *validator)
{
    DateTimeKeypad *keypad = DateTimeKeypad::instance();
    keypad->setObject(field);
    // Date and time lock each other's half; a date and time needs both, and unlocks neither.
    const QList<QSpinBox *> parts = keypad->findChildren<QSpinBox *>();
    for (QSpinBox *part : parts)
        part->setEnabled(true);
    keypad->setMaxLength(field->rule().maxLength);
    return exec(keypad, field, field, validator);
}

void FieldEditor::showHardKey(int key)
{
    m_screen->showMessage(QString::fromUtf8("按键 Hard key %1").arg(QKeySequence(key).toString()));
}
