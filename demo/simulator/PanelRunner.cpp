// SPDX-License-Identifier: MIT
#include "PanelRunner.h"

#include "PanelProcess.h"

PanelRunner::PanelRunner(QObject *parent)
    : QObject(parent)
    , m_process(nullptr)
    , m_next(nullptr)
    , m_keypadOpen(false)
{
}

void PanelRunner::start(const PanelSetup &setup)
{
    if (m_next)
        m_next->leave();
    m_since.start();
    m_next = new PanelProcess(setup, m_state, this);
    connect(m_next, SIGNAL(painted(QRect)), SLOT(showNext()));
    connect(m_next, SIGNAL(ended(QString)), SLOT(giveUp(QString)));
}

qint64 PanelRunner::processId() const
{
    return m_process ? m_process->processId() : 0;
}

void PanelRunner::send(const Protocol::MouseInput &input)
{
    if (isReady())
        m_process->send(input);
}

void PanelRunner::send(const Protocol::KeyInput &input)
{
    if (isReady())
        m_process->send(input);
}

void PanelRunner::showNext()
{
    if (m_process)
        m_process->leave();
    m_process = m_next;
    m_next = nullptr;
    m_process->disconnect(this);
    connect(m_process, SIGNAL(painted(QRect)), SLOT(copyPicture(QRect)));
    connect(m_process, SIGNAL(stateChanged()), SLOT(copyState()));
    connect(m_process, SIGNAL(keypadChanged()), SLOT(copyKeypad()));
    connect(m_process, SIGNAL(told(QString)), SIGNAL(told(QString)));
    connect(m_process, SIGNAL(ended(QString)), SLOT(startAnew(QString)));
    m_setup = m_process->setup();
    m_picture = m_process->picture();
    setKeypadOpen(false);
    Q_EMIT changed();
    tellChange();
}

void PanelRunner::copyPicture(const QRect &place)
{
    m_picture = m_process->picture();
    Q_EMIT painted(place);
}

void PanelRunner::copyState()
{
    m_state = m_process->state();
}

void PanelRunner::copyKeypad()
{
    setKeypadOpen(m_process->isKeypadOpen());
}

void PanelRunner::startAnew(const QString &reason)
{
    Q_EMIT told(
        QString::fromLatin1("panel: its process ended (%1) and is started anew").arg(reason));
    m_process->leave();
    m_process = nullptr;
    setKeypadOpen(false);
    if (!m_next)
        start(m_setup);
}

void PanelRunner::giveUp(const QString &reason)
{
    Q_EMIT told(QString::fromLatin1("panel: a process ended (%1) before it came up").arg(reason));
    m_next->leave();
    m_next = nullptr;
    if (m_process)
        Q_EMIT kept();
}

void PanelRunner::setKeypadOpen(bool open)
{
    if (open == m_keypadOpen)
        return;
    m_keypadOpen = open;
    Q_EMIT keypadChanged();
}

void PanelRunner::tellChange()
{
    Q_EMIT told(QString::fromLatin1("panel: type %1, %2x%3, after %4 ms")
                    .arg(m_setup.type)
                    .arg(m_picture.width())
                    .arg(m_picture.height())
                    .arg(m_since.elapsed()));
}
