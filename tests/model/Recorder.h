// SPDX-License-Identifier: MIT
#ifndef RECORDER_H
#define RECORDER_H

#include <QObject>
#include <QStringList>

class QDialog;

// Writes down what a keypad tells.
class Recorder : public QObject
{
    Q_OBJECT

public:
    void attachTo(QDialog *keypad);
    void setTarget(const QObject *target) { m_target = target; }
    QStringList takeHappenings();

private Q_SLOTS:
    void accepted();
    void rejected();
    void finished(int result);
    void keyPressed(int key);

private:
    void note(const QString &happening);
    QString told(const QString &happening) const;

    QDialog *m_keypad;
    const QObject *m_target; // only while it lives
    QStringList m_happenings, m_finished;
};

#endif
