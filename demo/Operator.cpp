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

namespace {

// The windows' own events, so that what lies on top takes them, or the modal keypad keeps them off.
void tapAt(QWidget *widget, const QPoint &place)
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

const struct
{
    const char *name;
    int key;
} namedKeys[] = { { "Return", Qt::Key_Return },
                  { "Escape", Qt::Key_Escape },
                  { "Backspace", Qt::Key_Backspace },
                  { "F1", Qt::Key_F1 } };

int keyCode(const QString &name)
{
    for (const auto &entry : namedKeys) {
        if (name == QLatin1String(entry.name))
            return entry.key;
    }
    return name.length() == 1 ? name.at(0).toUpper().unicode() : 0;
}

bool isAt(const QWidget *window, const QPoint &placeOnScreen)
{
    return QGuiApplication::topLevelAt(placeOnScreen) == window->windowHandle();
}

template <class Label>
Label *findLabel(const QWidget *keypad, const QString &text)
{
    const QList<Label *> labels = keypad->findChildren<Label *>();
    for (Label *label : labels) {
        if (label->isVisible() && label->text() == text)
            return label;
    }
    return nullptr;
}

} // namespace

QWidget *Operator::openKeypad()
{
    return QApplication::activeModalWidget();
}

bool Operator::isOnScreen(const QWidget *window)
{
    return window->isVisible() && window->windowHandle()->isExposed();
}

bool Operator::isActive(QWidget *window)
{
    if (!window->isActiveWindow())
        window->activateWindow();
    return window->isActiveWindow();
}

QPoint Operator::place(const QWidget *keypad, const QGraphicsView *view)
{
    const QPoint origin = view->mapToGlobal(QPoint(0, 0));
    const QPoint centre = view->rect().center();
    int x = 0;
    while (x < view->width() && !isAt(keypad, origin + QPoint(x, centre.y())))
        ++x;
    int y = 0;
    while (y < view->height() && !isAt(keypad, origin + QPoint(centre.x(), y)))
        ++y;
    return QPoint(x, y);
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
    if (QToolButton *key = findLabel<QToolButton>(keypad, label))
        return key;
    return findLabel<ClickLabel>(keypad, label); // a candidate
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
        painter.drawPixmap(place(keypad, view), keypad->grab());
    }
    return picture;
}
