// SPDX-License-Identifier: MIT
#include "Action.h"

#include "support/Text.h"

#include <QKeySequence>
#include <QStringList>

namespace {

// Each kind's share of all actions, in 128ths.
const struct
{
    ActionKind kind;
    int share;
    const char *name;
} kinds[] = {
    { Tap, 36, "tap" },
    { LikelyTap, 28, "tap" },
    { Press, 13, "press" },
    { Type, 8, "type" },
    { PointAt, 5, "point at" },
    { TouchField, 5, "touch field" },
    { SetObject, 5, "set object" },
    { DestroyTarget, 1, "destroy target" },
    { SetText, 6, "set text" },
    { SetMaxLength, 4, "set maximum length" },
    { SetValidator, 3, "set validator" },
    { SetPasswordEcho, 2, "set password echo" },
    { SetEditMode, 2, "set edit mode" },
    { SetDecimalPoint, 1, "enable decimal point" },
    { SetLimits, 2, "set limits" },
    { SetDeviceType, 2, "set device type" },
    { RegisterView, 1, "register view" },
    { ChangeView, 1, "change view" },
    { MoveTarget, 1, "move target" },
    { Close, 1, "close" },
    { LetPass, 1, "let time pass" },
};

// clang-format off
const int codes[] = {
    Qt::Key_Left, Qt::Key_Right, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
    Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_A,
    Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Up, Qt::Key_Down,
    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return,
    Qt::Key_Enter, Qt::Key_Escape, Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F12, Qt::Key_F14,
    Qt::Key_F15, Qt::Key_F19, Qt::Key_F21, Qt::Key_F24, Qt::Key_F28, Qt::Key_F31, Qt::Key_F33,
    Qt::Key_Menu, Qt::Key_Shift, Qt::Key_Control, Qt::Key_VolumeUp, Qt::Key_unknown,
    Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F4, Qt::Key_F5, Qt::Key_F9, Qt::Key_F10,
    Qt::Key_F11, Qt::Key_F13, Qt::Key_F17, Qt::Key_F18, Qt::Key_F20, Qt::Key_F25, Qt::Key_F26,
    Qt::Key_F27, Qt::Key_F32,
    Qt::Key_Left, Qt::Key_Right, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
    Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Up, Qt::Key_Down, Qt::Key_Up, Qt::Key_Down,
    Qt::Key_Tab, Qt::Key_Backtab
};

const int modifiers[] = {
    Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier,
    Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier | Qt::ShiftModifier, Qt::NoModifier
};

const char typed[] = "0123456789.-+ aAzZxyn0123456789(_";

const char *const texts[] = {
    "", "0", "12.5", "-3", "-X-5", "X-5", "1-2-3", "--", "99999999999", "3.14159", "G01 X5 Y-7",
    "hello world", "ABC", "数控机床", "a b  c", "-", "7", "100",
    "2024-02-29", "2024-02-30", "1900-02-29", "2000-02-29", "1600-01-01", "1599-12-31",
    "7999-12-31", "0000-00-00", "2024-13-01", "12:34:56", "24:00:00", "23:59:60", "00:00:00",
    "2024-02-29 12:34:56", "1999-12-31 23:59:59", "2024-05-17 08:09:10", "2024-05-17T08:09:10",
    "2024-05-17 24:00:00", "abcdefgh", "2024/05/17", "31-12-2024", "2024-05-17 8:9:10"
};

const char *const otherTyped[] = { "ä", "ß", "Ж", "中", "٣", "ö", "好", "é" };

const char *const otherTexts[] = {
    "one\ntwo", "\t1\x01 2", "全角 字", "ЖЗ äöü ٣.", "\r\n", "3,5", "99.55", "ABC-12"
};
const int longTextLength = 40000;

const char *const targetNames[] = {
    "field", "label", "object", "DateTimeField", "derived DateTimeField", "short field", "null"
};

const char *const validatorNames[] = {
    "none", "0 to 100", "-50 to 999", "like a number", "none", "nothing is right",
    "three characters", "in capitals", "decimals", "a pattern"
};
const int usualValidators = 8;

const int maxLengths[] = {
    32767, 10, 8, 19, 0, 1, 2, 3, 5, 6, 12, 10, 8, 19, -1, 100000
};

const int editModes[] = { 2, 10, 16, 8, 0, -1, 10, 1000 };

const char *const limits[] = { "", "0 .. 100", "-999.999 - 999.999", "" };

const int deviceTypes[] = { 13, 1, 13, 9, 14, 21, 13, 0 };
// clang-format on

template <class Value, int count>
Value oneOf(const Value (&values)[count], int choice)
{
    return values[choice % count];
}

QString quoted(const QString &text)
{
    if (text.size() >= longTextLength)
        return QString::fromLatin1("%1 times %2").arg(text.size()).arg(text.at(0));
    QString told;
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character < QLatin1Char(' '))
            told += QString::fromLatin1("<%1>").arg(int(character.unicode()));
        else
            told += character;
    }
    return QLatin1Char('"') + told + QLatin1Char('"');
}

