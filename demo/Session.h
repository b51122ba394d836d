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

/*!
 * Performs the scripted operator session, one step at a time from the event loop, which may be a
 * keypad's own, and saves a picture of what each step leads to.
 *
 * Ends the application: with 0 and one line about the pictures, or with 1 and one line about the
 * first thing that is not as it should be.
 */
class Session : public QObject
{
    Q_OBJECT

public:
    Session(QGraphicsView *view, MachineScreen *screen, FieldEditor *editor);

    /*! Starts with the next turn of the event loop. \a folder must exist. */
    void start(const QString &folder);

private:
    void proceed();
    bool isSettled() const;
    void wait();
    void save(const char *picture);
    void finish();
    void fail(const QString &complaint);

    void perform(const Step &step);
    void tapPart(int index);
    void tapKeys(const QString &labels);
    void tapKey(const QString &label);
    void pressKeys(const QString &names);
    void seeEntry(const QString &text);
    void seeMask(const QString &text);
    void seeKeys(const QString &labels, bool expected);
    void seeDimmed(const QString &labels);
    void seeCover(const QString &field);
    void seeField(const QString &field, const QString &text);

    QGraphicsView *m_view;
    MachineScreen *m_screen;
    FieldEditor *m_editor;
    QDir m_folder;
    QVector<Step> m_steps;
    int m_next;
    int m_pictures;
    int m_waits;
    bool m_failed;
};

#endif
