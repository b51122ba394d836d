// SPDX-License-Identifier: MIT
#include "GCodeStandIn.h"

#include <HMIDevice/GCodeKeypad.h>

#include <QLineEdit>

void snippet(GCodeKeypad *keypad, QLineEdit *field)
{
    @SNIPPET@
}
