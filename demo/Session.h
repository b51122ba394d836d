// SPDX-License-Identifier: MIT
#ifndef SESSION_H
#define SESSION_H

#include "Script.h"

#include <QDir>
#include <QObject>
#include <QVector>

class FieldEditor;
class MachineScreen;
class QGraphicsView;

// Performs the scripted operator session, one step at a time from the event loop, which may be a
// keypad's own, and saves a picture of what each step leads to.
//
// Ends the application: with 0 and one line about the pictures, or with 1 and one line about the
// first thing that is not as it should be.
class Session : public QObject
{
    Q_OBJECT

public:
    Session(QGraphicsView *view, MachineScreen *screen, FieldEditor *editor);

    // Starts with the next turn of the event loop. folder must exist; the pictures that an
    // earlier session left there go.
    void start(const QString &folder);

private Q_SLOTS:
    void proceed();

private:
    QWidget *windowToWork() const;
    void takeStep(const Step &step);
    void wait(const QString &reason);
    void save(const char *picture);
    void finish();
    void fail(const QString &complaint);

    void perform(const Step &step);
    void tapPart(int index);
    void tapKey(const QString &label);
    void pressKey(const QString &name);

    QGraphicsView *m_view;
    MachineScreen *m_screen;
    FieldEditor *m_editor;
    QDir m_folder;
    QVector<Step> m_steps;
    int m_next;            // index
    int m_step;            // number of the one that was taken last, from 1
    const char *m_picture; // of the step that was done, until it is saved; may be null
    int m_pictures;
    int m_waits;
    bool m_failed;
};

#endif
