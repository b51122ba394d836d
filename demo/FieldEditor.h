// SPDX-License-Identifier: MIT
#ifndef FIELDEDITOR_H
#define FIELDEDITOR_H

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

private Q_SLOTS:
    void edit(TouchField *field);
    void showHardKey(int key);

private:
    int runKeypad(TouchField *field, const QValidator *validator);
    template <class KeypadWithKeys>
    int runKeys(KeypadWithKeys *keypad, QObject *target, const TouchField *field,
                const QValidator *validator);
    int runCharacters(TouchField *field, const QValidator *validator);
    int runDateTime(TouchField *field, const QValidator *validator);

    MachineScreen *m_screen;
    bool m_editing;
};

#endif
