// SPDX-License-Identifier: MIT
#include <QWidget>

void snippet(QWidget &window)
{
    @SNIPPET@
}