// The last of the three choices makes a key or a text an unusual one.
int modifierOfUnusual(int choice)
{
    if (choice >= 224 && choice < 228)
        return Qt::AltModifier;
    if (choice >= 228 && choice < 232)
        return Qt::MetaModifier;
    return choice >= 232 && choice < 236 ? Qt::KeypadModifier : Qt::NoModifier;
}

HardKey typedKeyOf(const Action &action)
{
    QString text(QLatin1Char(oneOf(typed, action.a % int(sizeof(typed) - 1))));
    if (action.c >= 192 && action.c < 224)
        text = u(oneOf(otherTyped, action.a));
    int held = modifierOfUnusual(action.c);
    if (action.c >= 236 && action.c < 240)
        held = Qt::ShiftModifier;
    return { text.at(0).toUpper().unicode(), text, held };
}

QString mannerNameOf(const Action &action)
{
    static const char *const names[] = { "", " and hold it", " and keep it", " up only",
                                         " by the input method" };
    return u(names[keyMannerOf(action)]);
}

Action decodedOne(const QByteArray &bytes)
{
    Action action = { Tap, uchar(bytes.at(1)), uchar(bytes.at(2)), uchar(bytes.at(3)), bytes };
    int dice = uchar(bytes.at(0)) / 2;
    for (const auto &row : kinds) {
        action.kind = row.kind;
        dice -= row.share;
        if (dice < 0)
            break;
    }
    return action;
}

// In words, and empty for most actions.
QString peculiarityOf(const Action &action)
{
    static const char *const writing[] = { ", which takes texts", ", which refuses texts",
                                           ", which writes capitals" };
    if (action.kind == SetObject && isChoosy(action) && targetOf(action) != NoTarget)
        return u(writing[action.c % 3]);
    if (action.kind == SetValidator && isDestroyed(action))
        return u(" and destroy it");
    if (action.kind == PointAt && isDoubleClick(action))
        return u(" twice");
    return action.kind == TouchField && isByMouse(action) ? u(" by the mouse") : QString();
}

QString nameOf(ActionKind kind)
{
    for (const auto &row : kinds) {
        if (row.kind == kind)
            return u(row.name);
    }
    return QString();
}

} // namespace

QList<Action> decoded(const QByteArray &bytes)
{
    QList<Action> actions;
    for (int i = 0; i + bytesPerAction <= bytes.size(); i += bytesPerAction)
        actions << decodedOne(bytes.mid(i, bytesPerAction));
    return actions;
}

QByteArray encoded(const QList<Action> &actions)
{
    QByteArray bytes;
    for (const Action &action : actions)
        bytes += action.bytes;
    return bytes;
}

