// SPDX-License-Identifier: MIT
#include "Session.h"

#include "support/QtDifferences.h"
#include "support/Text.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

// What an operator does in a session: taps, hard keys, input methods, fingers on what is edited.

namespace {

void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &pos, int modifiers)
{
    const bool released = type == QEvent::MouseButtonRelease;
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, pos, widget->mapToGlobal(pos), button,
                      released ? Qt::NoButton : Qt::LeftButton,
                      Qt::KeyboardModifiers(QFlag(modifiers)));
    QSpontaneKeyEvent::setSpontaneous(&event); // or it would not take the keyboard along
    qApp->notify(widget, &event);
}

void sendKey(QWidget *widget, QEvent::Type type, const HardKey &key, bool repeated)
{
    QKeyEvent event(type, key.code, Qt::KeyboardModifiers(QFlag(key.modifiers)), key.text,
                    repeated);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

} // namespace

void Session::touchField(const Action &action)
{
    const int index = action.a % int(m_fields.size());
    QWidget *field = m_fields.at(index);
    if (!isByMouse(action)) {
        field->setFocus(Qt::TabFocusReason);
        return m_model->touchField(index);
    }
    QLineEdit *line = qobject_cast<QLineEdit *>(field);
    if (!line)
        line = field->findChild<QLineEdit *>();
    const QPoint place(line->width() * action.b / 256, line->height() / 2);
    const int position = line->cursorPositionAt(place);
    sendMouse(line, QEvent::MouseButtonPress, place, Qt::NoModifier);
    sendMouse(line, QEvent::MouseButtonRelease, place, Qt::NoModifier);
    m_model->pointIntoField(index, position);
}

// A disabled key is tapped too. One that is not shown cannot be. A finger that leaves a key before
// it is lifted means none, but for candidates, which are no buttons.
void Session::tap(int key, bool beside)
{
    QWidget *widget = m_keys.at(key);
    tell(u(beside ? "tap and leave \"" : "tap \"") + widget->property("text").toString() + u("\""));
    if (widget->isVisible()) {
        const QPoint place = widget->rect().center();
        sendMouse(widget, QEvent::MouseButtonPress, place, Qt::NoModifier);
        sendMouse(widget, QEvent::MouseButtonRelease, beside ? QPoint(-3, -3) : place,
                  Qt::NoModifier);
    }
    if (!beside || !qobject_cast<QAbstractButton *>(widget))
        m_model->tap(key);
}

// The order in which Tab goes through the character keypad is not told by any rule.
bool Session::isLeftOut(const HardKey &key) const
{
    const bool isTab = key.code == Qt::Key_Tab || key.code == Qt::Key_Backtab;
    return isTab && m_name == Character;
}

void Session::press(const HardKey &key, KeyManner manner)
{
    if (isLeftOut(key))
        return;
    if (manner == ByInputMethod)
        return commit(key.text);
    if (manner == Repeated)
        return pressRepeatedly(key);
    if (manner == PressedAndReleased)
        QTest::sendKeyEvent(QTest::Click, focus(), Qt::Key(key.code), key.text,
                            Qt::KeyboardModifiers(QFlag(key.modifiers)));
    else
        sendKey(focus(), manner == OnlyPressed ? QEvent::KeyPress : QEvent::KeyRelease, key, false);
    if (manner != OnlyReleased)
        m_model->press(key);
}

// Each time, a key that is held reaches what has the keyboard then.
void Session::pressRepeatedly(const HardKey &key)
{
    for (int times = 0; times < 3 && m_machine->dialog()->isVisible(); ++times) {
        sendKey(focus(), QEvent::KeyPress, key, times > 0);
        m_model->press(key);
    }
    if (m_machine->dialog()->isVisible())
        sendKey(focus(), QEvent::KeyRelease, key, false);
}

void Session::commit(const QString &text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(focus(), &event);
    m_model->commit(text);
}

QWidget *Session::focus()
{
    QDialog *dialog = m_machine->dialog();
    QWidget *focus = dialog->focusWidget();
    return focus ? focus : dialog;
}

// A finger on the edit line: touches it, or goes along it, or Shift is held.
void Session::pointAt(const Action &action)
{
    KeyBoardLineEdit *line = m_machine->line();
    const int y = line->height() / 2;
    const QPoint from(line->width() * action.b / 256, y);
    const QPoint to(line->width() * action.c / 256, y);
    if (isDoubleClick(action))
        return pointTwiceAt(from);
    const int held = action.a % 4 == 1 ? Qt::ShiftModifier : Qt::NoModifier;
    const int first = line->cursorPositionAt(from);
    sendMouse(line, QEvent::MouseButtonPress, from, held);
    m_model->pointAt(first, held != Qt::NoModifier);
    if (action.a % 4 > 1) {
        const int last = line->cursorPositionAt(to);
        sendMouse(line, QEvent::MouseMove, to, held);
        m_model->pointAt(last, true);
    }
    sendMouse(line, QEvent::MouseButtonRelease, to, held);
}

// Qt waits for a third click, which would select all; not for long here.
void Session::pointTwiceAt(const QPoint &place)
{
    KeyBoardLineEdit *line = m_machine->line();
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    const int first = line->cursorPositionAt(place);
    sendMouse(line, QEvent::MouseButtonPress, place, Qt::NoModifier);
    sendMouse(line, QEvent::MouseButtonRelease, place, Qt::NoModifier);
    m_model->pointAt(first, false);
    const int second = line->cursorPositionAt(place);
    sendMouse(line, QEvent::MouseButtonDblClick, place, Qt::NoModifier);
    sendMouse(line, QEvent::MouseButtonRelease, place, Qt::NoModifier);
    m_model->pointTwiceAt(second);
    QApplication::processEvents();
    QApplication::setDoubleClickInterval(interval);
}
