// SPDX-License-Identifier: MIT
#ifndef FIELDEDITOR_H
#define FIELDEDITOR_H

#include "KeypadWatch.h"

#include <QObject>

class MachineScreen;
class QValidator;
class TouchField;

// Opens the keypad that fits a field, set up as the field's rule says.
class FieldEditor : public QObject
{
    Q_OBJECT

public:
    explicit FieldEditor(MachineScreen *screen);

    // Whether a field is being edited: from its tap until its keypad's exec() has returned.
    bool isEditing() const { return m_editing; }

Q_SIGNALS:
    // A line about what the keypads did, as KeypadWatch has them.
    void told(const QString &line);

private Q_SLOTS:
    void edit(TouchField *field);
    void showHardKey(int key);

private:
    // Each returns whether the keypad has written the field.
    bool runKeypad(TouchField *field, const QValidator *validator);
    template <class KeypadWithKeys>
    bool runKeys(KeypadWithKeys *keypad, QObject *target, const TouchField *field,
                 const QValidator *validator);
    bool runCharacters(TouchField *field, const QValidator *validator);
    bool runDateTime(TouchField *field, const QValidator *validator);
    template <class AnyKeypad>
    bool exec(AnyKeypad *keypad, const TouchField *field, const QObject *target,
              const QValidator *validator);

    MachineScreen *m_screen;
    KeypadWatch m_watch;
    bool m_editing;
};

#endif
