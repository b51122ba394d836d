// SPDX-License-Identifier: MIT
#include "SimulatorPicture.h"

#include "MachineScreen.h"
#include "TouchField.h"
#include "simulator/Bezel.h"
#include "simulator/Simulator.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QThread>

namespace {

const int mostMilliseconds = 60000;
const int stillMilliseconds = 300; // without a change nothing more is on its way
const int sideWidth = 320;         // of chooser and log, beside the panel
const QSize margin(40, 20);        // around the panel
const QSize leastSize(0, 680);     // for the chooser's sake
const int keys[] = { Qt::Key_2, Qt::Key_5, Qt::Key_0, Qt::Key_0, Qt::Key_Return };

// The panel has a process of its own, which is to have the processor.
void wait()
{
    QApplication::processEvents();
    QThread::msleep(5);
}

template <class Condition>
bool waitFor(Condition isTrue)
{
    QElapsedTimer timer;
    timer.start();
    while (!isTrue() && timer.elapsed() < mostMilliseconds)
        wait();
    return isTrue();
}

// Where the field is on the panel's screen.
QPoint placeOf(const char *field, int type)
{
    HMIDeviceInfo::setDeviceInfo(type, QSize());
    MachineScreen screen(nullptr);
    screen.resize(HMIDeviceInfo::screenSize());
    screen.grab(); // which lays it out
    const TouchField *touched = screen.field(QLatin1String(field));
    return touched->mapTo(&screen, touched->rect().center());
}

void tap(PanelRunner *panel, const QPoint &place)
{
    panel->send(
        Protocol::MouseInput { QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton });
    panel->send(
        Protocol::MouseInput { QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton });
}

void press(PanelRunner *panel, int key)
{
    const QString text = key < 0x80 ? QString(QLatin1Char(char(key))) : QString();
    panel->send(Protocol::KeyInput { QEvent::KeyPress, key, 0, text });
    panel->send(Protocol::KeyInput { QEvent::KeyRelease, key, 0, text });
}

bool isStill(PanelRunner *panel)
{
    QElapsedTimer timer;
    timer.start();
    const QImage picture = panel->picture();
    while (timer.elapsed() < stillMilliseconds)
        wait();
    return panel->picture() == picture;
}

bool enterValue(PanelRunner *panel, const QPoint &field)
{
    tap(panel, field);
    if (!waitFor([panel] { return panel->isKeypadOpen(); }))
        return false;
    for (int key : keys)
        press(panel, key);
    return waitFor([panel] { return !panel->isKeypadOpen() && isStill(panel); });
}

// The panel first, the rest of the window beside it.
void layOut(Simulator *simulator)
{
    const QSize panel = simulator->findChild<Bezel *>()->size() + margin;
    simulator->resize((panel + QSize(sideWidth, 0)).expandedTo(leastSize));
    simulator->show();
    simulator->findChild<QSplitter *>()->setSizes({ panel.width(), sideWidth });
}

} // namespace

QImage simulatorPicture(int type)
{
    const QPoint field = placeOf("spindle", type);
    applySimulatorTheme();
    PanelSetup setup;
    setup.type = type;
    Simulator simulator(setup);
    PanelRunner *panel = simulator.panel();
    // The log prints, and tells how long a panel took to come: neither is for a picture.
    QPlainTextEdit *log = simulator.findChild<QPlainTextEdit *>(QLatin1String("log"));
    QObject::disconnect(panel, SIGNAL(told(QString)), log, nullptr);
    if (!waitFor([panel] { return !panel->picture().isNull(); }))
        return QImage();
    QObject::connect(panel, SIGNAL(told(QString)), log, SLOT(appendPlainText(QString)));
    layOut(&simulator);
    if (!enterValue(panel, field))
        return QImage();
    return simulator.grab().toImage();
}
