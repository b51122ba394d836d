// SPDX-License-Identifier: MIT
#ifndef ACTION_H
#define ACTION_H

#include "LineModel.h"

#include <QByteArray>
#include <QList>

// What is done to a keypad: by its operator, who can only while it is shown, and by the
// application.
enum ActionKind {
    Tap,
    LikelyTap,
    Press,
    Type,
    PointAt,
    TouchField,
    LastOfOperator = TouchField,

    SetObject,
    DestroyTarget,
    SetText,
    SetMaxLength,
    SetValidator,
    SetPasswordEcho,
    SetEditMode,
    SetDecimalPoint,
    SetLimits,
    SetDeviceType,
    RegisterView,
    ChangeView,
    MoveTarget,
    Close,
    LetPass // time
};

// How a hard key comes.
enum KeyManner { PressedAndReleased, Repeated, OnlyPressed, OnlyReleased, ByInputMethod };

// An action is four bytes, of which any are one: its kind and three choices.
struct Action
{
    ActionKind kind;
    int a, b, c;
    QByteArray bytes;

    bool isOperators() const { return kind <= LastOfOperator; }
};

enum { bytesPerAction = 4 };

// The actions in \a bytes; what is left over at the end is none.
QList<Action> decoded(const QByteArray &bytes);
QByteArray encoded(const QList<Action> &actions);

// What the choices of an action stand for.
enum { NoTarget = 6 }; // targets are counted from 0
int targetOf(const Action &action);
int validatorOf(const Action &action);
bool isOn(const Action &action);
HardKey hardKeyOf(const Action &action);
KeyManner keyMannerOf(const Action &action);
bool isBeside(const Action &action);      // a key is pressed, and the finger leaves beside it
bool isDoubleClick(const Action &action); // in the edit line
bool isByMouse(const Action &action);     // a field is gone to
bool isDestroyed(const Action &action);   // a validator, while it is set
bool isChoosy(const Action &action);      // a target, about what is written into it
QString textOf(const Action &action);
int maxLengthOf(const Action &action);
int editModeOf(const Action &action);
QString limitsOf(const Action &action);
int deviceTypeOf(const Action &action);

// In words.
QString described(const Action &action);

#endif
