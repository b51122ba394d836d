// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QGraphicsView>
#include <QTranslator>

void snippet()
{
    @SNIPPET@
}
