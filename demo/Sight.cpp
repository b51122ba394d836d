// SPDX-License-Identifier: MIT
#include "Sight.h"

#include "MachineScreen.h"
#include "Operator.h"
#include "Script.h"
#include "TouchField.h"

#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/KeyBoardLineEdit.h>

#include <QGraphicsView>
#include <QStringList>

namespace {

const KeyBoardLineEdit *openEntry()
{
    const QWidget *keypad = Operator::openKeypad();
    return keypad ? keypad->findChild<KeyBoardLineEdit *>() : nullptr;
}

QWidget *findKey(const QString &label)
{
    const QWidget *keypad = Operator::openKeypad();
    return keypad ? Operator::findKey(keypad, label) : nullptr;
}

QString seeEntry(const QString &text)
{
    const KeyBoardLineEdit *entry = openEntry();
    if (!entry)
        return QString::fromLatin1("no keypad is open");
    if (entry->displayText() == text)
        return QString();
    return QString::fromLatin1("the keypad shows \"%1\" instead of \"%2\"")
        .arg(entry->displayText(), text);
}

QString seeMask(const QString &text)
{
    const KeyBoardLineEdit *entry = openEntry();
    if (!entry || entry->text() != text)
        return QString::fromLatin1("the keypad does not hold what was typed");
    if (entry->displayText().contains(text.at(0)))
        return QString::fromLatin1("the keypad shows what it should mask");
    return QString();
}

QString seeKeys(const QStringList &labels)
{
    for (const QString &label : labels) {
        if (!findKey(label))
            return QString::fromLatin1("key \"%1\" is missing").arg(label);
    }
    return QString();
}

QString missKeys(const QStringList &labels)
{
    if (!Operator::openKeypad())
        return QString::fromLatin1("no keypad is open");
    for (const QString &label : labels) {
        if (findKey(label))
            return QString::fromLatin1("key \"%1\" is there").arg(label);
    }
    return QString();
}

QString seeDimmed(const QStringList &labels)
{
    for (const QString &label : labels) {
        const QWidget *key = findKey(label);
        if (!key || key->isEnabled())
            return QString::fromLatin1("key \"%1\" is not dimmed").arg(label);
    }
    return QString();
}

QString seeCover(const QWidget *field, const QGraphicsView *view)
{
    const QWidget *keypad = Operator::openKeypad();
    if (keypad && keypad->size() == field->size()
        && Operator::place(keypad, view) == field->mapTo(view, QPoint(0, 0)))
        return QString();
    return QString::fromLatin1("the keypad does not lie over field \"%1\"")
        .arg(field->objectName());
}

QString seeField(const TouchField *field, const QString &text)
{
    if (Operator::openKeypad())
        return QString::fromLatin1("a keypad is still open over field \"%1\"")
            .arg(field->objectName());
    if (field->text() == text)
        return QString();
    return QString::fromLatin1("field \"%1\" holds \"%2\" instead of \"%3\"")
        .arg(field->objectName(), field->text(), text);
}

QString seeMessage(const QString &message, const QString &text)
{
    if (message.contains(text))
        return QString();
    return QString::fromLatin1("the message is \"%1\", without \"%2\"").arg(message, text);
}

} // namespace

bool Sight::isLook(const Step &step)
{
    return step.action >= Action::SeeEntry;
}

QString Sight::look(const Step &step, const MachineScreen *screen)
{
    const QString subject = QString::fromUtf8(step.subject);
    switch (step.action) {
    case Action::SeeEntry:
        return seeEntry(subject);
    case Action::SeeMask:
        return seeMask(subject);
    case Action::SeeKeys:
        return seeKeys(subject.split(QLatin1Char(' ')));
    case Action::MissKeys:
        return missKeys(subject.split(QLatin1Char(' ')));
    case Action::SeeDimmed:
        return seeDimmed(subject.split(QLatin1Char(' ')));
    case Action::SeeCover:
        return seeCover(screen->field(subject), HMIDeviceInfo::graphicsView());
    case Action::SeeField:
        return seeField(screen->field(subject), QString::fromUtf8(step.value));
    case Action::SeeMessage:
        return seeMessage(screen->message(), subject);
    case Action::OpenPage:
    case Action::TapField:
    case Action::TapPart:
    case Action::TapKeys:
    case Action::PressKeys:
        break;
    }
    return QString::fromLatin1("this step does not look at anything");
}
