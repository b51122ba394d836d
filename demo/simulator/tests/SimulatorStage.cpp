// SPDX-License-Identifier: MIT
#include "SimulatorStage.h"

#include "Chooser.h"
#include "HardKey.h"
#include "MachineScreen.h"
#include "PanelState.h"
#include "ScreenView.h"
#include "TouchField.h"

#include <HMIDevice/NumericKeypad.h>

#include <QAbstractButton>
#include <QFile>
#include <QPlainTextEdit>

namespace {

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

QPoint centre(const QWidget *widget, const QWidget *window)
{
    return widget->mapTo(window, widget->rect().center());
}

} // namespace

ReferencePanel::ReferencePanel(const PanelSetup &setup)
    : m_panel(setup)
{
    m_panel.show();
    m_panel.view()->activateWindow();
    QCoreApplication::processEvents();
}

void ReferencePanel::openPage(const QString &page)
{
    m_panel.screen()->openPage(page);
    QCoreApplication::processEvents(); // lays it out
}

QPoint ReferencePanel::field(const QString &name)
{
    return centre(m_panel.screen()->field(name), m_panel.view());
}

QPoint ReferencePanel::softKey(const QString &page)
{
    return centre(m_panel.screen()->softKey(page), m_panel.view());
}

QImage ReferencePanel::picture(const PanelState &state)
{
    restoreState(m_panel.screen(), state);
    QCoreApplication::processEvents();
    return m_panel.view()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QPoint ReferencePanel::key(const QString &name)
{
    NumericKeypad keypad(m_panel.view(), Qt::WindowFlags());
    keypad.setLimitToolTip(QLatin1String("limits")); // the line takes its share of the height
    keypad.show();
    QCoreApplication::processEvents();
    const QPoint origin =
        keypad.mapToGlobal(QPoint(0, 0)) - m_panel.view()->mapToGlobal(QPoint(0, 0));
    return origin + centre(keypad.findChild<QAbstractButton *>(name), &keypad);
}

SimulatorStage::SimulatorStage(const PanelSetup &setup)
    : m_simulator(new Simulator(setup))
{
}

QStringList SimulatorStage::log() const
{
    return part<QPlainTextEdit>("log")->toPlainText().split(QLatin1Char('\n'));
}

ScreenView *SimulatorStage::screen() const
{
    return part<ScreenView>("screen");
}

QList<HardKey *> SimulatorStage::hardKeys() const
{
    return m_simulator->findChildren<HardKey *>();
}

void SimulatorStage::tap(const QPoint &place)
{
    QTest::mouseClick(screen(), Qt::LeftButton, Qt::NoModifier, place);
}

void SimulatorStage::openPage(ReferencePanel &reference, const char *page)
{
    tap(reference.softKey(QLatin1String(page)));
    WAIT_FOR(panel().state().page == QLatin1String(page));
    reference.openPage(QLatin1String(page));
}

void SimulatorStage::openKeypad(ReferencePanel &reference, const char *field)
{
    tap(reference.field(QLatin1String(field)));
    WAIT_FOR(panel().isKeypadOpen());
}

void SimulatorStage::tapKeys(ReferencePanel &reference, const char *names)
{
    const QStringList keys = words(names);
    for (const QString &name : keys)
        tap(reference.key(name));
}

void SimulatorStage::pressHardKeys(const char *labels)
{
    const QStringList pressed = words(labels);
    const QList<HardKey *> keys = hardKeys();
    for (const QString &label : pressed) {
        for (HardKey *key : keys) {
            if (key->text() == label)
                QTest::mouseClick(key, Qt::LeftButton);
        }
    }
}

void SimulatorStage::choose(const PanelSetup &setup)
{
    Chooser *chooser = m_simulator->findChild<Chooser *>();
    chooser->setSetup(setup);
    QMetaObject::invokeMethod(chooser, "chosen");
}

PanelSetup panelOf(int type, int rotation)
{
    PanelSetup setup;
    setup.type = type;
    setup.rotation = rotation;
    return setup;
}

// An ended process that nobody has waited for yet is in the state "Z".
bool hasEnded(qint64 process)
{
    QFile file(QString::fromLatin1("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return true;
    const QByteArray content = file.readAll();
    return content.mid(content.lastIndexOf(')') + 2, 1) == "Z";
}
