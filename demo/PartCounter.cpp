// SPDX-License-Identifier: MIT
#include "PartCounter.h"

PartCounter::PartCounter(const FieldRule &rule, QWidget *parent)
    : TouchField(rule, parent)
{
}
