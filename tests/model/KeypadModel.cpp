// SPDX-License-Identifier: MIT
#include "KeypadModel.h"

#include "support/Text.h"

namespace {

const int unlimited = 32767;

// clang-format off
const int applicationKeys[] = {
    Qt::Key_Up, Qt::Key_Down,
    Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F4, Qt::Key_F5,
    Qt::Key_F9, Qt::Key_F10, Qt::Key_F11, Qt::Key_F13,
    Qt::Key_F17, Qt::Key_F18, Qt::Key_F20,
    Qt::Key_F25, Qt::Key_F26, Qt::Key_F27, Qt::Key_F32
};
// clang-format on

bool belongsToTheApplication(int code)
{
    for (int key : applicationKeys) {
        if (key == code)
            return true;
    }
    return false;
}

QString described(const QRect &rect)
{
    return rect.isNull() ? u("anywhere")
                         : QString::fromLatin1("%1,%2 %3x%4")
                               .arg(rect.x())
                               .arg(rect.y())
                               .arg(rect.width())
                               .arg(rect.height());
}

} // namespace

QStringList Seen::lines() const
{
    QStringList list;
    list << u("text       ") + text << u("cursor     ") + QString::number(cursor)
         << u("selected   ") + selectedText << u("max length ") + QString::number(maxLength)
         << u("echo       ") + u(hidden ? "password" : "normal")
         << u("keys       ") + keys.join(u(" ")) << u("limits     ") + tip
         << u("parts      ") + parts.join(u(" | ")) << u("targets    ") + targets.join(u(" | "))
         << u("open       ") + u(open ? "yes" : "no") << u("result     ") + QString::number(result)
         << u("focus      ") + QString::number(focus)
         << u("place      ") + described(place) + u(resizable ? "" : " fixed")
         << u("happenings ") + happenings.join(u(", "));
    return list;
}

void TargetModel::write(const QString &newText)
{
    if (whenWritten != TakeItUncounted)
        ++timesWritten;
    if (whenWritten != RefuseIt)
        text = (whenWritten == PutItInCapitals ? newText.toUpper() : newText).left(maxLength);
}

QString TargetModel::seen() const
{
    return seenTarget(text, timesWritten, blocked);
}

QString seenKey(const QString &label, bool enabled, bool shown)
{
    return u(enabled ? "" : "/") + (shown ? label : u("(") + label + u(")"));
}

QString seenTarget(const QString &text, int timesWritten, bool blocked)
{
    return QString::fromLatin1("\"%1\" written %2 times%3")
        .arg(text)
        .arg(timesWritten)
        .arg(u(blocked ? " blocked" : ""));
}

QRect rectOfView(const ViewPlace &view)
{
    return view.viewportGeometry.translated(view.viewportOrigin);
}

KeypadModel::KeypadModel(World *world)
    : m_tipShown(false)
    , m_world(world)
    , m_target(noTarget)
    , m_open(false)
    , m_result(0)
    , m_focus(0)
    , m_resizable(true)
{
}

KeypadModel::~KeypadModel()
{
}

void KeypadModel::setObject(int target)
{
    if (target == noTarget)
        return;
    m_target = target;
    m_line.setHidden(false);
    m_line.setMaxLength(unlimited);
    m_world->targets[target].blocked = false;
}

void KeypadModel::setText(const QString &text)
{
    m_line.clear();
    m_line.setText(text);
    m_line.selectAll();
}

void KeypadModel::setMaxLength(int length)
{
    m_line.setMaxLength(length);
}

void KeypadModel::setEditMode(int)
{
}

void KeypadModel::setDecimalPointEnabled(bool)
{
}

void KeypadModel::setLimitToolTip(const QString &)
{
}

void KeypadModel::setValidator(const QValidator *validator)
{
    m_line.setValidator(validator);
}

void KeypadModel::setPasswordEchoMode(bool on)
{
    m_line.setHidden(on);
}

void KeypadModel::targetIsGone(int target)
{
    if (m_target == target)
        m_target = noTarget;
}

void KeypadModel::open(const ViewPlace &view, const TargetPlace &)
{
    m_open = true;
    m_result = 0;
    if (view.registered)
        lieAt(rectOfView(view), m_resizable);
    m_line.setCursor(m_line.cursor());
    if (m_focus < fieldCount())
        fieldGotKeyboard();
}

void KeypadModel::closeWith(int result)
{
    if (!m_open)
        return;
    m_open = false;
    m_result = result;
    if (result == 0)
        m_happenings << u("rejected");
    else if (result == 1)
        m_happenings << u("accepted ")
                + (m_target == noTarget ? QString() : m_world->targets.at(m_target).text);
    m_finished << u("finished ") + QString::number(result);
}

void KeypadModel::lostTheKeyboard()
{
}

void KeypadModel::tap(int key)
{
    if (m_keys.at(key).enabled && m_keys.at(key).shown)
        act(key);
}

