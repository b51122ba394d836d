// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_H
#define SIMULATOR_H

#include "PanelRunner.h"

#include <QWidget>

class Bezel;
class Chooser;
class EventLog;
class QScrollArea;
class QSplitter;

// The panel simulator: one window with a panel, the chooser of models and the log of events. The
// panel itself runs in a process of its own; the window comes up with its first picture.
class Simulator : public QWidget
{
    Q_OBJECT

public:
    explicit Simulator(const PanelSetup &setup);

    PanelRunner *panel() { return &m_panel; }

private Q_SLOTS:
    void changePanel();
    void takePanel();
    void showPanelAsChosen();
    void lockChooser();

private:
    QWidget *createSide();
    void fitToScreen();

    PanelRunner m_panel;
    Chooser *m_chooser;
    EventLog *m_log;
    Bezel *m_bezel;
    QScrollArea *m_scroll;
    QSplitter *m_splitter;
    QSize m_fitted; // of the bezel, when the window was made to fit it
};

// Gives the application the simulator's own looks.
void applySimulatorTheme();

#endif
