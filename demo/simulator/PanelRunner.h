// SPDX-License-Identifier: MIT
#ifndef PANELRUNNER_H
#define PANELRUNNER_H

#include "Protocol.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>

class PanelProcess;

// Keeps a panel process running. Keypads are built once in a process, so each change of the panel
// needs another one: it goes on where the former one was, whose picture stays until its own has
// come. A process that ends by itself is started anew.
class PanelRunner : public QObject
{
    Q_OBJECT

public:
    explicit PanelRunner(QObject *parent);

    // Runs a panel of this kind from now on.
    void start(const PanelSetup &setup);

    // What the panel shows, and what it is; from the first changed() on.
    const QImage &picture() const { return m_picture; }
    const PanelSetup &setup() const { return m_setup; }
    const PanelState &state() const { return m_state; }
    bool isKeypadOpen() const { return m_keypadOpen; }

    // Of the process whose picture is shown; 0 while there is none.
    qint64 processId() const;

    // Nothing comes of it while the panel is being changed.
    void send(const Protocol::MouseInput &input);
    void send(const Protocol::KeyInput &input);

Q_SIGNALS:
    void changed(); // another panel than before is shown
    void kept();    // the same panel goes on, as the next one has not come up
    void painted(const QRect &place);
    void keypadChanged();
    void told(const QString &line); // as KeypadWatch has them, or beginning with "panel: "

private Q_SLOTS:
    void showNext();
    void copyPicture(const QRect &place);
    void copyState();
    void copyKeypad();
    void startAnew(const QString &reason);
    void giveUp(const QString &reason);

private:
    bool isReady() const { return m_process && !m_next; }
    void setKeypadOpen(bool open);
    void tellChange();

    PanelProcess *m_process; // whose picture is shown; null before the first and after its end
    PanelProcess *m_next;    // which has not painted yet; may be null
    PanelSetup m_setup;
    PanelState m_state;
    QImage m_picture;
    bool m_keypadOpen;
    QElapsedTimer m_since; // the start of m_next
};

#endif
