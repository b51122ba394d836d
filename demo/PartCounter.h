// SPDX-License-Identifier: MIT
#ifndef PARTCOUNTER_H
#define PARTCOUNTER_H

#include "TouchField.h"

// A value that the machine alone counts: it looks like the other fields and opens a keypad, too,
// but its "text" property is read-only. Programs have such targets by mistake, spin boxes for
// instance; here one can see what comes of it.
class PartCounter : public TouchField
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text)

public:
    PartCounter(const FieldRule &rule, QWidget *parent);
};

#endif
