// SPDX-License-Identifier: MIT
#include <HMIDevice/GCodeKeypad.h>

#include <QLineEdit>

void snippet(QWidget *page)
{
    @SNIPPET@
}
