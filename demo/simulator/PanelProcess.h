// SPDX-License-Identifier: MIT
#ifndef PANELPROCESS_H
#define PANELPROCESS_H

#include "Protocol.h"

#include <QImage>
#include <QObject>
#include <QProcess>

// A panel process, as the simulator sees it. It runs until it is told to leave or deleted, or until
// something happens to it.
class PanelProcess : public QObject
{
    Q_OBJECT

public:
    PanelProcess(const PanelSetup &setup, const PanelState &state, QObject *parent);

    // Waits until the process has ended.
    ~PanelProcess() override;

    const PanelSetup &setup() const { return m_setup; }

    // As it was told last.
    const PanelState &state() const { return m_state; }

    // Null until the first one has come.
    const QImage &picture() const { return m_picture; }

    bool isKeypadOpen() const { return m_keypadOpen; }
    qint64 processId() const { return m_process.processId(); }

    void send(const Protocol::MouseInput &input);
    void send(const Protocol::KeyInput &input);

    // Lets the process end, and deletes this when it has.
    void leave();

Q_SIGNALS:
    void painted(const QRect &place);
    void stateChanged();
    void keypadChanged();
    void told(const QString &line);
    void ended(const QString &reason); // although it was not told to leave

private Q_SLOTS:
    void read();
    void tellEnd();
    void tellError(QProcess::ProcessError error);

private:
    void take(const QByteArray &message);
    void paint(const Protocol::PicturePart &part);

    const PanelSetup m_setup;
    PanelState m_state;
    QImage m_picture;
    bool m_keypadOpen;
    QProcess m_process;
    Protocol::Inbox m_inbox;
};

#endif
