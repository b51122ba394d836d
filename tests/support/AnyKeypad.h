// SPDX-License-Identifier: MIT
#ifndef ANYKEYPAD_H
#define ANYKEYPAD_H

#include "KeypadStage.h"

class QValidator;

// All five keypads as one, for tests of what they have in common.

// What an application calls on every keypad; the keypads share no base class but QDialog.
class AnyKeypad
{
public:
    virtual ~AnyKeypad() { }

    virtual QDialog *dialog() = 0; // null when its parent has taken it along
    virtual void setObject(QObject *object) = 0;
    virtual void setText(const QString &text) = 0;
    virtual void setMaxLength(int length) = 0;
    virtual void setValidator(const QValidator *validator) = 0;
    virtual void setPasswordEchoMode(bool on) = 0;

    // Only for keypads with a fixed face; fatal on any other.
    virtual void setLimitToolTip(const QString &text);

    // Tap the on-screen keys that end an entry. Assert that they are there.
    void confirm();
    void cancel();
};

enum KeypadTrait {
    FixedFace = 1,    // a line for limits; binding enables all keys; 320x240 pixels at first
    TypesText = 2,    // selects its text, answers hard keys, is dark on panel type 13
    CoversTarget = 4, // lies over its target instead of the view
    TogglesSign = 8   // has a sign key
};

struct KeypadKind
{
    const char *className;
    AnyKeypad *(*create)(QWidget *parent, Qt::WindowFlags flags);
    const char *confirmLabel;
    const char *cancelLabel;
    const char *signLabel;  // null without a sign key
    const char *sampleText; // shown unchanged
    const char *otherText;  // the same
    int traits;

    bool has(KeypadTrait trait) const { return (traits & trait) != 0; }
};

// For initTestCase_data(): every test function then runs once for each keypad that has all \a
// traits.
void addKeypadRows(int traits = 0);

// The keypad that the current global row is about.
const KeypadKind &currentKind();

// One of the five, by its place in the order of global rows.
const KeypadKind &keypadKind(int index);

// A stage's keypad is of the current kind.
AnyKeypad *newKeypad(QWidget *parent, AnyKeypad *);
inline QDialog *dialogOf(AnyKeypad &keypad)
{
    return keypad.dialog();
}

typedef KeypadStage<AnyKeypad> AnyStage;

#endif
