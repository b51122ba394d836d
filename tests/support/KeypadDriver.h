// SPDX-License-Identifier: MIT
#ifndef KEYPADDRIVER_H
#define KEYPADDRIVER_H

#include "Checked.h"
#include "QtDifferences.h"
#include "Text.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QDialog>
#include <QGraphicsView>
#include <QLabel>
#include <QStringList>
#include <QToolButton>
#include <QtTest>

#include <functional>

class KeyBoardLineEdit;

// Works a keypad as an operator does, and sets the stage for it.

// The labels that \a utf8 holds, separated by blanks.
inline QStringList labelList(const char *utf8)
{
    return u(utf8).split(QLatin1Char(' '));
}

// What covers \a view: its viewport's true place, shifted once more by the frame around it.
QRect rectCovering(const QGraphicsView *view);

// The application's main view, shown, of the panel's screen size and registered in the device
// profile. When it goes, its keypads go with it, no view is registered and the panel is of type 1.
class PanelView : public QGraphicsView
{
public:
    enum Frame { Framed, Frameless };

    explicit PanelView(DeviceType type, const QSize &size = QSize(640, 480), Frame frame = Framed);
    ~PanelView() override;

    // What a keypad that covers this view must cover.
    QRect coveredRect() const { return rectCovering(this); }
};

// The keypad's key with this label, or null; u("←") is a label like any other.
QToolButton *key(const QWidget *keypad, const QString &label);

// The labels of a keypad's keys in the order of their creation.
QStringList keyLabels(const QWidget *keypad);

// The labels of the keys that are enabled, in the order of their creation.
QStringList enabledKeyLabels(const QWidget *keypad);

// The cells of a key in the grid: column, row, columns and rows; null for a label not there.
QRect gridCells(const QWidget *keypad, const QString &label);

KeyBoardLineEdit *editLine(const QWidget *keypad);

// The line for limits above the edit line.
QLabel *tipLabel(const QWidget *keypad);

// Clicks a key with the left mouse button, as a tap does. Asserts that there is one.
void tap(QWidget *keypad, const QString &label);

// Taps the keys of labels separated by blanks. Asserts that there are such keys.
void tapAll(QWidget *keypad, const QString &labels);

// Presses and releases a hard key on what has the focus, as the windowing system does.
void pressHardKey(QWidget *keypad, int key);

// The eighteen hard keys that belong to the application on a panel of type 13.
QList<int> applicationKeys();

// The place that a dialog takes when it is shown. Hides it again.
QRect rectWhileShown(QDialog *dialog);

// How a run of a keypad ends: by the actions in it, or not at all.
enum Outcome { Accepts, Rejects, StaysOpen };

// Runs \a keypad's exec() and, once it is shown, \a actions in its event loop. Asserts the outcome.
// A keypad that is still open after the actions is then rejected, so that exec() returns.
void execWhile(QDialog *keypad, const std::function<void()> &actions, Outcome expected);

#endif
