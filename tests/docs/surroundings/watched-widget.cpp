// SPDX-License-Identifier: MIT
#include <HMIDevice/HMIDeviceInfo.h>

#include <QGraphicsView>

bool snippet(const QWidget *widget)
{
    @SNIPPET@
    return isOfAKeypad;
}
