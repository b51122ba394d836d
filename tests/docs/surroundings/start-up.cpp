// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QGraphicsView>
#include <QTranslator>

#define TRANSLATIONS_DIR "translations"

void snippet()
{
    @SNIPPET@
}
