// SPDX-License-Identifier: MIT
#include <HMIDevice/DateTimeKeypad.h>

#include <QSpinBox>

void snippet(DateTimeKeypad *keypad)
{
    @SNIPPET@
}
