// SPDX-License-Identifier: MIT
#ifndef MACHINE_H
#define MACHINE_H

#include "KeypadModel.h"

#include <QDialog>

class KeyBoardLineEdit;

enum KeypadName { Numeric, GCode, Axis, DateTime, Character, KeypadCount };

const char *className(KeypadName name);

// A keypad as its model sees it: one kind of operations for all, keys in the order of the model.
class Machine
{
public:
    virtual ~Machine() { }

    virtual QDialog *dialog() = 0;
    virtual void setObject(QObject *object) = 0;
    virtual void setText(const QString &text) = 0;
    virtual void setMaxLength(int length) = 0;
    virtual void setValidator(const QValidator *validator) = 0;
    virtual void setPasswordEchoMode(bool on) = 0;
    virtual void setEditMode(int) { }
    virtual void setDecimalPointEnabled(bool) { }
    virtual void setLimitToolTip(const QString &) { }

    virtual QList<QWidget *> keys();
    virtual QString tip() const { return QString(); } // the line for limits
    virtual bool isTipShown() const { return false; }
    virtual QStringList parts() { return QStringList(); }
    virtual QList<QWidget *> fields(); // what is edited

    KeyBoardLineEdit *line();
};

Machine *newMachine(KeypadName name, QWidget *parent);
KeypadModel *newModel(KeypadName name, World *world);

#endif
