// SPDX-License-Identifier: MIT
#include "KeypadRules_p.h"

#include "HMIDeviceInfo.h"
#include "QtDifferences_p.h"

#include <QDialog>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QMetaObject>
#include <QSignalMapper>
#include <QToolButton>
#include <QVariant>

namespace Keypad {

namespace {

const int unlimitedLength = 32767;

// The application's keys on a panel of type 13; the gaps are keys of the keypad's own dialog.
const int applicationKeys[] = {
    Qt::Key_Up,  Qt::Key_Down, Qt::Key_F1,  Qt::Key_F2,  Qt::Key_F3,  Qt::Key_F4,
    Qt::Key_F5,  Qt::Key_F9,   Qt::Key_F10, Qt::Key_F11, Qt::Key_F13, Qt::Key_F17,
    Qt::Key_F18, Qt::Key_F20,  Qt::Key_F25, Qt::Key_F26, Qt::Key_F27, Qt::Key_F32,
};

bool isApplicationKey(int key)
{
    for (int applicationKey : applicationKeys) {
        if (applicationKey == key)
            return true;
    }
    return false;
}

void resetEditLine(QLineEdit *editLine)
{
    editLine->setEchoMode(QLineEdit::Normal);
    editLine->setMaxLength(unlimitedLength);
}

void enableKeys(const QDialog *keypad)
{
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (QToolButton *key : keys)
        key->setEnabled(true);
}

void moveCursor(QLineEdit *editLine, int step)
{
    editLine->setCursorPosition(editLine->cursorPosition() + step);
}

// Takes every minus sign away when the text begins with one, else puts one in front. The cursor
// keeps its place among the digits, and a selection becomes a selection of all.
void toggleSign(QLineEdit *editLine)
{
    const QString minus(QLatin1Char('-'));
    QString text = editLine->text();
    int cursor = editLine->cursorPosition();
    const bool selected = editLine->hasSelectedText();

    if (text.startsWith(minus)) {
        text.remove(minus);
        --cursor;
    } else {
        text.prepend(minus);
        ++cursor;
    }
    editLine->setText(text);
    editLine->setCursorPosition(cursor);
    if (selected)
        editLine->selectAll();
}

void act(KeyAction action, const QString &label, QDialog *keypad, QObject *target,
         QLineEdit *editLine)
{
    switch (int(action)) { // a keypad with other actions sees to them itself
    case InsertLabel:
        editLine->insert(label);
        break;
    case InsertSpace:
        editLine->insert(QString(QLatin1Char(' ')));
        break;
    case ToggleSign:
        toggleSign(editLine);
        break;
    case MoveLeft:
        moveCursor(editLine, -1);
        break;
    case MoveRight:
        moveCursor(editLine, 1);
        break;
    case Backspace:
        editLine->backspace();
        break;
    case Cancel:
        keypad->reject();
        break;
    case Confirm:
        confirm(keypad, target, editLine);
        break;
    }
}

} // namespace

void bindTarget(QObject *object, QPointer<QObject> *target, QDialog *keypad, QLineEdit *editLine,
                KeyEnabling enabling)
{
    if (!object)
        return;
    *target = object;
    const QPointer<QObject> alive(object); // a slot that hears the edit line may destroy it
    object->blockSignals(true);
    resetEditLine(editLine);
    if (enabling == EnableKeys)
        enableKeys(keypad);
    if (alive)
        object->blockSignals(false);
}

void showText(QLineEdit *editLine, const QString &text)
{
    editLine->clear();
    editLine->setText(text);
    editLine->selectAll();
}

void setPasswordEcho(QLineEdit *editLine, bool on)
{
    editLine->setEchoMode(on ? QLineEdit::Password : QLineEdit::Normal);
}

void showLimits(QLabel *tipLabel, const QString &text)
{
    if (!text.isEmpty())
        tipLabel->setText(text);
    tipLabel->setVisible(!text.isEmpty());
}

void confirm(QDialog *keypad, QObject *target, const QLineEdit *editLine)
{
    if (!target)
        return;
    const QPointer<QDialog> open(keypad);
    target->setProperty("text", QVariant(editLine->text()));
    if (open)
        keypad->accept();
}

void press(const QObject *key, const KeyTable &table, QDialog *keypad, QObject *target,
           QLineEdit *editLine)
{
    const int place = placeOf(key, table);
    if (place >= 0)
        act(table.cells[place].action, table.keys[place]->text(), keypad, target, editLine);
}

QRect mappedToGlobal(const QWidget *widget, const QRect &rect)
{
    return QRect(widget->mapToGlobal(rect.topLeft()), widget->mapToGlobal(rect.bottomRight()));
}

void comeToFront(QDialog *keypad)
{
    if (QtDifferences::windowsAreStacked())
        keypad->raise();
}

bool coverView(QDialog *keypad)
{
    comeToFront(keypad);
    const QGraphicsView *view = HMIDeviceInfo::graphicsView();
    if (!view)
        return false;
    keypad->setGeometry(mappedToGlobal(view->viewport(), view->viewport()->geometry()));
    return true;
}

bool isPanelType13()
{
    return HMIDeviceInfo::deviceType() == 13;
}

bool isConfirmKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool belongsToApplication(int key)
{
    return isPanelType13() && isApplicationKey(key);
}

void mapKey(QSignalMapper *mapper, QObject *key, const QString &label)
{
    QObject::disconnect(key, SIGNAL(destroyed()), mapper, nullptr);
    mapper->setMapping(key, label);
}

} // namespace Keypad
