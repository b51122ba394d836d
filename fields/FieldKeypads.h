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
    void resetKind(QWidget *field);

    /*! The keypad that a tap on \a field opens. */
    Kind kind(QWidget *field) const;

    void setLimits(QWidget *field, const QString &text);

    void setReturnPressed(QWidget *field, bool on);

    /*! Opens the keypad of \a field as a tap does; true when the field was written. */
    bool edit(QWidget *field);

Q_SIGNALS:
    void hardKeyPressed(int key);
};

#endif
