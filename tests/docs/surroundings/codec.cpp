// SPDX-License-Identifier: MIT
#include <QtGlobal>
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#include <QTextCodec>
#endif

void snippet()
{
    @SNIPPET@
}