// Up and Left, and Down and Right, are for a key what Tab is; a blank clicks it.
void KeypadModel::press(const HardKey &key)
{
    const bool onKey = m_focus >= fieldCount();
    const bool back = key.code == Qt::Key_Up || key.code == Qt::Key_Left;
    const bool forth = key.code == Qt::Key_Down || key.code == Qt::Key_Right;
    if (key.code == Qt::Key_Tab || key.code == Qt::Key_Backtab)
        moveFocus(key.code == Qt::Key_Tab ? 1 : -1);
    else if (onKey && (back || forth))
        moveFocus(back ? -1 : 1);
    else if (onKey && key.code == Qt::Key_Space)
        tap(m_focus - fieldCount());
    else if (onKey || !pressInField(key))
        pressElsewhere(key);
}

void KeypadModel::commit(const QString &text)
{
    if (m_focus < fieldCount())
        commitInField(text);
}

void KeypadModel::commitInField(const QString &text)
{
    m_line.insert(text);
}

bool KeypadModel::pressInField(const HardKey &key)
{
    return m_line.press(key);
}

// An edit line that Tab leads to is selected, unless a part of it is.
void KeypadModel::fieldGotKeyboard()
{
    if (!m_line.hasSelection())
        m_line.selectAll();
}

void KeypadModel::fieldLostKeyboard()
{
    m_line.setCursor(m_line.cursor());
}

void KeypadModel::pressElsewhere(const HardKey &key)
{
    if (key.code == Qt::Key_Return || key.code == Qt::Key_Enter)
        confirm();
    else if (m_world->deviceType == 13 && belongsToTheApplication(key.code))
        tellKey(key.code);
    else if (key.code == Qt::Key_Escape && key.modifiers == Qt::NoModifier)
        cancel();
}

// To the next or previous one that is enabled, and around.
void KeypadModel::moveFocus(int step)
{
    const int fields = fieldCount();
    const int count = fields + int(m_keys.size());
    int place = m_focus;
    do {
        place = (place + step + count) % count;
    } while (place < fields ? !isFieldEnabled(place) : !m_keys.at(place - fields).enabled);
    setFocus(place);
}

void KeypadModel::setFocus(int place)
{
    if (m_open && m_focus < fieldCount())
        fieldLostKeyboard();
    m_focus = place;
    if (m_open && m_focus < fieldCount())
        fieldGotKeyboard();
}

// A key that is disabled hands the keyboard on.
void KeypadModel::setKeyEnabled(int key, bool enabled)
{
    m_keys[key].enabled = enabled;
    if (!enabled && m_focus == fieldCount() + key)
        moveFocus(1);
}

void KeypadModel::touchField(int field)
{
    const int wanted = field % fieldCount();
    if (wanted != m_focus && isFieldEnabled(wanted))
        setFocus(wanted);
}

void KeypadModel::pointAt(int position, bool selecting)
{
    m_focus = 0;
    m_line.moveCursor(position, selecting);
}

void KeypadModel::pointTwiceAt(int position)
{
    m_focus = 0;
    m_line.selectWordAt(position);
}

void KeypadModel::pointIntoField(int, int position)
{
    pointAt(position, false);
}

Seen KeypadModel::seen()
{
    Seen seen;
    seen.text = m_line.text();
    seen.selectedText = m_line.selectedText();
    seen.cursor = m_line.cursor();
    seen.maxLength = m_line.maxLength();
    seen.hidden = m_line.isHidden();
    const QVector<Key> &keys = m_keys;
    for (const Key &key : keys)
        seen.keys << seenKey(key.label, key.enabled, key.shown);
    seen.tip = m_tip + u(m_tipShown ? " shown" : " hidden");
    const QVector<TargetModel> &targets = m_world->targets;
    for (const TargetModel &target : targets)
        seen.targets << target.seen();
    seen.open = m_open;
    seen.result = m_result;
    seen.focus = m_open ? m_focus : -1;
    seen.place = m_place;
    seen.resizable = m_resizable;
    seen.happenings = m_happenings + m_finished;
    m_happenings.clear();
    m_finished.clear();
    return seen;
}

int KeypadModel::likelyKey(int choice) const
{
    return choice % int(m_keys.size());
}

void KeypadModel::confirm()
{
    if (m_target == noTarget)
        return;
    m_world->targets[m_target].write(m_line.text());
    closeWith(1);
}

void KeypadModel::tellKey(int code)
{
    closeWith(0);
    m_happenings << u("key ") + QString::number(code);
}

void KeypadModel::cancel()
{
    closeWith(0);
}

void KeypadModel::lieAt(const QRect &rect, bool resizable)
{
    m_place = rect;
    m_resizable = resizable;
}

void KeypadModel::addKey(const QString &label)
{
    m_keys << Key { label, true, true };
}
