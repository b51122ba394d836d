// SPDX-License-Identifier: MIT
#include "KeypadRun_p.h"

#include "KeypadTarget_p.h"
#include "LimitLine_p.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QGraphicsView>
#include <QSpinBox>

namespace Fields {

namespace {

const int leastGCodeHeight = 240; // pixels, below which its keys are too small for a finger

template <class Keypad>
void adjust(Keypad *keypad, const Entry &entry)
{
    keypad->setEditMode(entry.base);
    if (!entry.decimalPoint)
        keypad->setDecimalPointEnabled(false);
    keypad->setLimitToolTip(entry.limits);
}

void adjust(CharacterKeypad *, const Entry &)
{
}

// A format with both halves leaves their fields as the format before had them.
void adjust(DateTimeKeypad *keypad, const Entry &)
{
    const QList<QSpinBox *> fields = keypad->findChildren<QSpinBox *>();
    for (QSpinBox *field : fields)
        field->setEnabled(true);
}

void start(QDialog *)
{
}

// With the first of its fields, not with the one that was left last.
void start(DateTimeKeypad *keypad)
{
    const QList<QSpinBox *> fields = keypad->findChildren<QSpinBox *>();
    for (int i = int(fields.size()) - 1; i >= 0; --i) {
        if (fields.at(i)->isEnabled())
            fields.at(i)->setFocus();
    }
}

// What is done with a keypad of each class.
template <class Keypad>
struct Of
{
    static QDialog *instance() { return Keypad::instance(); }

    static void bind(QObject *target, const Entry &entry)
    {
        Keypad *keypad = Keypad::instance();
        keypad->setObject(target);
        adjust(keypad, entry);
        keypad->setMaxLength(entry.maxLength);
        keypad->setValidator(entry.validator);
        keypad->setPasswordEchoMode(entry.masked);
        keypad->setText(entry.text);
        start(keypad);
    }

    // Leaves nothing of this field for the next, and nothing that will be destroyed.
    static void release()
    {
        Keypad::instance()->setValidator(nullptr);
        adjust(Keypad::instance(), Entry());
    }
};

struct KeypadClass
{
    FieldKeypads::Kind kind;
    bool hasLimitLine;
    const char *name;
    QDialog *(*instance)();
    void (*bind)(QObject *target, const Entry &entry);
    void (*release)();
};

// clang-format off
#define HMI_KEYPAD(Class) #Class, Of<Class>::instance, Of<Class>::bind, Of<Class>::release

const KeypadClass keypadClasses[] = {
    { FieldKeypads::Numeric,   true,  HMI_KEYPAD(NumericKeypad)   },
    { FieldKeypads::GCode,     true,  HMI_KEYPAD(GCodeKeypad)     },
    { FieldKeypads::Axis,      true,  HMI_KEYPAD(vondKeypad)      },
    { FieldKeypads::DateTime,  false, HMI_KEYPAD(DateTimeKeypad)  },
    { FieldKeypads::Character, false, HMI_KEYPAD(CharacterKeypad) }
};
// clang-format on

const KeypadClass *classOf(FieldKeypads::Kind kind)
{
    for (const KeypadClass &keypadClass : keypadClasses) {
        if (keypadClass.kind == kind)
            return &keypadClass;
    }
    return nullptr;
}

// The rectangle that the G-code keypad covers: the lower half of what the others cover, so that the
// lines above the edited one can be read.
QRect gCodePlace()
{
    QRect place = HMIDeviceInfo::graphicsView()->viewport()->geometry();
    const int height = qMax(place.height() / 2, qMin(place.height(), leastGCodeHeight));
    place.setTop(place.bottom() + 1 - height);
    return place;
}

} // namespace

QDialog *keypadOf(FieldKeypads::Kind kind)
{
    const KeypadClass *keypadClass = classOf(kind);
    return keypadClass ? keypadClass->instance() : nullptr;
}

bool isKeypad(const QWidget *window)
{
    for (const KeypadClass &keypadClass : keypadClasses) {
        if (window->inherits(keypadClass.name))
            return true;
    }
    return false;
}

bool runKeypad(FieldKeypads::Kind kind, Entry *entry)
{
    const KeypadClass *keypadClass = classOf(kind);
    QDialog *keypad = keypadClass->instance();
    KeypadTarget target;
    target.setGeometry(gCodePlace()); // the other keypads do not ask for it
    keypadClass->bind(&target, *entry);
    LimitLine limitLine(keypadClass->hasLimitLine ? nullptr : keypad, entry->limits);
    const bool confirmed = keypad->exec() == QDialog::Accepted;
    keypadClass->release();
    if (confirmed)
        entry->text = target.text;
    return confirmed;
}

} // namespace Fields
