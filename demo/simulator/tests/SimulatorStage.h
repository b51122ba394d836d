// SPDX-License-Identifier: MIT
#ifndef SIMULATORSTAGE_H
#define SIMULATORSTAGE_H

#include "Panel.h"
#include "PanelRunner.h"
#include "RemotePanel.h"
#include "Simulator.h"

#include <QApplication>
#include <QScopedPointer>
#include <QStringList>
#include <QtTest>

class Chooser;
class HardKey;
class ScreenView;

// Waits as long as a slow machine may need; what never comes true fails.
#define WAIT_FOR(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 60000)

// A panel in the test's own process, to know where things are and what they look like.
class ReferencePanel
{
public:
    explicit ReferencePanel(const PanelSetup &setup);

    void openPage(const QString &page);
    QPoint field(const QString &name); // on the page that is open
    QPoint softKey(const QString &page);
    QImage picture(const PanelState &state);

    // The numeric keypad's key of this object name.
    QPoint key(const QString &name);

private:
    Panel m_panel;
};

// A simulator with a panel process, and its operator.
class SimulatorStage
{
public:
    // Starts it; ready() once it shows its panel.
    explicit SimulatorStage(const PanelSetup &setup = PanelSetup());

    bool isReady() const { return !panel().picture().isNull(); }
    PanelRunner &panel() const { return *m_simulator->panel(); }
    QString text(const QString &field) const { return panel().state().texts.value(field); }
    QStringList log() const;

    template <class Part>
    Part *part(const char *name) const
    {
        return m_simulator->findChild<Part *>(QLatin1String(name));
    }

    ScreenView *screen() const;
    QList<HardKey *> hardKeys() const;

    void tap(const QPoint &place);
    void openPage(ReferencePanel &reference, const char *page);
    void openKeypad(ReferencePanel &reference, const char *field);
    void tapKeys(ReferencePanel &reference, const char *names); // separated by blanks
    void pressHardKeys(const char *labels);                     // separated by blanks
    void choose(const PanelSetup &setup);

private:
    QScopedPointer<Simulator> m_simulator;
};

PanelSetup panelOf(int type, int rotation = 0);

// Whether there is no process of this number, or one that has ended.
bool hasEnded(qint64 process);

// The test's program is the panel process's, too.
template <class Test>
int runTest(int argc, char *argv[])
{
    if (argc == 2 && qstrcmp(argv[1], Protocol::panelArgument) == 0)
        return runRemotePanel(argc, argv);
    QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

#endif
