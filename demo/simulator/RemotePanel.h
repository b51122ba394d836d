// SPDX-License-Identifier: MIT
#ifndef REMOTEPANEL_H
#define REMOTEPANEL_H

#include "PanelState.h"
#include "Protocol.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QQueue>
#include <QScopedPointer>
#include <QSocketNotifier>
#include <QTimer>

class Panel;
class QWindow;

// The panel process: a panel whose operator sits at the simulator. Whatever changes on its screen
// goes to the simulator, from which its mouse and keys come.
//
// Ends the application when the simulator has gone.
class RemotePanel : public QObject
{
    Q_OBJECT

public:
    // Reads from and writes to these file descriptors.
    RemotePanel(int input, int output);
    ~RemotePanel() override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private Q_SLOTS:
    void read();
    void deliver();
    void report();
    void tell(const QString &line);

private:
    void begin(QDataStream *stream);
    void deliverMouse(const Protocol::MouseInput &input);
    void sendMouse(QEvent::Type type, const Protocol::MouseInput &input, QWidget *window);
    void deliverKey(const Protocol::KeyInput &input);
    QWidget *windowAt(const QPoint &place) const;
    QImage picture() const;
    void reportPicture();
    void send(const QByteArray &message);

    const int m_input;
    const int m_output;
    QSocketNotifier m_notifier;
    Protocol::Inbox m_inbox;
    QQueue<QByteArray> m_messages; // received and not yet delivered
    QScopedPointer<Panel> m_panel;
    QPointer<QWidget> m_pressed; // the window in which a mouse button went down
    QTimer m_report;             // with the next turn of the event loop
    QImage m_picture;            // as the simulator has it
    PanelState m_state;
    bool m_keypadOpen;
};

// The panel process as a program.
int runRemotePanel(int argc, char *argv[]);

#endif
