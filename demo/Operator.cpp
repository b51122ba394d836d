// SPDX-License-Identifier: MIT
#include "Operator.h"

#include <HMIDevice/ClickLabel.h>

#include <QApplication>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>
#include <QWindow>

// The windows' own events, so that what lies on top takes them, or the modal keypad keeps them off.

static void tapAt(QWidget *widget, const QPoint &place)
{
    QWidget *window = widget->window();
    const QPoint onWindow = widget->mapTo(window, place);
    const QPoint onScreen = widget->mapToGlobal(place);
    QMouseEvent press(QEvent::MouseButtonPress, onWindow, onScreen, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(window->windowHandle(), &press);
    QMouseEvent release(QEvent::MouseButtonRelease, onWindow, onScreen, Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window->windowHandle(), &release);
}

static int keyCode(const QString &name)
{
    const struct
    {
        const char *name;
        int key;
    } named[] = { { "Return", Qt::Key_Return },
                  { "Escape", Qt::Key_Escape },
                  { "Backspace", Qt::Key_Backspace },
                  { "F1", Qt::Key_F1 } };
    for (const auto &entry : named) {
        if (name == entry.name)
            return entry.key;
    }
    return name.length() == 1 ? name.at(0).toUpper().unicode() : 0;
}

QWidget *Operator::openKeypad()
{
    return QApplication::activeModalWidget();
}

bool Operator::isReady(QWidget *window)
{
    if (!window->isVisible() || !window->windowHandle()->isExposed())
        return false;
    if (!window->isActiveWindow())
        window->activateWindow();
    return window->isActiveWindow();
}

void Operator::tap(QWidget *widget)
{
    tapAt(widget, widget->rect().center());
}

void Operator::tapEnd(QWidget *widget)
{
    const int margin = 4; // pixels, so as to hit the text rather than the frame
    tapAt(widget, QPoint(widget->width() - margin, widget->height() / 2));
}

QWidget *Operator::findKey(const QWidget *keypad, const QString &label)
{
    for (QToolButton *key : keypad->findChildren<QToolButton *>()) {
        if (key->isVisible() && key->text() == label)
            return key;
    }
    for (ClickLabel *candidate : keypad->findChildren<ClickLabel *>()) {
        if (candidate->isVisible() && candidate->text() == label)
            return candidate;
    }
    return nullptr;
}

bool Operator::pressHardKey(QWidget *widget, const QString &name)
{
    const int key = keyCode(name);
    if (key == 0)
        return false;
    QWindow *window = widget->window()->windowHandle();
    const QString text = name.length() == 1 ? name : QString();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(window, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(window, &release);
    return true;
}

QPixmap Operator::picture(QGraphicsView *view)
{
    QCoreApplication::sendPostedEvents(); // layouts follow a change when they are asked to
    QPixmap picture = view->grab();
    if (QWidget *keypad = openKeypad()) {
        QPainter painter(&picture);
        painter.drawPixmap(keypad->mapToGlobal(QPoint(0, 0)) - view->mapToGlobal(QPoint(0, 0)),
                           keypad->grab());
    }
    return picture;
}