// Shift+Delete would cut to the clipboard, which is none of a keypad's, and Alt+Backspace undo.
// Qt's versions disagree what Escape on the number block is, where no keyboard has one.
HardKey hardKeyOf(const Action &action)
{
    if (action.kind == Type)
        return typedKeyOf(action);
    HardKey key = { oneOf(codes, action.a), QString(), oneOf(modifiers, action.b) };
    if (key.code != Qt::Key_Backspace && key.code != Qt::Key_Escape)
        key.modifiers |= modifierOfUnusual(action.c);
    if (key.code == Qt::Key_A)
        key.modifiers = Qt::ControlModifier;
    else if (key.code == Qt::Key_Delete)
        key.modifiers &= ~int(Qt::ShiftModifier);
    else if (key.code == Qt::Key_Tab || key.code == Qt::Key_Backtab)
        key.modifiers = key.code == Qt::Key_Tab ? Qt::NoModifier : Qt::ShiftModifier;
    return key;
}

// Up and Down that are held make fields for numbers count by a timer.
KeyManner keyMannerOf(const Action &action)
{
    if (action.kind == Type)
        return action.c >= 192 && action.c < 208 ? ByInputMethod : PressedAndReleased;
    if (action.c >= 250)
        return OnlyReleased;
    if (action.c >= 244)
        return OnlyPressed;
    const int code = oneOf(codes, action.a);
    const bool counts = code == Qt::Key_Up || code == Qt::Key_Down;
    return action.c >= 236 && !counts ? Repeated : PressedAndReleased;
}

bool isBeside(const Action &action)
{
    return action.c >= 240;
}

bool isDoubleClick(const Action &action)
{
    return action.a >= 240;
}

bool isByMouse(const Action &action)
{
    return action.c >= 224;
}

bool isDestroyed(const Action &action)
{
    return action.b >= 240;
}

bool isChoosy(const Action &action)
{
    return action.c >= 224;
}

int targetOf(const Action &action)
{
    const int count = action.kind == SetObject ? int(NoTarget) + 1 : int(NoTarget);
    return action.a % count;
}

int validatorOf(const Action &action)
{
    return action.b >= 208 ? usualValidators + action.b % 2 : action.a % usualValidators;
}

bool isOn(const Action &action)
{
    return action.a % 2 != 0;
}

QString textOf(const Action &action)
{
    if (action.b == 255)
        return QString(longTextLength, QLatin1Char('7'));
    return u(action.b >= 240 ? oneOf(otherTexts, action.a) : oneOf(texts, action.a));
}

int maxLengthOf(const Action &action)
{
    return oneOf(maxLengths, action.a);
}

int editModeOf(const Action &action)
{
    return oneOf(editModes, action.a);
}

QString limitsOf(const Action &action)
{
    return u(oneOf(limits, action.a));
}

int deviceTypeOf(const Action &action)
{
    return oneOf(deviceTypes, action.a);
}

QString described(const Action &action)
{
    const QString name = nameOf(action.kind) + QLatin1Char(' ');
    const HardKey key = hardKeyOf(action);
    switch (action.kind) {
    case Press:
        return name + QKeySequence(key.code | key.modifiers).toString() + mannerNameOf(action);
    case Type:
        return name + QKeySequence(key.modifiers).toString() + quoted(key.text)
            + mannerNameOf(action);
    case SetObject:
        return name + u(targetNames[targetOf(action)]) + peculiarityOf(action);
    case DestroyTarget:
    case MoveTarget:
        return name + u(targetNames[targetOf(action)]);
    case SetText:
        return name + quoted(textOf(action));
    case SetMaxLength:
        return name + QString::number(maxLengthOf(action));
    case SetValidator:
        return name + u(validatorNames[validatorOf(action)]) + peculiarityOf(action);
    case SetEditMode:
        return name + QString::number(editModeOf(action));
    case SetLimits:
        return name + quoted(limitsOf(action));
    case SetDeviceType:
        return name + QString::number(deviceTypeOf(action));
    case SetPasswordEcho:
    case SetDecimalPoint:
        return name + u(isOn(action) ? "on" : "off");
    default:
        return name + QString::fromLatin1("%1 %2 %3").arg(action.a).arg(action.b).arg(action.c)
            + peculiarityOf(action);
    }
}
