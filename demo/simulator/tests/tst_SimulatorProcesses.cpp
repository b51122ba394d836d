// SPDX-License-Identifier: MIT
#include "Chooser.h"
#include "SimulatorStage.h"
#include "support/Text.h"

#include <QFile>
#include <QProcess>

#include <signal.h>

// The simulator and its panel process live and die together.

namespace {

qint64 childOf(qint64 process)
{
    QFile file(QString::fromLatin1("/proc/%1/task/%1/children").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().simplified().toLongLong();
}

} // namespace

class tst_SimulatorProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPanelThatDiesIsStartedAnew();
    void aPanelThatDiesWithAKeypadUnlocksTheChooser();
    void theFormerPanelEnds();
    void theLastOfQuickChoicesStays();
    void aPanelThatDoesNotComeUpIsTold();
    void aPanelStaysChosenIfTheNextDoesNotComeUp();
    void nothingIsLeftOver();
    void nothingIsLeftOverOfAKilledSimulator_data();
    void nothingIsLeftOverOfAKilledSimulator();
};

void tst_SimulatorProcesses::aPanelThatDiesIsStartedAnew()
{
    SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    ReferencePanel reference((PanelSetup()));
    stage.openPage(reference, "PROG");
    const PanelState before = stage.panel().state();
    const qint64 process = stage.panel().processId();
    QVERIFY(process > 0);
    QCOMPARE(::kill(pid_t(process), SIGKILL), 0);
    WAIT_FOR(stage.panel().processId() > 0 && stage.panel().processId() != process);
    QVERIFY(stage.log().contains(u("panel: its process ended (signal 9) and is started anew")));
    QVERIFY(stage.panel().state() == before);
    WAIT_FOR(stage.panel().picture() == reference.picture(before));
}

void tst_SimulatorProcesses::aPanelThatDiesWithAKeypadUnlocksTheChooser()
{
    SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    ReferencePanel reference((PanelSetup()));
    stage.openKeypad(reference, "X");
    ::kill(pid_t(stage.panel().processId()), SIGTERM);
    WAIT_FOR(!stage.panel().isKeypadOpen());
    QVERIFY(stage.part<QWidget>("models")->isEnabled());
    WAIT_FOR(stage.panel().processId() > 0);
    stage.openKeypad(reference, "X");
}

void tst_SimulatorProcesses::theFormerPanelEnds()
{
    SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    const qint64 process = stage.panel().processId();
    stage.choose(panelOf(9));
    WAIT_FOR(stage.panel().setup().type == 9);
    QVERIFY(stage.panel().processId() != process);
    WAIT_FOR(hasEnded(process));
    QCOMPARE(stage.log().size(), 2); // no word of a process that ended
}

void tst_SimulatorProcesses::theLastOfQuickChoicesStays()
{
    SimulatorStage stage;
    for (const int type : { 1, 2, 13, 9, 7 })
        stage.choose(panelOf(type));
    WAIT_FOR(stage.panel().setup().type == 7 && stage.isReady());
    WAIT_FOR(childOf(QCoreApplication::applicationPid()) == stage.panel().processId());
    QCOMPARE(stage.log().size(), 1);
}

// The dynamic linker then lists the libraries and ends without running the program.
void tst_SimulatorProcesses::aPanelThatDoesNotComeUpIsTold()
{
    const char variable[] = "LD_TRACE_LOADED_OBJECTS";
    qputenv(variable, "1");
    const SimulatorStage stage;
    qunsetenv(variable);
    WAIT_FOR(stage.log().last().startsWith(u("panel: a process ended (exit status 0)")));
    QVERIFY(!stage.isReady());
}

void tst_SimulatorProcesses::aPanelStaysChosenIfTheNextDoesNotComeUp()
{
    SimulatorStage stage(panelOf(9));
    WAIT_FOR(stage.isReady());
    const char variable[] = "LD_TRACE_LOADED_OBJECTS";
    qputenv(variable, "1");
    stage.choose(panelOf(13));
    qunsetenv(variable);
    WAIT_FOR(stage.log().last().startsWith(u("panel: a process ended (exit status 0)")));
    QCOMPARE(stage.panel().setup().type, 9);
    QCOMPARE(stage.part<Chooser>("chooser")->setup().type, 9);
}

void tst_SimulatorProcesses::nothingIsLeftOver()
{
    qint64 process = 0;
    {
        const SimulatorStage stage;
        WAIT_FOR(stage.isReady());
        process = stage.panel().processId();
        QVERIFY(!hasEnded(process));
    }
    QVERIFY(hasEnded(process));
    QCOMPARE(childOf(QCoreApplication::applicationPid()), 0);
}

void tst_SimulatorProcesses::nothingIsLeftOverOfAKilledSimulator_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("killed") << SIGKILL;
    QTest::newRow("Ctrl+C") << SIGINT;
}

void tst_SimulatorProcesses::nothingIsLeftOverOfAKilledSimulator()
{
    QFETCH(int, signal);
    QProcess simulator;
    simulator.start(QLatin1String(HMI_DEMO), { u("--type"), u("9") });
    QByteArray output;
    WAIT_FOR((output += simulator.readAllStandardOutput()).contains('\n'));
    QVERIFY(output.startsWith("panel: type 9, 480x272, after "));
    const qint64 process = childOf(simulator.processId());
    QVERIFY(process > 0);
    QVERIFY(!hasEnded(process));
    ::kill(pid_t(simulator.processId()), signal);
    QVERIFY(simulator.waitForFinished(60000));
    WAIT_FOR(hasEnded(process));
}

int main(int argc, char *argv[])
{
    return runTest<tst_SimulatorProcesses>(argc, argv);
}

#include "tst_SimulatorProcesses.moc"
