// SPDX-License-Identifier: MIT
#ifndef SURROUNDINGS_H
#define SURROUNDINGS_H

#include "Action.h"
#include "KeypadModel.h"

#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>

class QValidator;

// What is written into, and how often.
class Written
{
public:
    Written()
        : whenWritten(TakeIt)
        , times(0)
    {
    }
    virtual ~Written() { }

    WhenWritten whenWritten;
    int times;

protected:
    // What becomes of \a text where \a before stands.
    QString taken(const QString &text, const QString &before);
};

class WrittenField : public QLineEdit, public Written
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE write)

public:
    void write(const QString &text) { setText(taken(text, this->text())); }
};

class WrittenLabel : public QLabel, public Written
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE write)

public:
    void write(const QString &text) { setText(taken(text, this->text())); }
};

// An application's field for dates, for whose class the character keypad has a rule of its own.
class DateTimeField : public WrittenField
{
    Q_OBJECT
};

class DerivedField : public DateTimeField
{
    Q_OBJECT
};

// What is around a keypad, and what its model has to know of that: panel, views, targets.
class Surroundings
{
public:
    Surroundings();
    ~Surroundings();

    enum { viewCount = 2, targetCount = NoTarget };

    World *world() { return &m_world; }
    QWidget *home() { return &m_views[0]; } // the application's window, and parent of the keypad
    QObject *target(int index) { return m_targets[index]; }

    void setDeviceType(int type);
    void registerView(int index); // any but a view's index: none
    void changeView(int index, int place, int look);
    void block(int target);
    void setWhenWritten(int target, WhenWritten what);
    void renewTarget(int index);
    void moveTarget(int index, int place, int parent);

    ViewPlace viewPlace() const;
    TargetPlace targetPlace(int index) const;
    QStringList seenTargets() const;

    static const QValidator *validator(int index); // null where there is none
    static QValidator *newValidator();

private:
    Q_DISABLE_COPY(Surroundings)

    QObject *newTarget(int index);
    QLineEdit *inView(QLineEdit *field);

    QGraphicsView m_views[viewCount];
    QObject *m_targets[targetCount];
    World m_world;
};

#endif
