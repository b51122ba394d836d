// SPDX-License-Identifier: MIT
#ifndef SESSION_H
#define SESSION_H

#include "Action.h"
#include "LastWords.h"
#include "Machine.h"
#include "Recorder.h"
#include "Surroundings.h"

#include <QObject>
#include <QScopedPointer>
#include <QSet>

// How keypad and model came apart.
struct Divergence
{
    int action; // among those that were done
    QStringList differences;
};

// A new keypad and a new model, to which the same is done.
class Session : private QObject
{
public:
    explicit Session(KeypadName name);
    ~Session() override;

    // Does what it is told until the two differ; true when they never did. Tells the story of it.
    bool run(const QList<Action> &actions, QStringList *story = nullptr);

    const Divergence &divergence() const { return m_divergence; }
    int actionsDone() const { return m_next; }
    int actionsFelt() const { return m_felt; } // of them, those that reached the keypad
    const QSet<quint64> &states() const { return m_states; } // by their hashes

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void openAndGoOn();
    void doNext();
    bool reaches(const Action &action) const;
    void perform(const Action &action);
    void tell(const QString &what);
    void adjust(const Action &action);
    void setObject(const Action &action);
    void setValidator(const Action &action);
    void tap(int key, bool beside);
    void touchField(const Action &action);
    bool isLeftOut(const HardKey &key) const;
    void press(const HardKey &key, KeyManner manner);
    void pressRepeatedly(const HardKey &key);
    void commit(const QString &text);
    QWidget *focus();
    void pointAt(const Action &action);
    void pointTwiceAt(const QPoint &place);
    void close(int way);
    void compare();
    Seen seen();

    KeypadName m_name;
    LastWords m_lastWords;
    Surroundings m_surroundings;
    QScopedPointer<KeypadModel> m_model;
    QScopedPointer<Machine> m_machine;
    QList<QWidget *> m_fields, m_keys;
    Recorder m_recorder;
    QList<Action> m_actions;
    QStringList *m_story;
    int m_next, m_felt, m_timer;
    bool m_same;
    Divergence m_divergence;
    QSet<quint64> m_states;
};

#endif
