// SPDX-License-Identifier: MIT
#ifndef FIELDKEYPADS_H
#define FIELDKEYPADS_H

#include "HMIDeviceFieldsExport.h"

#include <QObject>

class QWidget;

/*!
 * Keypads for every field of a program that exists: a tap on a field opens its keypad.
 */
class HMIDEVICEFIELDS_EXPORT FieldKeypads : public QObject
{
    Q_OBJECT

public:
    /*! The keypad of a field; NoKeypad is a field that a tap leaves alone. */
    enum Kind { NoKeypad, Numeric, GCode, Axis, DateTime, Character };

    /*! Watches \a window, which keypads cover. Not owned. */
    explicit FieldKeypads(QWidget *window, QObject *parent = nullptr);
    ~FieldKeypads() override;

    /*! Chooses the keypad of \a field. */
    void setKind(QWidget *field, Kind kind);

    /*! The keypad that a tap on \a field opens. */
    Kind kind(QWidget *field) const;

    /*! Opens the keypad of \a field as a tap does; true when the field was written. */
    bool edit(QWidget *field);

private:
    QWidget *m_window;
};

#endif
