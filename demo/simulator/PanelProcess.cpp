// SPDX-License-Identifier: MIT
#include "PanelProcess.h"

#include <QCoreApplication>
#include <QPainter>
#include <QProcessEnvironment>
#include <QTimer>

namespace {

const int patience = 2000; // milliseconds that a process has for its end

// Offscreen, and pixel by pixel, however large this screen draws its windows.
QProcessEnvironment panelEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable :
         { "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
           "QT_DEVICE_PIXEL_RATIO", "QT_USE_PHYSICAL_DPI", "QT_FONT_DPI", "QT_STYLE_OVERRIDE" })
        environment.remove(QLatin1String(variable));
    environment.insert(QLatin1String("QT_ENABLE_HIGHDPI_SCALING"), QLatin1String("0"));
    environment.insert(QLatin1String("QT_QPA_PLATFORM"), QLatin1String("offscreen"));
    return environment;
}

} // namespace

PanelProcess::PanelProcess(const PanelSetup &setup, const PanelState &state, QObject *parent)
    : QObject(parent)
    , m_setup(setup)
    , m_state(state)
    , m_keypadOpen(false)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setProcessEnvironment(panelEnvironment());
    connect(&m_process, SIGNAL(readyReadStandardOutput()), SLOT(read()));
    connect(&m_process, SIGNAL(finished(int, QProcess::ExitStatus)), SLOT(tellEnd()));
    connect(&m_process, SIGNAL(errorOccurred(QProcess::ProcessError)),
            SLOT(tellError(QProcess::ProcessError)));
    m_process.start(QCoreApplication::applicationFilePath(),
                    { QLatin1String(Protocol::panelArgument) });
    m_process.write(Protocol::message(Protocol::Kind::Begin, setup, state));
}

PanelProcess::~PanelProcess()
{
    m_process.disconnect(this);
    m_process.closeWriteChannel();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(patience)) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

void PanelProcess::send(const Protocol::MouseInput &input)
{
    m_process.write(Protocol::message(Protocol::Kind::Mouse, input));
}

void PanelProcess::send(const Protocol::KeyInput &input)
{
    m_process.write(Protocol::message(Protocol::Kind::Key, input));
}

void PanelProcess::leave()
{
    disconnect();
    m_process.disconnect(this);
    connect(&m_process, SIGNAL(finished(int, QProcess::ExitStatus)), SLOT(deleteLater()));
    QTimer::singleShot(patience, &m_process, SLOT(kill()));
    m_process.closeWriteChannel();
    if (m_process.state() == QProcess::NotRunning)
        deleteLater();
}

void PanelProcess::read()
{
    m_inbox.append(m_process.readAllStandardOutput());
    QByteArray message;
    while (m_inbox.take(&message))
        take(message);
}

void PanelProcess::take(const QByteArray &message)
{
    using Protocol::operator>>;
    QDataStream stream(message);
    switch (Protocol::readKind(&stream)) {
    case Protocol::Kind::Picture: {
        Protocol::PicturePart part;
        stream >> part;
        paint(part);
        break;
    }
    case Protocol::Kind::State:
        stream >> m_state;
        Q_EMIT stateChanged();
        break;
    case Protocol::Kind::Keypad:
        stream >> m_keypadOpen;
        Q_EMIT keypadChanged();
        break;
    case Protocol::Kind::Line: {
        QString line;
        stream >> line;
        Q_EMIT told(line);
        break;
    }
    default: // what the simulator says itself
        break;
    }
}

void PanelProcess::paint(const Protocol::PicturePart &part)
{
    if (m_picture.size() != part.screen)
        m_picture = QImage(part.screen, QImage::Format_RGB32);
    QPainter(&m_picture).drawImage(part.place.topLeft(), part.part);
    Q_EMIT painted(part.place);
}

void PanelProcess::tellEnd()
{
    const QString reason = m_process.exitStatus() == QProcess::CrashExit
        ? QString::fromLatin1("signal %1").arg(m_process.exitCode())
        : QString::fromLatin1("exit status %1").arg(m_process.exitCode());
    Q_EMIT ended(reason);
}

void PanelProcess::tellError(QProcess::ProcessError error)
{
    if (error == QProcess::FailedToStart)
        Q_EMIT ended(m_process.errorString());
}
